// SPDX-License-Identifier: MIT
#include "controls/epg/stbtvchannelviewdelegate_p.h"

#include "controls/propertysetters.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

#include <QtCore/qcoreapplication.h>
#include <QtQuick/qsgtexture.h>

using namespace qml_basic_plugin;

namespace {

// The text in a box, its only child.
QSGImageNode *textOf(QSGRectangleNode *box)
{
    return static_cast<QSGImageNode *>(box->firstChild());
}

void fill(QSGRectangleNode *node, const QColor &color, const QRect &rect)
{
    setNodeColor(node, visibleColor(color));
    setNodeRect(node, nodeRect(rect));
}

} // namespace

StbTvChannelViewDelegatePrivate::StbTvChannelViewDelegatePrivate()
{
    m_channelQuality.setCachingEnabled(true); // a few texts that repeat from row to row
}

StbTvChannelViewDelegatePrivate::~StbTvChannelViewDelegatePrivate() = default;

StbTvChannelViewDelegate::StbTvChannelViewDelegate(QQuickItem *parent)
    : QQuickItem(*new StbTvChannelViewDelegatePrivate, parent)
{
    setFlag(ItemHasContents);
}

StbTvChannelViewDelegate::~StbTvChannelViewDelegate() = default;

design_system::PlayerTvChannelItemQmlStyle *StbTvChannelViewDelegate::style() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_style.get();
}

void StbTvChannelViewDelegate::setStyle(design_system::PlayerTvChannelItemQmlStyle *style)
{
    Q_D(StbTvChannelViewDelegate);
    if (d->m_style.get() == style)
        return;
    const auto styleHasChanged = [this, d] {
        d->m_styleDirty = true;
        Q_EMIT styleChanged();
        update();
    };
    d->m_style.set(style, this, styleHasChanged);
    styleHasChanged();
}

void StbTvChannelViewDelegate::resetStyle()
{
    setStyle(nullptr);
}

QUrl StbTvChannelViewDelegate::imageSource() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_imageSource;
}

void StbTvChannelViewDelegate::setImageSource(const QUrl &source)
{
    Q_D(StbTvChannelViewDelegate);
    if (assign(this, d->m_imageSource, source, &StbTvChannelViewDelegate::imageSourceChanged)
        && isComponentComplete())
        d->loadLogo();
}

QString StbTvChannelViewDelegate::channelName() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_channelName.text();
}

void StbTvChannelViewDelegate::setChannelName(const QString &name)
{
    Q_D(StbTvChannelViewDelegate);
    d->setText(d->m_channelName, name, &StbTvChannelViewDelegate::channelNameChanged);
}

QColor StbTvChannelViewDelegate::channelNameColor() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_channelNameColor;
}

void StbTvChannelViewDelegate::setChannelNameColor(const QColor &color)
{
    Q_D(StbTvChannelViewDelegate);
    if (assign(this, d->m_channelNameColor, color, &StbTvChannelViewDelegate::channelNameColorChanged))
        update();
}

QString StbTvChannelViewDelegate::channelNumber() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_channelNumber.text();
}

void StbTvChannelViewDelegate::setChannelNumber(const QString &number)
{
    Q_D(StbTvChannelViewDelegate);
    d->setText(d->m_channelNumber, number, &StbTvChannelViewDelegate::channelNumberChanged);
}

QString StbTvChannelViewDelegate::channelQuality() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_channelQuality.text();
}

void StbTvChannelViewDelegate::setChannelQuality(const QString &quality)
{
    Q_D(StbTvChannelViewDelegate);
    d->setText(d->m_channelQuality, quality, &StbTvChannelViewDelegate::channelQualityChanged);
}

QString StbTvChannelViewDelegate::programName() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_programName.text();
}

void StbTvChannelViewDelegate::setProgramName(const QString &name)
{
    Q_D(StbTvChannelViewDelegate);
    d->setText(d->m_programName, name, &StbTvChannelViewDelegate::programNameChanged);
}

double StbTvChannelViewDelegate::progress() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_progress;
}

void StbTvChannelViewDelegate::setProgress(double progress)
{
    Q_D(StbTvChannelViewDelegate);
    if (assign(this, d->m_progress, progress, &StbTvChannelViewDelegate::progressChanged))
        update();
}

bool StbTvChannelViewDelegate::isLive() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_live;
}

void StbTvChannelViewDelegate::setLive(bool live)
{
    Q_D(StbTvChannelViewDelegate);
    if (d->m_live == live)
        return;
    d->m_live = live;
    d->m_playingText.reset(live ? new TextNodeBuilder : nullptr);
    if (live) {
        d->m_playingText->setText(QCoreApplication::translate("QObject", "PLAYING"));
        d->m_playingIcon.load(QStringLiteral(":/resources/icons/player/playing_content.png"), QColor());
    }
    Q_EMIT liveChanged();
    update();
}

bool StbTvChannelViewDelegate::isLockIconVisible() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_lockIconVisible;
}

void StbTvChannelViewDelegate::setLockIconVisible(bool visible)
{
    Q_D(StbTvChannelViewDelegate);
    if (!assign(this, d->m_lockIconVisible, visible, &StbTvChannelViewDelegate::lockIconVisibleChanged))
        return;
    if (visible)
        d->m_lockIcon.load(QStringLiteral(":/resources/icons/lock_icon_white.png"), QColor());
    update();
}

QRect StbTvChannelViewDelegate::cachedChannelRect() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_cachedChannelRect;
}

void StbTvChannelViewDelegate::setCachedChannelRect(const QRect &rect)
{
    Q_D(StbTvChannelViewDelegate);
    if (!assign(this, d->m_cachedChannelRect, rect, &StbTvChannelViewDelegate::cachedChannelRectChanged))
        return;
    // A cell that is shown has to go when there is none any more.
    if ((d->m_cachedChannelRect.isValid() && !d->m_canvas.isNull())
        || d->m_logoPicture == StbTvChannelViewDelegatePrivate::LogoPicture::CanvasCell)
        update();
}

QPixmap StbTvChannelViewDelegate::canvas() const
{
    Q_D(const StbTvChannelViewDelegate);
    return d->m_canvas;
}

void StbTvChannelViewDelegate::setCanvas(const QPixmap &canvas)
{
    Q_D(StbTvChannelViewDelegate);
    if (!d->m_canvas.isNull() || canvas.isNull())
        return; // the first one stays, on purpose
    d->m_canvas = canvas;
    Q_EMIT canvasChanged();
    if (d->m_cachedChannelRect.isValid())
        update();
}

void StbTvChannelViewDelegate::componentComplete()
{
    Q_D(StbTvChannelViewDelegate);
    QQuickItem::componentComplete();
    if (d->m_imageSource.isValid())
        d->loadLogo();
}

void StbTvChannelViewDelegatePrivate::loadLogo()
{
    Q_Q(StbTvChannelViewDelegate);
    m_logo.load(q, m_imageSource, SLOT(update()));
}

void StbTvChannelViewDelegatePrivate::setText(TextNodeBuilder &builder, const QString &text,
                                              TextSignal changed)
{
    Q_Q(StbTvChannelViewDelegate);
    if (assignText(q, builder, text, changed))
        q->update();
}

// A cell that reached beyond the canvas would leave a hole: the software renderer takes the node for filled.
bool StbTvChannelViewDelegatePrivate::hasCanvasCell() const
{
    return m_cachedChannelRect.isValid() && m_canvas.rect().contains(m_cachedChannelRect);
}

QSGNode *StbTvChannelViewDelegatePrivate::createRoot()
{
    m_logoPresent = false;
    m_lockIconPresent = false;
    m_playingTextPresent = false;
    m_playingIconPresent = false;
    QSGContext *context = sceneGraphContext();
    QSGRenderContext *renderContext = sceneGraphRenderContext();
    QSGNode *root = createRectangleNode(context, Qt::transparent, nullptr, nullptr);
    const auto addRectangle = [&] { return createRectangleNode(context, Qt::transparent, root, nullptr); };
    m_channelNumber.createNode(context, renderContext, addRectangle(), nullptr);
    m_channelQuality.createNode(context, renderContext, addRectangle(), nullptr);
    m_channelName.createNode(context, renderContext, root, nullptr);
    m_programName.createNode(context, renderContext, root, nullptr);
    addRectangle(); // what is played
    addRectangle(); // what remains
    return root;
}

template <typename Builder>
QSGImageNode *StbTvChannelViewDelegatePrivate::placeOptional(ChildNodes &children, bool wanted, bool &present,
                                                             Builder *builder)
{
    return children.place<QSGImageNode>(wanted, present, [&](QSGNode *owner, QSGNode *before) {
        return builder->createNode(sceneGraphContext(), sceneGraphRenderContext(), owner, before);
    });
}

StbTvChannelViewDelegatePrivate::Nodes StbTvChannelViewDelegatePrivate::placeNodes(QSGNode *root)
{
    ChildNodes children(root);
    Nodes nodes {};
    nodes.logo = placeLogo(children);
    nodes.numberBox = children.next<QSGRectangleNode>();
    nodes.qualityBox = children.next<QSGRectangleNode>();
    nodes.name = children.next<QSGImageNode>();
    nodes.program = children.next<QSGImageNode>();
    nodes.progressPlayed = children.next<QSGRectangleNode>();
    nodes.progressRemainder = children.next<QSGRectangleNode>();
    nodes.lockIcon = placeOptional(children, m_lockIconVisible, m_lockIconPresent, &m_lockIcon);
    nodes.playingText = placeOptional(children, m_live, m_playingTextPresent, m_playingText.get());
    nodes.playingIcon = placeOptional(children, m_live, m_playingIconPresent, &m_playingIcon);
    return nodes;
}

QSGImageNode *StbTvChannelViewDelegatePrivate::placeLogo(ChildNodes &children)
{
    Q_Q(StbTvChannelViewDelegate);
    QSGTexture *texture = m_logo.texture(sceneGraphRenderContext(), q->window());
    const bool reloaded = m_logo.takeReloaded();
    const auto create = [this](QSGNode *owner, QSGNode *before) {
        QSGImageNode *made = createEmptyImageNode(sceneGraphContext(), sceneGraphRenderContext(), owner,
                                                  before);
        made->setFiltering(QSGTexture::Linear);
        return made;
    };
    auto *node = children.place<QSGImageNode>(texture || hasCanvasCell(), m_logoPresent, create);
    if (!node || children.created())
        m_logoPicture = LogoPicture::None;
    if (node && texture && (m_logoPicture != LogoPicture::Logo || reloaded)) {
        node->setTexture(texture); // deletes the canvas's, which the node owns
        node->setOwnsTexture(false);
        node->setSourceRect(QRectF()); // all of it
        m_logoPicture = LogoPicture::Logo;
    } else if (node && !texture) {
        showCanvasCell(node);
    }
    return node;
}

void StbTvChannelViewDelegatePrivate::showCanvasCell(QSGImageNode *node)
{
    if (m_logoPicture != LogoPicture::CanvasCell) {
        if (!node->ownsTexture()) {
            node->setTexture(sceneGraphRenderContext()->createTexture(QImage(),
                                                                      QSGRenderContext::CreateTexture_Alpha));
            node->setOwnsTexture(true);
        }
        updateTextureInNode(node, m_canvas);
        m_logoPicture = LogoPicture::CanvasCell;
    }
    const QRectF cell(m_cachedChannelRect);
    if (node->sourceRect() == cell)
        return;
    node->setSourceRect(cell);
    node->markDirty(QSGNode::DirtyMaterial); // the software adaptation's setter does not
}

StbTvChannelViewDelegatePrivate::Layout::Content StbTvChannelViewDelegatePrivate::updateTexts(
        const Nodes &nodes, const Style &style, bool setUp)
{
    Q_Q(StbTvChannelViewDelegate);
    Layout::Content content;
    content.row = QSize(Layout::wholePixels(q->width()), Layout::wholePixels(q->height()));
    const int textWidth = Layout::textWidth(style, content.row.width());
    setUp = setUp || textWidth != m_textWidth;
    m_textWidth = textWidth;
    if (setUp) {
        m_channelNumber.setupRenderer(style.channelNumberTextStyle, style.channelNumberTextStyle.rect.width());
        // Without room there is nothing to share: the rows to come would find no text under theirs.
        m_channelQuality.setCachingEnabled(textWidth > 0);
        m_channelQuality.setupRenderer(style.qualityTextStyle, textWidth);
        m_programName.setupRenderer(style.programNameTextStyle, textWidth);
    }
    m_channelNumber.updateNode(textOf(nodes.numberBox), style.channelNumberTextStyle.color, nullptr);
    m_channelQuality.updateNode(textOf(nodes.qualityBox), style.qualityTextStyle.color, nullptr);
    m_programName.updateNode(nodes.program, style.programNameTextStyle.color, nullptr);
    content.number = m_channelNumber.boundingRect();
    content.quality = m_channelQuality.boundingRect();
    content.program = m_programName.boundingRect();
    content.lockIcon = m_lockIcon.pixmap().size();
    content.live = m_live;
    if (m_live) {
        m_playingText->setupRenderer(style.playingTextStyle, content.row.width() / 2);
        m_playingText->updateNode(nodes.playingText, style.playingTextStyle.color, nullptr);
        content.playing = m_playingText->boundingRect();
        content.playingIcon = m_playingIcon.pixmap().size();
    }
    content.progress = m_progress;
    updateName(nodes.name, style, setUp, Layout::nameWidth(style, content, textWidth));
    content.name = m_channelName.boundingRect();
    return content;
}

// The name gets what the other parts leave of the width: it comes last.
void StbTvChannelViewDelegatePrivate::updateName(QSGImageNode *node, const Style &style, bool setUp,
                                                 int nameWidth)
{
    if (setUp)
        m_channelName.setupRenderer(style.channelNameTextStyle, nameWidth);
    else
        m_channelName.setMaxTextWidth(nameWidth);
    const QColor color = m_channelNameColor.isValid() ? m_channelNameColor : style.channelNameTextStyle.color;
    m_channelName.updateNode(node, color, nullptr);
}

void StbTvChannelViewDelegatePrivate::updateIcons(const Nodes &nodes, const Style &style, const Layout &layout)
{
    if (nodes.logo)
        setNodeRect(nodes.logo, style.logoRect.isValid() ? QRectF(style.logoRect) : QRectF());
    if (nodes.lockIcon) {
        m_lockIcon.updateNode(nodes.lockIcon, nullptr);
        placeImageNode(nodes.lockIcon, layout.lockIcon);
    }
    if (nodes.playingIcon) {
        m_playingIcon.colorize(style.playingTextStyle.color);
        m_playingIcon.updateNode(nodes.playingIcon, nullptr);
        placeImageNode(nodes.playingIcon, layout.playingIcon);
    }
}

QSGNode *StbTvChannelViewDelegate::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    Q_D(StbTvChannelViewDelegate);
    if (!d->m_style || !(width() > 0) || !(height() > 0)) {
        delete oldNode;
        d->m_logoPicture = StbTvChannelViewDelegatePrivate::LogoPicture::None;
        return nullptr;
    }
    auto *root = static_cast<QSGRectangleNode *>(oldNode ? oldNode : d->createRoot());
    setNodeRect(root, QRectF(0, 0, width(), height()));
    const design_system::PlayerTvChannelItemStyle style = d->m_style->style();

    const auto nodes = d->placeNodes(root);
    const auto content = d->updateTexts(nodes, style, !oldNode || d->m_styleDirty);
    d->m_styleDirty = false;
    const auto layout = StbTvChannelViewDelegateLayout::compute(style, content);

    fill(nodes.numberBox, style.channelNumberTextStyle.backgroundColor, layout.numberBox);
    fill(nodes.qualityBox, style.qualityTextStyle.backgroundColor, layout.qualityBox);
    fill(nodes.progressPlayed, style.progressPlayedColor, layout.progressPlayed);
    fill(nodes.progressRemainder, style.progressRemainderColor, layout.progressRemainder);
    placeImageNode(textOf(nodes.numberBox), layout.numberText);
    placeImageNode(textOf(nodes.qualityBox), layout.qualityText);
    placeImageNode(nodes.name, layout.name);
    placeImageNode(nodes.program, layout.program);
    if (nodes.playingText)
        placeImageNode(nodes.playingText, layout.playingText);
    d->updateIcons(nodes, style, layout);
    return root;
}
