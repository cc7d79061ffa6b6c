// SPDX-License-Identifier: MIT
#include "forms/pictures.h"
#include "forms/styles.h"

#include <design_system/playerepisodesitemstyle.h>

namespace stbbench {
namespace {

// The forms in qml/ repeat these numbers.
design_system::PlayerEpisodesItemStyle episodeStyle()
{
    design_system::PlayerEpisodesItemStyle style;
    style.tileRect = QRect(0, 0, 270, 152);
    style.overlayColor = QColor(0x10, 0x18, 0x20, 0xa0);
    style.playableOverlayColor = QColor(0x10, 0x18, 0x20, 0x40);
    style.contentLeftMargin = 12;
    style.contentRightMargin = 12;
    style.contentBottomMargin = 10;
    style.statusSpacing = 6;
    style.statusTextStyle = textStyle(270, 16, 1, Qt::white);
    style.statusTextStyle.backgroundColor = QColor(0x30, 0x48, 0x60);
    style.statusTextStyle.leftPadding = style.statusTextStyle.rightPadding = 8;
    style.statusTextStyle.topPadding = style.statusTextStyle.bottomPadding = 3;
    style.dateUpperTextStyle = textStyle(270, 28, 1, Qt::white);
    style.dateLowerTextStyle = textStyle(270, 18, 1, Qt::white);
    style.textAreaRect = QRect(0, 0, 260, 152);
    style.textLeftSpacing = 16;
    style.titleSubtitleSpacing = 6;
    style.titleTextStyle = textStyle(260, 20, 1, Qt::white);
    style.subtitleTextStyle = textStyle(260, 16, 2, QColor(0xa0, 0xb0, 0xc0));
    style.comingSoonTextColor = QColor(0x80, 0x90, 0xa0);
    style.playIconSize = QSize(24, 24);
    style.progressBarRect = QRect(0, 0, 246, 4);
    style.progressViewedColor = QColor(0xff, 0xd0, 0x60);
    style.progressRemainingColor = QColor(0x60, 0x70, 0x80);
    return style;
}

QString title(int index)
{
    return QStringLiteral("Episode %1").arg(index % textNumbers);
}

QString subtitle(int index)
{
    return QStringLiteral("Part %1: what the harbour master kept to himself").arg(index % textNumbers);
}

QVariantMap content(int index, const QString &type, const QString &status)
{
    return { { QStringLiteral("listItemType"), type },
             { QStringLiteral("itemTitle"), title(index) },
             { QStringLiteral("itemSubtitle"), subtitle(index) },
             { QStringLiteral("itemStatus"), status },
             { QStringLiteral("mediaPositionsProgressBarViewed"), 600.0 },
             { QStringLiteral("mediaPositionsProgressBarValue"), 2400.0 } };
}

/*!
    A cell is filled once: what comes later than its first frame is the picture, which is loaded at once, and
    what the cell does not show.
*/
QList<Change> changes(int first)
{
    QList<Change> list {
        { QStringLiteral("update() alone"), {}, Change::Kind::Update },
        change("picture shown", "imageSource", posterUrl(first)),
        { QStringLiteral("update() with a picture"), {}, Change::Kind::Update },
        change("same title again", "itemTitle", title(first)),
        change("title changed, not shown", "itemTitle", title(first + 1)),
        change("progress moved, not shown", "mediaPositionsProgressBarViewed", 1200.0),
    };
    for (Change &one : list)
        one.comparable = !one.name.endsWith(QLatin1String("not shown")); // the other forms show it
    return list;
}

Subject episode(const char *key, const char *type, const char *composed, const QString &status)
{
    const auto style = styleObject<design_system::PlayerEpisodesItemQmlStyle>(episodeStyle());
    const QString itemType = QString::fromLatin1(type);
    Subject subject;
    subject.key = QString::fromLatin1(key);
    subject.style = style;
    subject.content = [=](int index) { return content(index, itemType, status); };
    subject.forms = { moduleForm("EpisodesViewDelegate { width: 560; height: 152 }", style),
                      plainForm(composed), controlsForm(composed) };
    subject.changes = changes;
    return subject;
}

} // namespace

Subject startedEpisode()
{
    return episode("startedEpisode", "defaultTile", "StartedEpisode", QStringLiteral("30 min left"));
}

Subject newEpisode()
{
    return episode("newEpisode", "unViewedTile", "NewEpisode", QStringLiteral("New"));
}

Subject viewedEpisode()
{
    return episode("viewedEpisode", "viewedTile", "ViewedEpisode", QStringLiteral("Viewed"));
}

Subject comingEpisode()
{
    return episode("comingEpisode", "comingSoonTile", "ComingEpisode", QStringLiteral("12 March"));
}

} // namespace stbbench
