// SPDX-License-Identifier: MIT
#include "controls/epg/stbepgviewdelegate_p.h"

#include "controls/epg/stbepgviewdelegatelayout.h"
#include "controls/propertysetters.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

#include <QtCore/qcoreapplication.h>

using namespace qml_basic_plugin;

StbEpgViewDelegatePrivate::StbEpgViewDelegatePrivate()
    : m_widthObserver(width.addNotifier([this] { relayout(); }))
{
}

StbEpgViewDelegatePrivate::~StbEpgViewDelegatePrivate() = default;

StbEpgViewDelegate::StbEpgViewDelegate(QQuickItem *parent)
    : StbEpgViewDelegate(*new StbEpgViewDelegatePrivate, parent)
{
}

StbEpgViewDelegate::StbEpgViewDelegate(StbEpgViewDelegatePrivate &dd, QQuickItem *parent)
    : QQuickItem(dd, parent)
{
    setFlag(ItemHasContents);
}

StbEpgViewDelegate::~StbEpgViewDelegate() = default;

design_system::PlayerEpgDelegateQmlStyle *StbEpgViewDelegate::style() const
{
    Q_D(const StbEpgViewDelegate);
    return d->m_style.get();
}

void StbEpgViewDelegate::setStyle(design_system::PlayerEpgDelegateQmlStyle *style)
{
    Q_D(StbEpgViewDelegate);
    if (d->m_style.get() == style)
        return;
    d->m_style.set(style, this, [this, d] {
        Q_EMIT styleChanged();
        d->relayout();
    });
    d->m_styleDirty = true;
    Q_EMIT styleChanged();
    d->relayout();
}

void StbEpgViewDelegate::resetStyle()
{
    setStyle(nullptr);
}

QString StbEpgViewDelegate::title() const
{
    Q_D(const StbEpgViewDelegate);
    return d->m_title.text();
}

void StbEpgViewDelegate::setTitle(const QString &title)
{
    Q_D(StbEpgViewDelegate);
    d->setText(d->m_title, title, &StbEpgViewDelegate::titleChanged);
}

QString StbEpgViewDelegate::subtitle() const
{
    Q_D(const StbEpgViewDelegate);
    return d->m_subtitle.text();
}

void StbEpgViewDelegate::setSubtitle(const QString &subtitle)
{
    Q_D(StbEpgViewDelegate);
    d->setText(d->m_subtitle, subtitle, &StbEpgViewDelegate::subtitleChanged);
}

QString StbEpgViewDelegate::startTimeText() const
{
    Q_D(const StbEpgViewDelegate);
    return d->m_startTimeText.text();
}

void StbEpgViewDelegate::setStartTimeText(const QString &text)
{
    Q_D(StbEpgViewDelegate);
    d->setText(d->m_startTimeText, text, &StbEpgViewDelegate::startTimeTextChanged);
}

bool StbEpgViewDelegate::isLive() const
{
    Q_D(const StbEpgViewDelegate);
    return d->m_live;
}

void StbEpgViewDelegate::setLive(bool live)
{
    Q_D(StbEpgViewDelegate);
    if (assign(this, d->m_live, live, &StbEpgViewDelegate::liveChanged))
        d->relayout();
}

bool StbEpgViewDelegate::isFuture() const
{
    Q_D(const StbEpgViewDelegate);
    return d->m_future;
}

void StbEpgViewDelegate::setFuture(bool future)
{
    Q_D(StbEpgViewDelegate);
    if (assign(this, d->m_future, future, &StbEpgViewDelegate::futureChanged))
        update();
}

bool StbEpgViewDelegate::isPlayable() const
{
    Q_D(const StbEpgViewDelegate);
    return d->m_playable;
}

void StbEpgViewDelegate::setPlayable(bool playable)
{
    Q_D(StbEpgViewDelegate);
    if (assign(this, d->m_playable, playable, &StbEpgViewDelegate::playableChanged))
        update();
}

void StbEpgViewDelegate::componentComplete()
{
    Q_D(StbEpgViewDelegate);
    QQuickItem::componentComplete();
    d->loadIndicatorImage();
}

void StbEpgViewDelegatePrivate::setText(TextNodeBuilder &builder, const QString &text, TextSignal changed)
{
    Q_Q(StbEpgViewDelegate);
    if (assignText(q, builder, text, changed))
        relayout();
}

void StbEpgViewDelegatePrivate::loadIndicatorImage()
{
    if (!m_liveIndicator.isLoaded())
        m_liveIndicator.load(QStringLiteral(":/resources/icons/live_status_on.png"), QColor());
}

void StbEpgViewDelegatePrivate::relayoutExtendedItem(const Style &style, int &top)
{
    Q_UNUSED(style)
    Q_UNUSED(top)
}

void StbEpgViewDelegatePrivate::updateExtendedNodes(const Style &style, QSGNode *lastBaseNode)
{
    Q_UNUSED(style)
    Q_UNUSED(lastBaseNode)
}

void StbEpgViewDelegatePrivate::setUpRenderers(const Style &style)
{
    const int textWidth = style.previewRect.width();
    m_startTimeText.setupRenderer(style.startTimeTextStyle, style.startTimeTextStyle.rect.width());
    m_title.setupRenderer(style.titleTextStyle, textWidth);
    // Subtitles and the badge's label repeat from row to row; start times and titles do not.
    m_subtitle.setupRenderer(style.subtitleTextStyle, textWidth);
    m_subtitle.setCachingEnabled(true);
    m_liveText.setupRenderer(style.liveTextStyle, textWidth);
    m_liveText.setCachingEnabled(true);
}

void StbEpgViewDelegatePrivate::relayout()
{
    Q_Q(StbEpgViewDelegate);
    if (!m_style || !(q->width() > 0)) {
        q->update(); // what is painted may have to go
        return;
    }
    const Style style = m_style->style();
    if (m_styleDirty)
        setUpRenderers(style);

    StbEpgViewDelegateLayout::Content content;
    relayoutExtendedItem(style, content.top);
    m_startTimeText.relayoutRenderer();
    m_title.relayoutRenderer();
    m_subtitle.relayoutRenderer();
    content.startTime = m_startTimeText.boundingRect();
    content.title = m_title.boundingRect();
    content.subtitle = m_subtitle.boundingRect();
    content.live = m_live;
    if (m_live) {
        m_liveText.setText(QCoreApplication::translate("QObject", "NOW_IN_LIVE"));
        m_liveText.relayoutRenderer();
        loadIndicatorImage();
        content.liveText = m_liveText.boundingRect();
        content.liveIndicatorSize = m_liveIndicator.pixmap().size();
    }

    const StbEpgViewDelegateLayout layout = StbEpgViewDelegateLayout::compute(style, content);
    m_startTimeRect = layout.startTime;
    m_titleRect = layout.title;
    m_subtitleRect = layout.subtitle;
    m_liveBadgeRect = layout.liveBadge;
    m_liveIndicatorRect = layout.liveIndicator;
    m_liveTextRect = layout.liveText;
    m_styleDirty = false;
    if (q->height() == layout.height)
        q->update();
    else
        q->setHeight(layout.height);
}

QSGNode *StbEpgViewDelegatePrivate::createRoot()
{
    m_liveNodesPresent = false;
    QSGContext *context = sceneGraphContext();
    QSGRenderContext *renderContext = sceneGraphRenderContext();
    QSGNode *root = createRectangleNode(context, Qt::transparent, nullptr, nullptr);
    m_startTimeText.createNode(context, renderContext, root, nullptr);
    m_title.createNode(context, renderContext, root, nullptr);
    m_subtitle.createNode(context, renderContext, root, nullptr);
    return root;
}

QSGRectangleNode *StbEpgViewDelegatePrivate::updateBadge(ChildNodes &children, const Style &style)
{
    const QColor fill = visibleColor(style.liveBadgeColor);
    auto *badge =
            children.place<QSGRectangleNode>(m_live, m_liveNodesPresent, [&](QSGNode *root, QSGNode *before) {
                QSGContext *context = sceneGraphContext();
                QSGRenderContext *renderContext = sceneGraphRenderContext();
                QSGRectangleNode *node = createRectangleNode(context, fill, root, before);
                m_liveText.createNode(context, renderContext, node, nullptr);
                m_liveIndicator.createNode(context, renderContext, node, nullptr);
                return node;
            });
    if (!badge)
        return nullptr;
    setNodeColor(badge, fill);
    setNodeRect(badge, QRectF(m_liveBadgeRect));
    auto *label = static_cast<QSGImageNode *>(badge->childAtIndex(0));
    m_liveText.updateNode(label, style.liveTextStyle.color, nullptr);
    placeImageNode(label, m_liveTextRect);
    auto *indicator = static_cast<QSGImageNode *>(badge->childAtIndex(1));
    m_liveIndicator.updateNode(indicator, nullptr);
    placeImageNode(indicator, m_liveIndicatorRect);
    return badge;
}

QSGNode *StbEpgViewDelegate::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    Q_D(StbEpgViewDelegate);
    if (!d->m_style || !(width() > 0) || !(height() > 0)) {
        delete oldNode;
        return nullptr;
    }
    auto *root = static_cast<QSGRectangleNode *>(oldNode ? oldNode : d->createRoot());
    setNodeRect(root, QRectF(0, 0, width(), height()));
    const design_system::PlayerEpgDelegateStyle style = d->m_style->style();

    ChildNodes children(root);
    auto *startTime = children.next<QSGImageNode>();
    auto *title = children.next<QSGImageNode>();
    auto *subtitle = children.next<QSGImageNode>();
    d->updateBadge(children, style);
    d->updateExtendedNodes(style, children.last());

    const QColor titleColor = d->m_live || d->m_playable ? style.playableTextColor
                                                         : style.unavailableTextColor;
    d->m_startTimeText.updateNode(startTime, d->m_live ? style.liveStartTimeColor : titleColor, nullptr);
    d->m_title.updateNode(title, titleColor, nullptr);
    d->m_subtitle.updateNode(subtitle, style.subtitleTextStyle.color, nullptr);
    placeImageNode(startTime, d->m_startTimeRect);
    placeImageNode(title, d->m_titleRect);
    placeImageNode(subtitle, d->m_subtitleRect);
    return root;
}
