// SPDX-License-Identifier: MIT
#include "controls/buttons/stbbutton_p.h"

#include "controls/buttons/stbbuttonlayout.h"
#include "controls/propertysetters.h"
#include "controls/wholepixels.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

#include <QtQuick/qquickwindow.h>

using namespace qml_basic_plugin;

namespace {

// The extent between two inclusive corners; style numbers may be anything an int can be.
double extent(int first, int last)
{
    return double(qint64(last) - first + 1);
}

} // namespace

StbButtonPrivate::StbButtonPrivate()
    : m_widthObserver(width.addNotifier([this] { relayout(); }))
    , m_heightObserver(height.addNotifier([this] { relayout(); }))
{
}

StbButtonPrivate::~StbButtonPrivate() = default;

StbButton::StbButton(QQuickItem *parent)
    : StbButton(*new StbButtonPrivate, parent)
{
}

StbButton::StbButton(StbButtonPrivate &dd, QQuickItem *parent)
    : QQuickItem(dd, parent)
{
    setFlag(ItemHasContents);
}

StbButton::~StbButton() = default;

design_system::ButtonQmlStyle *StbButton::style() const
{
    Q_D(const StbButton);
    return d->m_style.get();
}

void StbButton::setStyle(design_system::ButtonQmlStyle *style)
{
    Q_D(StbButton);
    if (d->m_style.get() == style)
        return;
    d->m_style.set(style, this, [this, d] {
        Q_EMIT styleChanged();
        d->relayout();
    });
    Q_EMIT styleChanged();
    if (d->m_style)
        d->processStyleChanged(d->m_style->style());
    d->relayout();
}

void StbButton::resetStyle()
{
    setStyle(nullptr);
}

QString StbButton::leftIconSource() const
{
    Q_D(const StbButton);
    return d->m_leftIcon.source();
}

void StbButton::setLeftIconSource(const QString &source)
{
    Q_D(StbButton);
    if (d->setIconSource(d->m_leftIcon, source, &StbButton::leftIconSourceChanged))
        d->relayout();
}

QString StbButton::rightIconSource() const
{
    Q_D(const StbButton);
    return d->m_rightIcon.source();
}

void StbButton::setRightIconSource(const QString &source)
{
    Q_D(StbButton);
    if (d->setIconSource(d->m_rightIcon, source, &StbButton::rightIconSourceChanged))
        d->relayout();
}

QString StbButton::titleText() const
{
    Q_D(const StbButton);
    return d->m_title.text();
}

void StbButton::setTitleText(const QString &text)
{
    Q_D(StbButton);
    if (assignText(this, d->m_title, text, &StbButton::titleChanged))
        d->relayout();
}

QString StbButton::subtitleText() const
{
    Q_D(const StbButton);
    return d->m_subtitle.text();
}

void StbButton::setSubtitleText(const QString &text)
{
    Q_D(StbButton);
    if (assignText(this, d->m_subtitle, text, &StbButton::subtitleChanged))
        d->relayout();
}

bool StbButton::isFocused() const
{
    Q_D(const StbButton);
    return d->m_focused;
}

void StbButton::setFocused(bool focused)
{
    Q_D(StbButton);
    if (assign(this, d->m_focused, focused, &StbButton::focusedChanged))
        update();
}

bool StbButton::isChecked() const
{
    Q_D(const StbButton);
    return d->m_checked;
}

void StbButton::setChecked(bool checked)
{
    Q_D(StbButton);
    if (assign(this, d->m_checked, checked, &StbButton::checkedChanged))
        update();
}

bool StbButton::isCheckable() const
{
    return isChecked(); // on purpose: nothing asks what was assigned
}

void StbButton::setCheckable(bool checkable)
{
    Q_D(StbButton);
    if (assign(this, d->m_checkable, checkable, &StbButton::checkableChanged))
        update();
}

bool StbButton::isFixedWidth() const
{
    Q_D(const StbButton);
    return d->isFixedSize();
}

void StbButton::setIsFixedWidth(bool fixed)
{
    Q_D(StbButton);
    if (d->m_fixedWidthSet && d->m_fixedWidth == fixed)
        return;
    d->m_fixedWidth = fixed;
    d->m_fixedWidthSet = true;
    Q_EMIT fixedWidthChanged();
    d->relayout();
}

bool StbButton::isThrobberVisible() const
{
    Q_D(const StbButton);
    return d->m_throbberVisible;
}

void StbButton::setThrobberVisible(bool visible)
{
    Q_D(StbButton);
    if (!assign(this, d->m_throbberVisible, visible, &StbButton::throbberVisibleChanged))
        return;
    if (!d->m_throbber)
        d->createThrobber();
    d->m_throbberNeedsDraw = d->m_throbberVisible;
    d->runThrobber();
    if (!d->m_throbberVisible)
        d->m_throbber->releasePixmap();
    update();
}

bool StbButton::forceTitleColor() const
{
    Q_D(const StbButton);
    return d->m_forceTitleColor;
}

void StbButton::setForceTitleColor(bool force)
{
    Q_D(StbButton);
    if (assign(this, d->m_forceTitleColor, force, &StbButton::forceTitleColorChanged))
        update();
}

QColor StbButton::titleForcedColor() const
{
    Q_D(const StbButton);
    return d->m_titleForcedColor;
}

void StbButton::setTitleForcedColor(const QColor &color)
{
    Q_D(StbButton);
    if (assign(this, d->m_titleForcedColor, color, &StbButton::titleForcedColorChanged))
        update();
}

qreal StbButton::leftPadding() const
{
    Q_D(const StbButton);
    return d->m_leftPadding;
}

void StbButton::setLeftPadding(qreal padding)
{
    Q_D(StbButton);
    if (assign(this, d->m_leftPadding, padding, &StbButton::leftPaddingChanged))
        d->relayout();
}

qreal StbButton::rightPadding() const
{
    Q_D(const StbButton);
    return d->m_rightPadding;
}

void StbButton::setRightPadding(qreal padding)
{
    Q_D(StbButton);
    if (assign(this, d->m_rightPadding, padding, &StbButton::rightPaddingChanged))
        d->relayout();
}

qreal StbButton::roundingRadius() const
{
    return 0;
}

void StbButton::setRoundingRadius(qreal radius)
{
    Q_UNUSED(radius) // on purpose: buttons have no round corners
}

void StbButton::componentComplete()
{
    QQuickItem::componentComplete();
    connect(this, &QQuickItem::stateChanged, this, &QQuickItem::update);
    connect(this, &QQuickItem::enabledChanged, this, &QQuickItem::update);
}

void StbButton::processThrobberUpdated()
{
    Q_D(StbButton);
    if (!isVisible())
        return;
    d->m_throbberNeedsDraw = true;
    update();
}

bool StbButtonPrivate::setIconSource(IconNodeBuilder &icon, const QString &source,
                                     void (StbButton::*changed)())
{
    Q_Q(StbButton);
    if (icon.source() == source)
        return false;
    const QLatin1String scheme("qrc");
    const QString path = source.startsWith(scheme) ? source.mid(scheme.size()) : source;
    if (path != icon.source()) {
        if (!icon.pixmap().isNull())
            icon.clear(); // else a picture stays when another source follows
        icon.load(path, QColor());
        icon.colorize(QColor()); // clear() leaves a tint behind; reads again only then
    }
    Q_EMIT(q->*changed)();
    return true;
}

void StbButtonPrivate::createThrobber()
{
    Q_Q(StbButton);
    m_throbber = std::make_unique<ThrobberNodeBuilder>();
    QObject::connect(&m_throbber->renderer(), &stbcore::ThrobberRenderer::updated, q,
                     &StbButton::processThrobberUpdated);
    QObject::connect(q, &QQuickItem::visibleChanged, q, [this] { runThrobber(); });
    QObject::connect(q, &QQuickItem::windowChanged, q, [this] { watchWindow(); });
    watchWindow();
}

void StbButtonPrivate::watchWindow()
{
    Q_Q(StbButton);
    QObject::disconnect(m_windowVisibility);
    m_windowVisibility = QMetaObject::Connection();
    if (q->window())
        m_windowVisibility = QObject::connect(q->window(), &QWindow::visibleChanged, q,
                                              [this] { runThrobber(); });
    runThrobber();
}

// The animation runs only where it is seen: a button without a style or a size paints nothing. A window with a
// render control is never shown itself: somebody else shows what it paints.
void StbButtonPrivate::runThrobber()
{
    Q_Q(StbButton);
    const bool seen = window && m_style && q->isVisible() && q->width() > 0 && q->height() > 0
                      && (window->isVisible() || QQuickWindowPrivate::get(window)->renderControl);
    m_throbber->renderer().setRunning(m_throbberVisible && seen);
}

QColor StbButtonPrivate::stateColor(const design_system::StatesColors &colors) const
{
    Q_Q(const StbButton);
    if (!q->isEnabled())
        return colors.disabled;
    if (m_checked)
        return colors.checked;
    return m_focused ? colors.focused : colors.normal;
}

bool StbButtonPrivate::isFixedSize() const
{
    return !m_fixedWidthSet || m_fixedWidth;
}

void StbButtonPrivate::processStyleChanged(const Style &style)
{
    Q_Q(StbButton);
    // With the limit that the lines have already: another one in between would have them laid out again.
    m_title.setupRenderer(style.titleStyle, m_textWidth);
    m_subtitle.setupRenderer(style.subtitleStyle, m_textWidth);
    const double styleWidth = extent(style.size.left(), style.size.right());
    if (isFixedSize() && styleWidth > 0)
        q->setImplicitWidth(styleWidth);
}

void StbButtonPrivate::updateExtendedNodes(const Style &style, QSGNode *lastContentNode)
{
    Q_UNUSED(style)
    Q_UNUSED(lastContentNode)
}

void StbButtonPrivate::layOutTexts(int maxWidth)
{
    m_textWidth = maxWidth;
    for (TextNodeBuilder *line : { &m_title, &m_subtitle }) {
        line->setMaxTextWidth(maxWidth);
        if (!line->text().isEmpty())
            line->relayoutRenderer();
    }
}

StbButtonLayout::Content StbButtonPrivate::measureContent(const Style &style)
{
    Q_Q(StbButton);
    const bool hasTitle = !m_title.text().isEmpty();
    const bool hasSubtitle = !m_subtitle.text().isEmpty();
    StbButtonLayout::Content content;
    content.fixed = isFixedSize();
    content.width = wholePixels(q->width() > 0 ? q->width() : q->implicitWidth());
    content.height = wholePixels(q->height() > 0 ? q->height() : q->implicitHeight());
    content.leftPadding = m_leftPadding;
    content.rightPadding = m_rightPadding;
    content.leftIcon = m_leftIcon.pixmap().size();
    content.rightIcon = m_rightIcon.pixmap().size();
    content.hasTitle = hasTitle;
    content.hasSubtitle = hasSubtitle;
    if (hasTitle || hasSubtitle)
        layOutTexts(content.fixed ? StbButtonLayout::textWidth(style, content) : unlimitedWidth);
    content.title = hasTitle ? m_title.boundingRect().size() : m_titleRect.size();
    content.subtitle = hasSubtitle ? m_subtitle.boundingRect().size() : m_subtitleRect.size();
    return content;
}

void StbButtonPrivate::relayout()
{
    Q_Q(StbButton);
    if (m_throbber)
        runThrobber(); // style and size decide whether it is seen
    const bool hasText = !m_title.text().isEmpty() || !m_subtitle.text().isEmpty();
    if (!m_style || !(hasText || m_leftIcon.isLoadAttempted() || m_rightIcon.isLoadAttempted())) {
        m_leftIconRect = QRect();
        m_rightIconRect = QRect();
        q->update(); // what is painted may have to go
        return;
    }
    const Style style = m_style->style();
    const StbButtonLayout::Content content = measureContent(style);
    const StbButtonLayout layout = StbButtonLayout::compute(style, content);
    m_leftIconRect = layout.leftIcon;
    m_rightIconRect = layout.rightIcon;
    if (content.hasTitle)
        m_titleRect = layout.title;
    if (content.hasSubtitle)
        m_subtitleRect = layout.subtitle;
    // Each may come back here, when the item has no size of its own.
    if (q->implicitWidth() != layout.implicitWidth)
        q->setImplicitWidth(layout.implicitWidth);
    const double styleHeight = extent(style.size.top(), style.size.bottom());
    if (!(q->height() >= 1) && styleHeight > 0) // also when it is no number
        q->setImplicitHeight(styleHeight);
    q->update();
}

QSGNode *StbButtonPrivate::createRoot()
{
    m_leftIconNode = false;
    m_rightIconNode = false;
    m_titleNode = false;
    m_subtitleNode = false;
    m_throbberNode = false;
    return createRectangleNode(sceneGraphContext(), Qt::transparent, nullptr, nullptr);
}

void StbButtonPrivate::updateThrobber(ChildNodes &children)
{
    auto *node = children.place<QSGImageNode>(m_throbberVisible, m_throbberNode,
                                              [this](QSGNode *root, QSGNode *before) {
                                                  return m_throbber->createNode(sceneGraphContext(),
                                                                                sceneGraphRenderContext(),
                                                                                root, before);
                                              });
    if (!node)
        return;
    const int side = StbButtonLayout::throbberSide(height);
    const int penWidth = side / 8;
    if (m_throbber->renderer().penWidth() != penWidth)
        m_throbber->renderer().setPenWidth(penWidth);
    const QRectF rect((width - side) * 0.5, (height - side) * 0.5, side, side);
    // A new picture is empty: without the present frame the throbber would be gone until the next one.
    const bool draw = m_throbberNeedsDraw || children.created() || node->rect().size() != rect.size();
    setNodeRect(node, rect);
    m_throbber->updateNode(node, QSize(side, side), draw);
    m_throbberNeedsDraw = false;
}

void StbButtonPrivate::updateIcon(ChildNodes &children, IconNodeBuilder &icon, bool &present,
                                  const QRect &rect, const design_system::StatesColors &colors)
{
    auto *node = children.place<QSGImageNode>(rect.isValid() && !m_throbberVisible, present,
                                              [&](QSGNode *root, QSGNode *before) {
                                                  return icon.createNode(sceneGraphContext(),
                                                                         sceneGraphRenderContext(), root,
                                                                         before);
                                              });
    if (!node)
        return;
    icon.colorize(stateColor(colors));
    icon.updateNode(node, nullptr);
    placeImageNode(node, rect);
}

void StbButtonPrivate::updateText(ChildNodes &children, TextNodeBuilder &text, bool &present,
                                  const QRect &rect, const QColor &color)
{
    auto *node = children.place<QSGImageNode>(!text.text().isEmpty() && !m_throbberVisible, present,
                                              [&](QSGNode *root, QSGNode *before) {
                                                  return text.createNode(sceneGraphContext(),
                                                                         sceneGraphRenderContext(), root,
                                                                         before);
                                              });
    if (!node)
        return;
    text.updateNode(node, color, nullptr);
    placeImageNode(node, rect);
}

void StbButtonPrivate::updateContent(QSGNode *root, const Style &style)
{
    ChildNodes children(root);
    updateThrobber(children);
    updateIcon(children, m_leftIcon, m_leftIconNode, m_leftIconRect, style.leftIconColors);
    const bool forced = m_forceTitleColor && m_titleForcedColor.isValid();
    updateText(children, m_title, m_titleNode, m_titleRect,
               forced ? m_titleForcedColor : stateColor(style.titleStyle.colors));
    updateText(children, m_subtitle, m_subtitleNode, m_subtitleRect, stateColor(style.subtitleStyle.colors));
    updateIcon(children, m_rightIcon, m_rightIconNode, m_rightIconRect, style.rightIconColors);
    if (!children.last()) {
        while (QSGNode *derived = root->firstChild()) {
            root->removeChildNode(derived);
            delete derived;
        }
    }
    updateExtendedNodes(style, children.last());
}

QSGNode *StbButton::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    Q_D(StbButton);
    if (!d->m_style || !(width() > 0) || !(height() > 0)) {
        delete oldNode;
        return nullptr;
    }
    const design_system::QmlButtonStyle style = d->m_style->style();
    auto *root = static_cast<QSGRectangleNode *>(oldNode ? oldNode : d->createRoot());
    d->updateContent(root, style);
    setNodeColor(root, visibleColor(d->stateColor(style.backgroundColors)));
    setNodeRect(root, QRectF(0, 0, width(), height()));
    return root;
}
