// SPDX-License-Identifier: MIT
#include "controls/tiles/stbcontenttile_p.h"

#include "controls/propertysetters.h"
#include "controls/tiles/stbcontenttilelayout.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

using namespace qml_basic_plugin;
using design_system::TileStyle;

namespace {

// The extent of the text, painted anew where it changed; nothing without a node.
std::optional<QRect> updateText(QSGImageNode *node, TextNodeBuilder &text, const QColor &color)
{
    if (!node)
        return std::nullopt;
    text.updateNode(node, color, nullptr);
    return text.boundingRect();
}

void placeNode(QSGImageNode *node, const QRect &rect)
{
    if (node)
        placeImageNode(node, rect);
}

} // namespace

StbContentTilePrivate::StbContentTilePrivate() = default;
StbContentTilePrivate::~StbContentTilePrivate() = default;

StbContentTile::StbContentTile(QQuickItem *parent)
    : StbContentTile(*new StbContentTilePrivate, parent)
{
}

StbContentTile::StbContentTile(StbContentTilePrivate &dd, QQuickItem *parent)
    : StbExpandableTile(dd, parent)
{
}

StbContentTile::~StbContentTile() = default;

QString StbContentTile::title() const
{
    Q_D(const StbContentTile);
    return d->m_title.text();
}

void StbContentTile::setTitle(const QString &title)
{
    Q_D(StbContentTile);
    if (assignText(this, d->m_title, title, &StbContentTile::titleChanged))
        update();
}

QString StbContentTile::subtitle() const
{
    Q_D(const StbContentTile);
    return d->m_subtitle.text();
}

void StbContentTile::setSubtitle(const QString &subtitle)
{
    Q_D(StbContentTile);
    if (assignText(this, d->m_subtitle, subtitle, &StbContentTile::subtitleChanged))
        update();
}

QString StbContentTile::status() const
{
    Q_D(const StbContentTile);
    return d->m_status.text();
}

void StbContentTile::setStatus(const QString &status)
{
    Q_D(StbContentTile);
    if (assignText(this, d->m_status, status, &StbContentTile::statusChanged))
        update();
}

bool StbContentTile::isFavorite() const
{
    Q_D(const StbContentTile);
    return d->m_favorite;
}

void StbContentTile::setFavorite(bool favorite)
{
    Q_D(StbContentTile);
    if (!assign(this, d->m_favorite, favorite, &StbContentTile::favoriteChanged))
        return;
    if (favorite)
        d->loadFavoriteIcon();
    update();
}

void StbContentTilePrivate::loadFavoriteIcon()
{
    if (m_style && !m_favoriteIcon.isLoaded())
        m_favoriteIcon.load(QStringLiteral(":/resources/icons/favorite_small.png"),
                            m_style->style().favouriteIconColor);
}

void StbContentTilePrivate::processStyleChanged(const TileStyle &style)
{
    if (m_favorite)
        loadFavoriteIcon();
    const int textWidth = style.tileRect.width();
    m_title.setupRenderer(style.titleStyle, textWidth);
    m_subtitle.setupRenderer(style.subtitleStyle, textWidth);
    m_status.setupRenderer(style.statusStyle, textWidth);
}

void StbContentTilePrivate::forgetNodes()
{
    StbExpandableTilePrivate::forgetNodes();
    m_iconPresent = false;
    m_titlePresent = false;
    m_subtitlePresent = false;
    m_statusPresent = false;
}

QSGImageNode *StbContentTilePrivate::placeIcon(ChildNodes &children)
{
    auto *icon = children.place<QSGImageNode>(m_favorite, m_iconPresent,
                                              [this](QSGNode *root, QSGNode *before) {
                                                  return m_favoriteIcon.createNode(sceneGraphContext(),
                                                                                   sceneGraphRenderContext(),
                                                                                   root, before);
                                              });
    if (icon)
        m_favoriteIcon.updateNode(icon, nullptr);
    return icon;
}

// A text gets its node when it has something to show, and keeps it.
QSGImageNode *StbContentTilePrivate::placeText(ChildNodes &children, TextNodeBuilder &text, bool &present)
{
    return children.place<QSGImageNode>(present || !text.text().isEmpty(), present,
                                        [&](QSGNode *root, QSGNode *before) {
                                            return text.createNode(sceneGraphContext(),
                                                                   sceneGraphRenderContext(), root, before);
                                        });
}

QSGNode *StbContentTilePrivate::updateExtendedNodes(const TileStyle &style, QSGNode *node)
{
    if (!node)
        return nullptr;
    ChildNodes children(node->parent(), node);
    QSGImageNode *icon = placeIcon(children);
    QSGImageNode *title = placeText(children, m_title, m_titlePresent);
    QSGImageNode *subtitle = placeText(children, m_subtitle, m_subtitlePresent);
    QSGImageNode *status = placeText(children, m_status, m_statusPresent);

    StbContentTileLayout::Content content;
    if (icon)
        content.icon = m_favoriteIcon.pixmap().size();
    if (title)
        m_title.setMaxTextWidth(StbContentTileLayout::titleWidth(style.tileRect.width(),
                                                                 icon ? content.icon->width() : 0,
                                                                 style.captionSpacing));
    content.title = updateText(title, m_title, style.titleColor);
    content.subtitle = updateText(subtitle, m_subtitle, style.subtitleColor);
    content.status = updateText(status, m_status, style.statusColor);

    const StbContentTileLayout layout = StbContentTileLayout::compute(m_customFocusRect.value().bottom(),
                                                                      style.captionSpacing, content);
    placeNode(icon, layout.icon);
    placeNode(title, layout.title);
    placeNode(subtitle, layout.subtitle);
    placeNode(status, layout.status);
    return children.last();
}
