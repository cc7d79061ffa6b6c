// SPDX-License-Identifier: MIT
#include "controls/tiles/stbexpandabletile_p.h"

#include "controls/propertysetters.h"
#include "controls/wholepixels.h"
#include "plugin/qmlsettings.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

#include <design_system/qmldesignsystem.h>

#include <algorithm>
#include <cmath>

using namespace qml_basic_plugin;

namespace {

// In doubles: the corners of a QRect may be as far apart as integers can be.
QRectF floatRect(const QRect &rect)
{
    if (!rect.isValid())
        return QRectF(); // some adaptations would paint a negative size turned round
    const double left = rect.left();
    const double top = rect.top();
    return QRectF(left, top, rect.right() - left + 1, rect.bottom() - top + 1);
}

bool hasBorder(const QPen &pen)
{
    return pen.color().isValid() && pen.widthF() > 0;
}

} // namespace

StbExpandableTilePrivate::StbExpandableTilePrivate() = default;
StbExpandableTilePrivate::~StbExpandableTilePrivate() = default;

StbExpandableTile::StbExpandableTile(QQuickItem *parent)
    : StbExpandableTile(*new StbExpandableTilePrivate, parent)
{
}

StbExpandableTile::StbExpandableTile(StbExpandableTilePrivate &dd, QQuickItem *parent)
    : QQuickItem(dd, parent)
{
    setFlag(ItemHasContents);
}

StbExpandableTile::~StbExpandableTile() = default;

QRect StbExpandableTile::customFocusRect() const
{
    Q_D(const StbExpandableTile);
    return d->m_customFocusRect;
}

void StbExpandableTile::setCustomFocusRect(const QRect &rect)
{
    Q_D(StbExpandableTile);
    if (d->m_customFocusRect != rect)
        d->m_customFocusRect = rect;
}

QBindable<QRect> StbExpandableTile::bindableCustomFocusRect()
{
    Q_D(StbExpandableTile);
    return QBindable<QRect>(&d->m_customFocusRect);
}

design_system::TileQmlStyle *StbExpandableTile::style() const
{
    Q_D(const StbExpandableTile);
    return d->m_style.get();
}

void StbExpandableTile::setStyle(design_system::TileQmlStyle *style)
{
    Q_D(StbExpandableTile);
    if (d->m_style.get() == style)
        return;
    d->m_style.set(style, this, [this] {
        Q_EMIT styleChanged();
        update();
    });
    Q_EMIT styleChanged();
    if (d->m_style)
        d->processStyleChanged(d->m_style->style());
    d->updateGeometry();
    update();
}

void StbExpandableTile::resetStyle()
{
    setStyle(nullptr);
}

QUrl StbExpandableTile::imageSource() const
{
    Q_D(const StbExpandableTile);
    return d->m_imageSource;
}

void StbExpandableTile::setImageSource(const QUrl &source)
{
    Q_D(StbExpandableTile);
    if (assign(this, d->m_imageSource, source, &StbExpandableTile::imageSourceChanged)
        && isComponentComplete())
        d->loadImage();
}

QColor StbExpandableTile::backgroundColor() const
{
    Q_D(const StbExpandableTile);
    return d->m_backgroundColor;
}

void StbExpandableTile::setBackgroundColor(const QColor &color)
{
    Q_D(StbExpandableTile);
    assign(this, d->m_backgroundColor, color, &StbExpandableTile::backgroundColorChanged);
}

void StbExpandableTile::processImageReceived()
{
    Q_D(StbExpandableTile);
    if (d->m_fadeEnabled && d->m_fadeTimeLine.state() != QTimeLine::Running) {
        d->m_imageOpacity = 0.0;
        d->m_fadeTimeLine.setCurrentTime(0);
        d->m_fadeTimeLine.start();
    }
    update();
}

void StbExpandableTile::processStateChanged(const QString &state)
{
    Q_D(StbExpandableTile);
    if (!d->m_style)
        return;
    QTimeLine &timeLine = d->m_focusTimeLine;
    const bool focused = state == QLatin1String("focused");
    if (!focused && state != QLatin1String("normal"))
        return;
    timeLine.setDirection(focused ? QTimeLine::Forward : QTimeLine::Backward);
    if (timeLine.state() == QTimeLine::Running)
        return;
    timeLine.setCurrentTime(focused ? 0 : timeLine.duration());
    timeLine.start();
}

void StbExpandableTile::processValueChanged(double value)
{
    Q_D(StbExpandableTile);
    if (sender() == &d->m_fadeTimeLine) {
        d->m_imageOpacity = value; // without a style too: a picture must not stay half transparent
        update();
    } else if (sender() == &d->m_focusTimeLine && d->m_style) {
        setCustomFocusRect(d->expandedRect(d->m_style->style().tileRect, value));
    }
}

void StbExpandableTile::componentComplete()
{
    Q_D(StbExpandableTile);
    QQuickItem::componentComplete();
    d->applyStyleSize(); // a binding or an anchor may have written another one since
    if (d->m_imageSource.isValid())
        d->loadImage();
    connect(this, &QQuickItem::stateChanged, this, &StbExpandableTile::processStateChanged,
            Qt::UniqueConnection);
    d->connectTimeLines();
}

void StbExpandableTilePrivate::connectTimeLines()
{
    Q_Q(StbExpandableTile);
    const qml::QmlSettings *settings = qmlSettings(q);
    const design_system::QmlDesignSystem *design = settings ? designSystem(q) : nullptr;
    int focusDuration = 1;
    if (design) {
        const design_system::AnimationSettings durations = design->animationSettings();
        if (settings->focusingAnimationsEnabled())
            focusDuration = std::max(durations.duration, 1);
        m_fadeEnabled = settings->fadeAnimationsEnabled() && durations.fadeDuration > 0;
        if (m_fadeEnabled) {
            m_fadeTimeLine.setDuration(durations.fadeDuration);
            QObject::connect(&m_fadeTimeLine, &QTimeLine::valueChanged, q,
                             &StbExpandableTile::processValueChanged);
        }
    }
    m_focusTimeLine.setDuration(focusDuration);
    QObject::connect(&m_focusTimeLine, &QTimeLine::valueChanged, q, &StbExpandableTile::processValueChanged);
}

void StbExpandableTilePrivate::updateGeometry()
{
    if (!m_style)
        return;
    const Style style = m_style->style();
    applyStyleSize();
    m_customFocusRect = style.tileRect;
    const QRect rest = m_customFocusRect;
    const QRect focused = style.focusedRect;
    m_leftFocusMargin = wholePixels(std::abs(double(focused.left())));
    m_topFocusMargin = wholePixels(std::abs(double(focused.top())));
    m_rightFocusMargin = wholePixels(double(focused.right()) - rest.right());
    m_bottomFocusMargin = wholePixels(double(focused.bottom()) - rest.bottom());
}

void StbExpandableTilePrivate::applyStyleSize()
{
    if (!m_style)
        return;
    const QSizeF size = floatRect(m_style->style().tileRect).size();
    const bool changed = size != QSizeF(width, height);
    width = size.width();
    height = size.height();
    if (changed)
        dirty(Size); // what the scene graph derives from it: clipping, the origin of a scaling
}

QRect StbExpandableTilePrivate::expandedRect(const QRect &tileRect, double progress) const
{
    const auto moved = [progress](int edge, int margin) {
        return wholePixels(edge + std::round(margin * progress));
    };
    return QRect(QPoint(moved(tileRect.left(), -m_leftFocusMargin), moved(tileRect.top(), -m_topFocusMargin)),
                 QPoint(moved(tileRect.right(), m_rightFocusMargin),
                        moved(tileRect.bottom(), m_bottomFocusMargin)));
}

void StbExpandableTilePrivate::customFocusRectChanged()
{
    Q_Q(StbExpandableTile);
    Q_EMIT q->customFocusRectChanged();
    q->update();
}

void StbExpandableTilePrivate::loadImage()
{
    Q_Q(StbExpandableTile);
    const bool loading = m_poster.load(q, m_imageSource, SLOT(processImageReceived()));
    // Nothing to show, nothing to fade: the next picture would find the fade under way and pop in.
    if (!loading && !m_poster.size().isEmpty())
        q->processImageReceived();
}

void StbExpandableTilePrivate::processStyleChanged(const Style &style)
{
    Q_UNUSED(style)
}

QSGNode *StbExpandableTilePrivate::updateExtendedNodes(const Style &style, QSGNode *node)
{
    Q_UNUSED(style)
    return node;
}

void StbExpandableTilePrivate::forgetNodes()
{
    m_hasOpacityNode = false;
    m_hasImageNode = false;
    m_hasBackgroundNode = false;
    m_hasFrameNode = false;
}

QSGNode *StbExpandableTilePrivate::createRoot()
{
    forgetNodes();
    return createRectangleNode(sceneGraphContext(), Qt::transparent, nullptr, nullptr);
}

void StbExpandableTilePrivate::updateBackground(ChildNodes &children, const Style &style, bool wanted)
{
    const QColor color = visibleColor(m_backgroundColor.isValid() ? m_backgroundColor : style.backgroundColor);
    auto *node = children.place<QSGRectangleNode>(wanted, m_hasBackgroundNode,
                                                  [&](QSGNode *root, QSGNode *before) {
                                                      return createRectangleNode(sceneGraphContext(), color,
                                                                                 root, before);
                                                  });
    if (!node)
        return;
    setNodeColor(node, color);
    setNodeRect(node, floatRect(m_customFocusRect));
}

void StbExpandableTilePrivate::setFading(QSGNode *root, bool fading)
{
    if (!m_hasImageNode || m_hasOpacityNode == fading)
        return;
    QSGNode *shown = root->childAtIndex(m_hasBackgroundNode ? 1 : 0);
    if (fading) {
        auto *opacityNode = new QSGOpacityNode;
        root->insertChildNodeBefore(opacityNode, shown);
        root->removeChildNode(shown);
        opacityNode->appendChildNode(shown);
    } else {
        QSGNode *imageNode = shown->firstChild();
        shown->removeChildNode(imageNode);
        root->insertChildNodeBefore(imageNode, shown);
        root->removeChildNode(shown);
        delete shown;
    }
    m_hasOpacityNode = fading;
}

void StbExpandableTilePrivate::updatePicture(ChildNodes &children, QSGTexture *texture)
{
    const bool fading = m_imageOpacity < 1.0;
    const auto create = [&](QSGNode *root, QSGNode *before) -> QSGNode * {
        m_hasOpacityNode = fading;
        if (!fading)
            return createPictureNode(sceneGraphContext(), texture, root, before);
        auto *opacityNode = new QSGOpacityNode;
        createPictureNode(sceneGraphContext(), texture, opacityNode, nullptr);
        if (before)
            root->insertChildNodeBefore(opacityNode, before);
        else
            root->appendChildNode(opacityNode);
        return opacityNode;
    };
    if (m_poster.takeReloaded())
        children.place<QSGNode>(false, m_hasImageNode, create); // its texture dies with this frame
    QSGNode *node = children.place<QSGNode>(texture != nullptr, m_hasImageNode, create);
    if (!node) {
        m_hasOpacityNode = false;
        return;
    }
    if (m_hasOpacityNode)
        static_cast<QSGOpacityNode *>(node)->setOpacity(m_imageOpacity);
    setNodeRect(static_cast<QSGImageNode *>(m_hasOpacityNode ? node->firstChild() : node),
                floatRect(m_customFocusRect));
}

void StbExpandableTilePrivate::updateFrame(ChildNodes &children, const Style &style)
{
    const bool wanted = style.overlayColor.isValid() || hasBorder(style.borderPen);
    auto *node = children.place<
            QSGInternalRectangleNode>(wanted, m_hasFrameNode, [&](QSGNode *root, QSGNode *before) {
        QSGInternalRectangleNode *frame = createInternalRectangleNode(sceneGraphContext(), root, before);
        frame->setColor(visibleColor(style.overlayColor));
        if (hasBorder(style.borderPen) && style.borderPen.widthF() >= 1) {
            frame->setPenColor(style.borderPen.color());
            frame->setPenWidth(style.borderPen.widthF());
        }
        return frame;
    });
    if (!node)
        return;
    node->setRect(floatRect(m_customFocusRect)); // this kind of node compares by itself
    node->update();
}

QSGNode *StbExpandableTile::updatePaintNode(QSGNode *oldNode, QQuickItem::UpdatePaintNodeData *)
{
    Q_D(StbExpandableTile);
    if (!d->m_style || !(width() > 0) || !(height() > 0)) {
        delete oldNode;
        return nullptr;
    }
    auto *root = static_cast<QSGRectangleNode *>(oldNode ? oldNode : d->createRoot());
    const design_system::TileStyle style = d->m_style->style();
    QSGTexture *texture = d->m_poster.texture(d->sceneGraphRenderContext(), window());

    d->setFading(root, d->m_imageOpacity < 1.0);
    ChildNodes children(root);
    d->updateBackground(children, style, !texture || d->m_imageOpacity < 1.0);
    d->updatePicture(children, texture);
    d->updateFrame(children, style);
    d->updateExtendedNodes(style, children.last());
    setNodeRect(root, QRectF(0, 0, width(), height()));
    return root;
}
