// SPDX-License-Identifier: MIT
#include "forms/styles.h"

#include <design_system/playerepgdelegatestyle.h>

namespace stbbench {
namespace {

// qml/ComposedRow.qml repeats these numbers
design_system::PlayerEpgDelegateStyle rowStyle()
{
    design_system::PlayerEpgDelegateStyle style;
    style.previewRect = QRect(96, 0, 480, 270);
    style.startTimeTextStyle = textStyle(90, 22, 1, Qt::white);
    style.titleTextStyle = textStyle(480, 22, 2, Qt::white);
    style.subtitleTextStyle = textStyle(480, 18, 1, QColor(0xa0, 0xb0, 0xc0));
    style.liveTextStyle = textStyle(200, 14, 1, Qt::white);
    style.titleSubtitleSpacing = 4;
    style.liveBadgeColor = QColor(0xc0, 0x20, 0x30);
    style.liveBadgeTopMargin = 3;
    style.liveBadgeBottomSpacing = 6;
    style.liveBadgePadding = 4;
    style.liveBadgeIconSpacing = 7;
    style.liveStartTimeColor = QColor(0xff, 0xd0, 0x60);
    style.unavailableTextColor = QColor(0x80, 0x90, 0xa0);
    style.playableTextColor = Qt::white;
    return style;
}

QString startTime(int index)
{
    index %= textNumbers;
    return QStringLiteral("%1:%2")
            .arg(index / 60 % 24, 2, 10, QLatin1Char('0'))
            .arg(index % 60, 2, 10, QLatin1Char('0'));
}

QString title(int index)
{
    return QStringLiteral("Evening story number %1 of the north").arg(index % textNumbers);
}

QString subtitle(int index)
{
    return QStringLiteral("Part %1: what the harbour master kept to himself").arg(index % textNumbers);
}

QVariantMap content(int index)
{
    return { { QStringLiteral("tvProgramStartTimeText"), startTime(index) },
             { QStringLiteral("itemTitle"), title(index) },
             { QStringLiteral("itemSubtitle"), subtitle(index) } };
}

QList<Change> changes(int first)
{
    return {
        { QStringLiteral("update() alone"), {}, Change::Kind::Update },
        change("same title again", "itemTitle", title(first)),
        change("title changed", "itemTitle", title(first + 1)),
        change("subtitle changed", "itemSubtitle", subtitle(first + 1)),
        change("start time changed", "tvProgramStartTimeText", startTime(first + 1)),
        change("playable switched on", "tvProgramPlayable", true),
        change("live switched on", "tvProgramIsLive", true),
        change("title changed while live", "itemTitle", title(first + 2)),
        change("live switched off", "tvProgramIsLive", false),
        change("playable switched off", "tvProgramPlayable", false),
    };
}

} // namespace

Subject epgRow()
{
    const auto style = styleObject<design_system::PlayerEpgDelegateQmlStyle>(rowStyle());
    Subject subject;
    subject.key = QStringLiteral("epgRow");
    subject.style = style;
    subject.content = content;
    subject.forms = { moduleForm("EpgViewDelegate { width: 600 }", style), plainForm("Row") };
    subject.changes = changes;
    return subject;
}

} // namespace stbbench
