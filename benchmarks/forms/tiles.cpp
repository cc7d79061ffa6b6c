// SPDX-License-Identifier: MIT
#include "forms/pictures.h"
#include "forms/styles.h"

#include <design_system/tilestyle.h>

namespace stbbench {
namespace {

// The forms in qml/ repeat these numbers.
design_system::TileStyle tileStyle()
{
    const QColor blue(0x5c, 0xc2, 0xf2);
    design_system::TileStyle style;
    style.tileRect = QRect(0, 0, 270, 152);
    style.backgroundColor = QColor(0x26, 0x34, 0x45);
    style.focusedRect = QRect(-8, -5, 286, 162);
    style.favouriteIconColor = Qt::white;
    style.captionSpacing = 8;
    style.titleStyle = textStyle(270, 22, 1, Qt::white);
    style.titleColor = Qt::white;
    style.subtitleColor = QColor(0xa0, 0xb0, 0xc0);
    style.subtitleStyle = textStyle(270, 18, 1, style.subtitleColor);
    style.statusStyle = textStyle(270, 18, 1, blue);
    style.statusColor = blue;
    style.ratingColor = QColor(0x10, 0x18, 0x20);
    style.ratingStyle = textStyle(270, 16, 1, style.ratingColor);
    style.ratingBadgeColor = blue;
    style.ratingBadgeOffset = QPoint(8, 8);
    style.ratingBadgePadding = QMargins(8, 2, 8, 2);
    style.rightholderRightMargin = 10;
    style.rightholderBottomMargin = 10;
    style.rightholderLift = 14;
    style.progressBarRect = QRect(10, 0, 250, 6);
    style.progressValueColor = QColor(0xff, 0xd0, 0x60);
    style.progressTrackColor = QColor(0xf4, 0xf7, 0xfa, 0x80);
    return style;
}

QString title(int index)
{
    return QStringLiteral("Evening story number %1 of the north").arg(index % textNumbers);
}

QString subtitle(int index)
{
    return QStringLiteral("Documentary, part %1").arg(index % textNumbers);
}

QString rating(int index)
{
    return QStringLiteral("%1+").arg(10 + index % 80);
}

QVariantMap contentTileContent(int index)
{
    QVariantMap content;
    content.insert(QStringLiteral("itemTitle"), title(index));
    content.insert(QStringLiteral("itemSubtitle"), subtitle(index));
    content.insert(QStringLiteral("itemStatus"), QStringLiteral("Until day %1").arg(index % textNumbers));
    return content;
}

QVariantMap vodTileContent(int index)
{
    QVariantMap content = contentTileContent(index);
    content.insert(QStringLiteral("ratingText"), rating(index));
    content.insert(QStringLiteral("mediaPositionsTimepoint"), 600.0);
    content.insert(QStringLiteral("moviePosterDuration"), 5400.0);
    return content;
}

/*! What happens to a tile; \a own goes in between, while it rests. */
QList<Change> changes(int first, const QList<Change> &own)
{
    const char *rect = "customFocusRect";
    QList<Change> list {
        change("picture asked for", "imageSource", posterUrl(first)),
        { QStringLiteral("picture arrived"), {}, Change::Kind::Arrival },
        { QStringLiteral("update() alone"), {}, Change::Kind::Update },
    };
    list += own;
    // The animation's steps, without its time line: a rectangle at a time.
    list += {
        change("focus, first step", rect, QRect(-1, -1, 272, 154)),
        change("focus, middle", rect, QRect(-4, -3, 278, 157)),
        change("focus, end", rect, QRect(-8, -5, 286, 162)),
        change("same rectangle again", rect, QRect(-8, -5, 286, 162)),
        change("focus gone", rect, QRect(0, 0, 270, 152)),
        change("another picture asked for", "imageSource", posterUrl(first + 1)),
        { QStringLiteral("another picture arrived"), {}, Change::Kind::Arrival },
    };
    return list;
}

QList<Change> captionChanges(int first)
{
    return {
        change("same title again", "itemTitle", title(first)),
        change("title changed", "itemTitle", title(first + 1)),
        change("subtitle changed", "itemSubtitle", subtitle(first + 1)),
        change("made a favourite", "itemIsFavourite", true),
        change("a favourite no more", "itemIsFavourite", false),
    };
}

QList<Change> vodChanges(int first)
{
    return {
        change("logo asked for", "rightholderImageSource", logoUrl(first)),
        { QStringLiteral("logo arrived"), {}, Change::Kind::Arrival },
        change("progress moved", "mediaPositionsTimepoint", 1200.0),
        change("progress complete", "mediaPositionsTimepoint", 5400.0),
        change("progress gone", "mediaPositionsTimepoint", 0.0),
        change("progress back", "mediaPositionsTimepoint", 600.0),
        change("rating changed", "ratingText", rating(first + 1)),
    };
}

Subject tile(const char *key, const char *element, const char *composed)
{
    const auto style = styleObject<design_system::TileQmlStyle>(tileStyle());
    Subject subject;
    subject.key = QString::fromLatin1(key);
    subject.style = style;
    subject.pictureProperty = QStringLiteral("imageSource");
    subject.forms = { moduleForm(element, style), plainForm(composed), controlsForm(composed) };
    return subject;
}

} // namespace

Subject expandableTile()
{
    Subject subject = tile("expandableTile", "ExpandableTile {}", "Tile");
    subject.content = [](int) { return QVariantMap(); };
    subject.changes = [](int first) { return changes(first, {}); };
    return subject;
}

Subject contentTile()
{
    Subject subject = tile("contentTile", "ContentTile {}", "ContentTile");
    subject.content = contentTileContent;
    subject.changes = [](int first) { return changes(first, captionChanges(first)); };
    return subject;
}

Subject vodTile()
{
    Subject subject = tile("vodTile", "VodTile {}", "VodTile");
    subject.content = vodTileContent;
    subject.changes = [](int first) { return changes(first, captionChanges(first) + vodChanges(first)); };
    return subject;
}

} // namespace stbbench
