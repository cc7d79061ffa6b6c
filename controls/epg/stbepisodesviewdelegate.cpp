// SPDX-License-Identifier: MIT
#include "controls/epg/stbepisodesviewdelegate_p.h"

#include "controls/epg/stbepisodesviewdelegatelayout.h"
#include "controls/propertysetters.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

#include <QtCore/qstringlist.h>
#include <QtQuick/qsgtexture.h>

#include <cmath>
#include <limits>

using namespace qml_basic_plugin;
using Layout = StbEpisodesViewDelegateLayout;

namespace {

using ItemType = StbEpisodesViewDelegatePrivate::ItemType;

ItemType itemType(const QString &name)
{
    if (name == QLatin1String("defaultTile"))
        return ItemType::Default;
    if (name == QLatin1String("unViewedTile"))
        return ItemType::Unviewed;
    if (name == QLatin1String("viewedTile"))
        return ItemType::Viewed;
    if (name == QLatin1String("comingSoonTile"))
        return ItemType::ComingSoon;
    return ItemType::Unknown;
}

// The integer part, within the range of integers.
qint64 wholeNumber(double value)
{
    constexpr double beyond = 0x1p63; // the first number above the range; its negative is the lowest one in it
    if (std::isnan(value))
        return 0;
    if (value >= beyond)
        return std::numeric_limits<qint64>::max();
    return value < -beyond ? std::numeric_limits<qint64>::min() : qint64(value);
}

} // namespace

StbEpisodesViewDelegatePrivate::StbEpisodesViewDelegatePrivate() = default;
StbEpisodesViewDelegatePrivate::~StbEpisodesViewDelegatePrivate() = default;

StbEpisodesViewDelegate::StbEpisodesViewDelegate(QQuickItem *parent)
    : QQuickItem(*new StbEpisodesViewDelegatePrivate, parent)
{
    setFlag(ItemHasContents);
}

StbEpisodesViewDelegate::~StbEpisodesViewDelegate() = default;

design_system::PlayerEpisodesItemQmlStyle *StbEpisodesViewDelegate::style() const
{
    Q_D(const StbEpisodesViewDelegate);
    return d->m_style.get();
}

void StbEpisodesViewDelegate::setStyle(design_system::PlayerEpisodesItemQmlStyle *style)
{
    Q_D(StbEpisodesViewDelegate);
    if (d->m_style || !style)
        return;
    const auto styleHasChanged = [this] {
        Q_EMIT styleChanged();
        update();
    };
    d->m_style.set(style, this, styleHasChanged);
    styleHasChanged();
}

void StbEpisodesViewDelegate::resetStyle()
{
    setStyle(nullptr);
}

QString StbEpisodesViewDelegate::listItemType() const
{
    Q_D(const StbEpisodesViewDelegate);
    return d->m_listItemType;
}

void StbEpisodesViewDelegate::setListItemType(const QString &type)
{
    Q_D(StbEpisodesViewDelegate);
    if (!d->m_listItemType.isEmpty() || type.isEmpty())
        return;
    const QString shownStatus = status();
    d->setItemType(type);
    if (isComponentComplete())
        d->loadPlayIcon();
    const bool statusMoved = status() != shownStatus; // before a handler can set another one
    Q_EMIT listItemTypeChanged();
    if (statusMoved)
        Q_EMIT statusChanged();
    update();
}

QUrl StbEpisodesViewDelegate::imageSource() const
{
    Q_D(const StbEpisodesViewDelegate);
    return d->m_imageSource;
}

void StbEpisodesViewDelegate::setImageSource(const QUrl &source)
{
    Q_D(StbEpisodesViewDelegate);
    if (d->m_imageSource.isEmpty()
        && assign(this, d->m_imageSource, source, &StbEpisodesViewDelegate::imageSourceChanged)
        && isComponentComplete())
        d->loadLogo();
}

QString StbEpisodesViewDelegate::title() const
{
    Q_D(const StbEpisodesViewDelegate);
    return d->m_title.text();
}

void StbEpisodesViewDelegate::setTitle(const QString &title)
{
    Q_D(StbEpisodesViewDelegate);
    d->setText(d->m_title, title, &StbEpisodesViewDelegate::titleChanged);
}

QString StbEpisodesViewDelegate::subtitle() const
{
    Q_D(const StbEpisodesViewDelegate);
    return d->m_subtitle.text();
}

void StbEpisodesViewDelegate::setSubtitle(const QString &subtitle)
{
    Q_D(StbEpisodesViewDelegate);
    d->setText(d->m_subtitle, subtitle, &StbEpisodesViewDelegate::subtitleChanged);
}

QString StbEpisodesViewDelegate::status() const
{
    Q_D(const StbEpisodesViewDelegate);
    return d->m_statusText.text();
}

void StbEpisodesViewDelegate::setStatus(const QString &status)
{
    Q_D(StbEpisodesViewDelegate);
    if (!d->m_status.isEmpty() || status.isEmpty())
        return;
    d->m_status = status;
    d->distributeStatus();
    Q_EMIT statusChanged();
    update();
}

double StbEpisodesViewDelegate::viewedPosition() const
{
    Q_D(const StbEpisodesViewDelegate);
    return double(d->m_viewedPosition);
}

void StbEpisodesViewDelegate::setViewedPosition(double position)
{
    Q_D(StbEpisodesViewDelegate);
    if (d->m_viewedPosition <= 0)
        assign(this, d->m_viewedPosition, wholeNumber(position), &StbEpisodesViewDelegate::timepointChanged);
}

double StbEpisodesViewDelegate::duration() const
{
    Q_D(const StbEpisodesViewDelegate);
    return double(d->m_duration);
}

void StbEpisodesViewDelegate::setDuration(double duration)
{
    Q_D(StbEpisodesViewDelegate);
    if (d->m_duration <= 0)
        assign(this, d->m_duration, wholeNumber(duration), &StbEpisodesViewDelegate::durationChanged);
}

void StbEpisodesViewDelegate::componentComplete()
{
    Q_D(StbEpisodesViewDelegate);
    QQuickItem::componentComplete();
    if (d->m_imageSource.isValid())
        d->loadLogo();
    d->loadPlayIcon();
}

void StbEpisodesViewDelegatePrivate::setItemType(const QString &type)
{
    m_listItemType = type;
    m_itemType = itemType(type);
    if (m_itemType == ItemType::ComingSoon) // a status that came before is two lines now
        distributeStatus();
}

void StbEpisodesViewDelegatePrivate::setText(TextNodeBuilder &builder, const QString &text, TextSignal changed)
{
    Q_Q(StbEpisodesViewDelegate);
    if (assignText(q, builder, text, changed))
        q->update();
}

void StbEpisodesViewDelegatePrivate::distributeStatus()
{
    if (m_itemType != ItemType::ComingSoon) {
        m_statusText.setText(m_status);
        return;
    }
    m_statusText.setText(QString());
    const QStringList lines = m_status.split(QLatin1Char(' '));
    if (lines.size() != 2)
        return;
    m_upperDate.setText(lines.first());
    m_lowerDate.setText(lines.last());
}

void StbEpisodesViewDelegatePrivate::loadLogo()
{
    Q_Q(StbEpisodesViewDelegate);
    m_picture.load(q, m_imageSource, SLOT(update()), Picture::Loading::Cached);
}

void StbEpisodesViewDelegatePrivate::loadPlayIcon()
{
    if (isPlayable()) // the builder reads a source once
        m_playIcon.load(QStringLiteral(":/resources/icons/player/status/play.png"), QColor());
}

bool StbEpisodesViewDelegatePrivate::isPlayable() const
{
    return m_itemType == ItemType::Default || m_itemType == ItemType::Unviewed;
}

QSGNode *StbEpisodesViewDelegatePrivate::updatePaintNode(const Style &style, QSGNode *oldNode)
{
    Q_Q(StbEpisodesViewDelegate);
    QSGNode *root = oldNode ? oldNode : createRoot(style);
    ChildNodes children(root);
    QSGTexture *texture = m_picture.texture(sceneGraphRenderContext(), q->window());
    QSGImageNode *image = m_picture.placeNode(children, m_hasImageNode, sceneGraphContext(), texture);
    if (children.created())
        setNodeRect(image, nodeRect(style.tileRect));
    return root;
}

QSGNode *StbEpisodesViewDelegatePrivate::createRoot(const Style &style)
{
    Q_Q(StbEpisodesViewDelegate);
    m_hasImageNode = false;
    QSGRectangleNode *root = createRectangleNode(sceneGraphContext(), Qt::transparent, nullptr, nullptr);
    setNodeRect(root, QRectF(0, 0, q->width(), q->height()));
    QSGNode *overlay = createRectangle(root, isPlayable() ? style.playableOverlayColor : style.overlayColor,
                                       style.tileRect);
    createTitles(root, style);
    if (isPlayable())
        createPlayIcon(overlay, style);
    if (m_itemType == ItemType::Default)
        createProgress(overlay, style);
    else if (m_itemType == ItemType::ComingSoon)
        createDate(overlay, style);
    else
        createBadge(overlay, style);
    return root;
}

QSGRectangleNode *StbEpisodesViewDelegatePrivate::createRectangle(QSGNode *under, const QColor &color,
                                                                  const QRect &rect)
{
    QSGRectangleNode *node = createRectangleNode(sceneGraphContext(), visibleColor(color), under, nullptr);
    setNodeRect(node, nodeRect(rect));
    return node;
}

QSGImageNode *StbEpisodesViewDelegatePrivate::createText(QSGNode *under, TextNodeBuilder &builder,
                                                         const design_system::TextStyle &style, int maxWidth,
                                                         const QColor &color)
{
    QSGImageNode *node = builder.createNode(sceneGraphContext(), sceneGraphRenderContext(), under, nullptr);
    builder.setupRenderer(style, maxWidth);
    builder.updateNode(node, color, nullptr);
    return node;
}

void StbEpisodesViewDelegatePrivate::createTitles(QSGNode *root, const Style &style)
{
    const bool comingSoon = m_itemType == ItemType::ComingSoon;
    const int maxWidth = style.textAreaRect.width();
    const auto create = [&](TextNodeBuilder &builder, const design_system::TextStyle &textStyle) {
        return createText(root, builder, textStyle, maxWidth,
                          comingSoon ? style.comingSoonTextColor : textStyle.color);
    };
    QSGImageNode *title = create(m_title, style.titleTextStyle);
    QSGImageNode *subtitle = create(m_subtitle, style.subtitleTextStyle);
    const QSize titleSize = m_title.boundingRect().size();
    placeImageNode(title, Layout::title(style, titleSize));
    placeImageNode(subtitle, Layout::subtitle(style, titleSize, m_subtitle.boundingRect().size()));
}

void StbEpisodesViewDelegatePrivate::createBadge(QSGNode *overlay, const Style &style)
{
    const design_system::TextStyle &textStyle = style.statusTextStyle;
    QSGRectangleNode *badge = createRectangle(overlay, textStyle.backgroundColor, QRect());
    QSGImageNode *text = createText(badge, m_statusText, textStyle, style.tileRect.width(), textStyle.color);
    const QRect box = Layout::badge(style, m_statusText.boundingRect().size());
    setNodeRect(badge, nodeRect(box));
    placeImageNode(text, Layout::insideBadge(style, box));
}

void StbEpisodesViewDelegatePrivate::createDate(QSGNode *overlay, const Style &style)
{
    const int maxWidth = style.tileRect.width();
    QSGImageNode *lower = createText(overlay, m_lowerDate, style.dateLowerTextStyle, maxWidth,
                                     style.dateLowerTextStyle.color);
    QSGImageNode *upper = createText(overlay, m_upperDate, style.dateUpperTextStyle, maxWidth,
                                     style.dateUpperTextStyle.color);
    const QSize lowerSize = m_lowerDate.boundingRect().size();
    placeImageNode(lower, Layout::lowerDate(style, lowerSize));
    placeImageNode(upper, Layout::upperDate(style, m_upperDate.boundingRect().size(), lowerSize));
}

void StbEpisodesViewDelegatePrivate::createPlayIcon(QSGNode *overlay, const Style &style)
{
    if (m_playIcon.pixmap().isNull())
        return; // the software renderer would leave a hole where a node without a picture lies
    QSGImageNode *node = m_playIcon.createNode(sceneGraphContext(), sceneGraphRenderContext(), overlay,
                                               nullptr);
    node->setFiltering(QSGTexture::Linear); // the style's size is seldom the file's
    m_playIcon.updateNode(node, nullptr);
    placeImageNode(node, Layout::playIcon(style));
}

void StbEpisodesViewDelegatePrivate::createProgress(QSGNode *overlay, const Style &style)
{
    const Layout::Progress bar = Layout::progress(style, Layout::fraction(m_viewedPosition, m_duration));
    createRectangle(overlay, style.progressViewedColor, bar.viewed);
    createRectangle(overlay, style.progressRemainingColor, bar.remaining);

    const design_system::TextStyle &textStyle = style.statusTextStyle;
    QSGImageNode *text = createText(overlay, m_statusText, textStyle, style.tileRect.width(), textStyle.color);
    const QRect box = Layout::boxAboveBar(style, m_statusText.boundingRect().size());
    placeImageNode(text, Layout::insideBadge(style, box));
}

QSGNode *StbEpisodesViewDelegate::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    Q_D(StbEpisodesViewDelegate);
    if (!d->m_style || d->m_itemType == ItemType::Unknown || !(width() > 0) || !(height() > 0)) {
        delete oldNode;
        return nullptr;
    }
    return d->updatePaintNode(d->m_style->style(), oldNode);
}
