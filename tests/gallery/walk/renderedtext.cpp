// SPDX-License-Identifier: MIT
#include "renderedtext.h"

#include "accessibletree.h"
#include "gallerywindow.h"
#include "testkit/contrast.h"
#include "testkit/nodes.h"
#include "testkit/stage.h"

#include <design_system/playertvchannelitemstyle.h>

#include <QtCore/qhash.h>
#include <QtGui/qmatrix4x4.h>
#include <QtGui/qregion.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qsgimagenode.h>
#include <QtQuick/qsgnode.h>

#include <functional>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/*! A text, or part of one, in a single colour. */
struct Ink
{
    QString what;
    QRect place; // in the window
    QColor color; // with the opacity of its item
    std::function<void(bool)> show;
    bool isIcon = false;
};

// How much of a pixel the text covers for the pixel to be the text's, and of its best one to be seen as it is.
constexpr double partOfText = 0.5;
constexpr double fullColor = 0.75;
constexpr double anyColor = 0.1;

double effectiveOpacity(const QQuickItem *item)
{
    double opacity = 1;
    for (; item; item = item->parentItem())
        opacity *= item->opacity();
    return opacity;
}

QColor withOpacity(QColor color, double opacity)
{
    color.setAlphaF(color.alphaF() * float(opacity));
    return color;
}

QString ownerName(const QQuickItem *item)
{
    QString name = QLatin1StringView(item->metaObject()->className()).toString();
    for (const QQuickItem *parent = item->parentItem(); parent; parent = parent->parentItem()) {
        const QString type = QLatin1StringView(parent->metaObject()->className()).toString();
        if (const auto end = type.indexOf("_QMLTYPE"_L1); end > 0 && type != name)
            return name.section("_QML"_L1, 0, 0) + " in "_L1 + type.left(end);
    }
    return name;
}

std::optional<Ink> inkOfTextItem(QQuickItem *item)
{
    const bool isInput = item->inherits("QQuickTextInput");
    if (!isInput && !item->inherits("QQuickText"))
        return {};
    const QString text = item->property(isInput ? "displayText" : "text").toString();
    if (text.trimmed().isEmpty())
        return {};
    const double own = item->opacity();
    return Ink { u"\"%1\" (%2)"_s.arg(text.section(QChar(0x9c), 0, 0), ownerName(item)),
                 visibleRect(item).toAlignedRect(),
                 withOpacity(item->property("color").value<QColor>(), effectiveOpacity(item)),
                 [item, own](bool show) { item->setOpacity(show ? own : 0); }, false };
}

// The one colour of all that is painted in \a pixmap, if it has one and is not a plain area.
std::optional<QColor> onlyColor(const QPixmap &pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    std::optional<QRgb> color;
    bool hasHoles = false;
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            const QRgb pixel = image.pixel(column, row);
            hasHoles = hasHoles || qAlpha(pixel) == 0;
            if (qAlpha(pixel) < 200)
                continue;
            const QRgb first = color.value_or(pixel);
            color = first;
            if (std::abs(qRed(pixel) - qRed(first)) + std::abs(qGreen(pixel) - qGreen(first))
                        + std::abs(qBlue(pixel) - qBlue(first))
                > 12)
                return {};
        }
    }
    if (!color || !hasHoles)
        return {};
    return QColor::fromRgb(*color);
}

/*!
    Whether \a rect, in \a item, is where a logo is shown: a channel's, or on a tile that of who has the rights. Logos are
    pictures, which come as they are.
*/
bool isLogoPlace(const QQuickItem *item, const QRectF &rect)
{
    if (item->inherits("StbTvChannelViewDelegate")) {
        const auto *style = item->property("style").value<design_system::PlayerTvChannelItemQmlStyle *>();
        return style && QRectF(style->style().logoRect).contains(rect.center())
               && rect.height() > 0.3 * style->style().logoRect.height();
    }
    const QRectF picture = item->property("customFocusRect").toRectF();
    return item->inherits("StbVodTile") && picture.contains(rect.center())
           && rect.center().x() > picture.center().x() && rect.center().y() > picture.center().y();
}

QList<Ink> inksOfControl(QQuickItem *item)
{
    QList<Ink> inks;
    QSGNode *root = stbtest::paintNode(item);
    const QList<stbtest::NodeInfo> nodes = stbtest::nodeTree(root);
    for (const stbtest::NodeInfo &node : nodes) {
        if (node.type != "Image"_L1 || node.pixmap.isNull() || node.rect.isEmpty())
            continue;
        const std::optional<QColor> color = onlyColor(node.pixmap);
        if (!color)
            continue;
        QMatrix4x4 matrix;
        double opacity = effectiveOpacity(item);
        for (QSGNode *above = node.node->parent(); above && above != root->parent(); above = above->parent()) {
            if (above->type() == QSGNode::TransformNodeType)
                matrix = static_cast<QSGTransformNode *>(above)->matrix() * matrix;
            if (above->type() == QSGNode::OpacityNodeType)
                opacity *= static_cast<QSGOpacityNode *>(above)->opacity();
        }
        auto *image = static_cast<QSGImageNode *>(node.node);
        const QRectF rect = node.rect;
        const QRectF own = matrix.mapRect(rect);
        if (isLogoPlace(item, own))
            continue;
        const QRectF place = item->mapRectToScene(own);
        // What a control paints may go beyond its own size, but not beyond what cuts it off.
        QRectF seen = place & QRectF(QPointF(), item->window()->size());
        for (const QQuickItem *parent = item->parentItem(); parent; parent = parent->parentItem()) {
            if (parent->clip())
                seen &= parent->mapRectToScene(parent->clipRect());
        }
        inks.append({ u"%1 at %2,%3"_s.arg(ownerName(item)).arg(rect.x()).arg(rect.y()), seen.toAlignedRect(),
                      withOpacity(*color, opacity),
                      [image, rect](bool show) { image->setRect(show ? rect : QRectF()); },
                      node.pixmap.width() == node.pixmap.height() });
    }
    return inks;
}

QList<Ink> inksOf(const QQuickWindow *window)
{
    QList<Ink> inks;
    const QList<QQuickItem *> items = visibleItems(window);
    for (QQuickItem *item : items) {
        if (!item->isEnabled())
            continue;
        if (const std::optional<Ink> ink = inkOfTextItem(item))
            inks.append(*ink);
        else if (isModuleControl(item))
            inks += inksOfControl(item);
    }
    return inks;
}

// How much of the way from \a behind to \a full \a seen is.
double coverage(QRgb seen, QRgb behind, QRgb full)
{
    const auto product = [](int a, int b, int c, int d, int e, int f) {
        return double(a * b + c * d + e * f);
    };
    const int red = qRed(full) - qRed(behind);
    const int green = qGreen(full) - qGreen(behind);
    const int blue = qBlue(full) - qBlue(behind);
    const double length = product(red, red, green, green, blue, blue);
    if (length < 1)
        return 0;
    return product(qRed(seen) - qRed(behind), red, qGreen(seen) - qGreen(behind), green,
                   qBlue(seen) - qBlue(behind), blue)
           / length;
}

/*! Where what goes on beyond an edge fades out. */
QRegion fades(const QQuickWindow *window)
{
    QRegion region;
    const QList<QQuickItem *> items = visibleItems(window);
    for (const QQuickItem *item : items) {
        if (item->objectName() == "edgeFade"_L1 || item->inherits("stbgeneric::HorizontalFadeEffect"))
            region += visibleRect(item).toAlignedRect();
    }
    return region;
}

/*! The picture as it is, and with nothing of the texts; both have the format RGB32. */
struct Pictures
{
    QImage shown;
    QImage behind;
    QRegion faded;
    // Texts from the top to the bottom: where one is seen, none below it is.
    std::vector<bool> taken;
};

const QRgb *line(const QImage &image, int row)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(row)); // NOLINT(*-reinterpret-cast)
}

std::optional<TextFigure> measure(const Ink &ink, Pictures &pictures)
{
    double most = 0;
    double smallest = 21;
    double asSeen = 1;
    int pixels = 0;
    int ofOneColor = 0; // could not be seen even if nothing were in front of it
    const QRect place = ink.place & pictures.shown.rect();
    const bool isFaded = pictures.faded.intersects(place);
    for (int row = place.top(); row <= place.bottom(); ++row) {
        const QRgb *shown = line(pictures.shown, row);
        const QRgb *behind = line(pictures.behind, row);
        const size_t begin = size_t(row) * size_t(pictures.shown.width());
        for (int column = place.left(); column <= place.right(); ++column) {
            if (pictures.taken[begin + size_t(column)]
                || (isFaded && pictures.faded.contains(QPoint(column, row))))
                continue;
            const QRgb seen = shown[column];
            const QRgb below = behind[column];
            ++pixels;
            const QColor full = stbtest::blended(ink.color, QColor::fromRgb(below));
            if (seen == below) {
                ofOneColor += qAbs(qGray(full.rgb()) - qGray(below)) < 8 ? 1 : 0;
                continue;
            }
            pictures.taken[begin + size_t(column)] = true;
            const double part = coverage(seen, below, full.rgb());
            most = std::max(most, part);
            asSeen = std::max(asSeen, stbtest::contrast(QColor::fromRgb(seen), QColor::fromRgb(below)));
            if (part >= partOfText)
                smallest = std::min(smallest, stbtest::contrast(full, QColor::fromRgb(below)));
        }
    }
    if (most < anyColor) { // hidden behind something else, or of the colour of what is behind it
        if (10 * ofOneColor <= 9 * pixels)
            return {};
        return TextFigure { ink.what, 1, false, ink.isIcon };
    }
    if (most < fullColor)
        return TextFigure { ink.what, asSeen, true, ink.isIcon };
    return TextFigure { ink.what, smallest, false, ink.isIcon };
}

// Keys of the keyboard paint ground and text into one picture: most of it is ground, what differs most is text.
TextFigure measureKey(const QQuickItem *key, const QImage &shown)
{
    QHash<QRgb, int> counts;
    const QRect place = visibleRect(key).toAlignedRect().adjusted(3, 3, -3, -3) & shown.rect();
    for (int row = place.top(); row <= place.bottom(); ++row) {
        for (int column = place.left(); column <= place.right(); ++column)
            ++counts[shown.pixel(column, row)];
    }
    if (counts.isEmpty())
        return { u"key"_s, 21, true, false };
    const auto ground = std::max_element(counts.cbegin(), counts.cend());
    double largest = 1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        largest = std::max(largest,
                           stbtest::contrast(QColor::fromRgb(it.key()), QColor::fromRgb(ground.key())));
    return { u"key \"%1\""_s.arg(key->property("name").toString()), largest, false, false };
}

} // namespace

QList<TextFigure> textFigures(GalleryWindow &window)
{
    const QImage shown = window.picture();
    const QList<Ink> inks = inksOf(window.window());
    for (const Ink &ink : inks)
        ink.show(false);
    const QImage behind = window.window()->grabWindow();
    for (const Ink &ink : inks)
        ink.show(true);
    if (const QString change = window.changeFrom(shown); !change.isEmpty())
        qWarning("The texts are not what they were before: %s", qPrintable(change));

    Pictures pictures { shown.convertToFormat(QImage::Format_RGB32),
                        behind.convertToFormat(QImage::Format_RGB32), fades(window.window()),
                        std::vector<bool>(size_t(shown.width()) * size_t(shown.height())) };
    QList<TextFigure> figures;
    for (auto ink = inks.crbegin(); ink != inks.crend(); ++ink) {
        if (const std::optional<TextFigure> figure = measure(*ink, pictures))
            figures.append(*figure);
    }
    const QList<QQuickItem *> items = visibleItems(window.window());
    for (const QQuickItem *item : items) {
        if (item->inherits("stbgeneric::KeyboardKey") && item->isEnabled())
            figures.append(measureKey(item, shown));
    }
    return figures;
}
