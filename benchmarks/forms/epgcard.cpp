// SPDX-License-Identifier: MIT
#include "forms/pictures.h"
#include "forms/styles.h"

#include <design_system/playerepgdelegatestyle.h>

namespace stbbench {
namespace {

// qml/ComposedEpgCard.qml repeats these numbers
design_system::PlayerEpgDelegateStyle cardStyle()
{
    const QColor blue(0x5c, 0xc2, 0xf2);
    design_system::PlayerEpgDelegateStyle style;
    style.previewRect = QRect(96, 0, 270, 152);
    style.previewBottomSpacing = 8;
    style.cardColor = QColor(0x10, 0x18, 0x20, 0x60);
    style.startTimeTextStyle = textStyle(90, 22, 1, Qt::white);
    style.titleTextStyle = textStyle(270, 22, 1, Qt::white);
    style.focusedTitleMaxLineCount = 2;
    style.subtitleTextStyle = textStyle(270, 18, 1, QColor(0xa0, 0xb0, 0xc0));
    style.titleSubtitleSpacing = 4;
    style.statusTextStyle = textStyle(270, 20, 1, Qt::white);
    style.startsAtTextStyle = textStyle(270, 18, 1, blue);
    style.reminderActionTextStyle = textStyle(270, 16, 1, QColor(0x10, 0x18, 0x20));
    style.reminderActionTextStyle.rect.setHeight(32);
    style.reminderActionTextStyle.backgroundColor = blue;
    style.reminderIconSpacing = 6;
    style.playIconColor = Qt::white;
    style.progressBarRect = QRect(10, 0, 250, 6);
    style.progressPlayedColor = QColor(0xff, 0xd0, 0x60);
    style.progressRemainderColor = QColor(0x60, 0x70, 0x80);
    style.liveTextStyle = textStyle(200, 14, 1, Qt::white);
    style.liveBadgeColor = QColor(0xc0, 0x20, 0x30);
    style.liveBadgeTopMarginExtended = 3;
    style.liveBadgeBottomSpacingExtended = 6;
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
    return QStringLiteral("Part %1: the harbour").arg(index % textNumbers);
}

QVariantMap content(int index)
{
    return { { QStringLiteral("tvProgramStartTimeText"), startTime(index) },
             { QStringLiteral("itemTitle"), title(index) },
             { QStringLiteral("itemSubtitle"), subtitle(index) } };
}

QList<Change> futureChanges(int first)
{
    return {
        change("future switched on", "tvProgramIsFuture", true),
        { QStringLiteral("update() in the future"), {}, Change::Kind::Update },
        change("reminder set", "tvProgramHasReminder", true),
        change("start time changed in the future", "tvProgramStartTimeText", startTime(first + 2)),
        change("reminder taken back", "tvProgramHasReminder", false),
        change("future switched off", "tvProgramIsFuture", false),
        change("past switched on", "tvProgramIsPast", true),
        change("past switched off", "tvProgramIsPast", false),
    };
}

QList<Change> playableChanges(int first)
{
    return {
        change("playable switched on", "tvProgramPlayable", true),
        change("progress moved, no bar", "tvProgramProgress", 0.25),
        change("live switched on", "tvProgramIsLive", true),
        { QStringLiteral("update() while live"), {}, Change::Kind::Update },
        change("progress moved", "tvProgramProgress", 0.5),
        change("progress moved by less than a pixel", "tvProgramProgress", 0.5001),
        change("title changed while live", "itemTitle", title(first + 2)),
        change("live switched off", "tvProgramIsLive", false),
        change("playable switched off", "tvProgramPlayable", false),
    };
}

/*! The card's pictures are loaded at once, unless they come from a network: there is no wait for them. */
QList<Change> changes(int first)
{
    QList<Change> list {
        { QStringLiteral("update() alone"), {}, Change::Kind::Update },
        change("picture shown", "imageSource", posterUrl(first)),
        { QStringLiteral("update() with a picture"), {}, Change::Kind::Update },
        change("same title again", "itemTitle", title(first)),
        change("title changed", "itemTitle", title(first + 1)),
        change("subtitle changed", "itemSubtitle", subtitle(first + 1)),
        change("start time changed", "tvProgramStartTimeText", startTime(first + 1)),
    };
    list += futureChanges(first);
    list += playableChanges(first);
    list.append(change("another picture shown", "imageSource", posterUrl(first + 1)));
    return list;
}

} // namespace

Subject epgCard()
{
    const auto style = styleObject<design_system::PlayerEpgDelegateQmlStyle>(cardStyle());
    Subject subject;
    subject.key = QStringLiteral("epgCard");
    subject.style = style;
    subject.content = content;
    subject.forms = { moduleForm("EpgViewDelegateFocused { width: 400 }", style), plainForm("EpgCard"),
                      controlsForm("EpgCard") };
    subject.changes = changes;
    return subject;
}

} // namespace stbbench
