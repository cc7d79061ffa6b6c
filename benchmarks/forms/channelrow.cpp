// SPDX-License-Identifier: MIT
#include "forms/pictures.h"
#include "forms/styles.h"

#include <design_system/playertvchannelitemstyle.h>

#include <QtCore/qrect.h>
#include <QtGui/qpixmap.h>

namespace stbbench {
namespace {

// qml/ComposedChannelRow.qml repeats these numbers
design_system::PlayerTvChannelItemStyle channelStyle()
{
    const QColor dark(0x10, 0x18, 0x20);
    const QColor blue(0x5c, 0xc2, 0xf2);
    design_system::PlayerTvChannelItemStyle style;
    style.leftMargin = 16;
    style.topMargin = 14;
    style.rightMargin = 16;
    style.bottomMargin = 8;
    style.logoTextSpacing = 16;
    style.logoRect = QRect(16, 12, 128, 72);
    style.channelNumberTextStyle = textStyle(48, 14, 1, Qt::white);
    style.channelNumberTextStyle.backgroundColor = dark;
    style.channelNumberTextStyle.leftPadding = style.channelNumberTextStyle.rightPadding = 6;
    style.channelNumberTextStyle.topPadding = style.channelNumberTextStyle.bottomPadding = 2;
    style.textTopOffset = 14;
    style.programNameSpacing = 7;
    style.nameQualitySpacing = 10;
    style.qualityTextStyle = textStyle(100, 14, 1, dark);
    style.qualityTextStyle.backgroundColor = blue;
    style.qualityTextStyle.leftPadding = style.qualityTextStyle.rightPadding = 6;
    style.qualityTextStyle.topPadding = style.qualityTextStyle.bottomPadding = 2;
    style.channelNameTextStyle = textStyle(100, 20, 1, Qt::white);
    style.programNameTextStyle = textStyle(100, 16, 1, QColor(0xa0, 0xb0, 0xc0));
    style.playingTextStyle = textStyle(100, 14, 1, Qt::white);
    style.playingIconSpacing = 8;
    style.progressBarRect = QRect(160, 0, 1, 4);
    style.progressPlayedColor = QColor(0xff, 0xd0, 0x60);
    style.progressRemainderColor = QColor(0x60, 0x70, 0x80);
    return style;
}

QString name(int index)
{
    return QStringLiteral("Harbour %1").arg(index % textNumbers);
}

QString program(int index)
{
    return QStringLiteral("Evening story %1").arg(index % textNumbers);
}

QString number(int index)
{
    return QString::number(100 + index % 800);
}

QVariantMap content(int index)
{
    return { { QStringLiteral("channelListChannelName"), name(index) },
             { QStringLiteral("channelListChannelNumber"), number(index) },
             { QStringLiteral("channelListChannelQuality"), QStringLiteral("HD") },
             { QStringLiteral("channelListProgramName"), program(index) },
             { QStringLiteral("channelListProgramProgress"), 0.25 } };
}

Change canvasCell(const char *name, const QRect &cell)
{
    return { QString::fromLatin1(name),
             { { QStringLiteral("canvas"), QPixmap::fromImage(placeholderSheet()) },
               { QStringLiteral("cachedChannelRect"), cell } } };
}

QList<Change> changes(int first)
{
    return {
        { QStringLiteral("update() alone"), {}, Change::Kind::Update },
        canvasCell("canvas cell shown", QRect(0, 0, 128, 72)),
        { QStringLiteral("update() with a canvas cell"), {}, Change::Kind::Update },
        change("another canvas cell", "cachedChannelRect", QRect(128, 0, 128, 72)),
        change("logo asked for", "imageSource", channelUrl(first)),
        { QStringLiteral("logo arrived"), {}, Change::Kind::Arrival },
        { QStringLiteral("update() with a logo"), {}, Change::Kind::Update },
        change("same name again", "channelListChannelName", name(first)),
        change("name changed", "channelListChannelName", name(first + 1)),
        change("programme changed", "channelListProgramName", program(first + 1)),
        change("number changed", "channelListChannelNumber", number(first + 1)),
        change("quality changed", "channelListChannelQuality", QStringLiteral("SD")),
        change("name's colour changed", "channelNameColor", QColor(0xff, 0xd0, 0x60)),
        change("progress moved", "channelListProgramProgress", 0.5),
        change("progress moved by less than a pixel", "channelListProgramProgress", 0.5001),
        change("live switched on", "channelListChannelLive", true),
        { QStringLiteral("update() while live"), {}, Change::Kind::Update },
        change("progress moved while live", "channelListProgramProgress", 0.75),
        change("live switched off", "channelListChannelLive", false),
        change("lock shown", "channelListLockIconVisible", true),
        change("lock hidden", "channelListLockIconVisible", false),
    };
}

} // namespace

Subject channelRow()
{
    const auto style = styleObject<design_system::PlayerTvChannelItemQmlStyle>(channelStyle());
    Subject subject;
    subject.key = QStringLiteral("channelRow");
    subject.style = style;
    subject.pictureProperty = QStringLiteral("imageSource");
    subject.content = content;
    subject.forms = { moduleForm("TvChannelViewDelegate { width: 560; height: 96 }", style),
                      plainForm("ChannelRow"), controlsForm("ChannelRow") };
    subject.changes = changes;
    return subject;
}

} // namespace stbbench
