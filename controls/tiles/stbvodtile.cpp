// SPDX-License-Identifier: MIT
#include "controls/tiles/stbvodtile_p.h"

#include "controls/propertysetters.h"
#include "controls/tiles/stbvodtilelayout.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

using namespace qml_basic_plugin;
using design_system::TileStyle;

StbVodTilePrivate::StbVodTilePrivate() = default;
StbVodTilePrivate::~StbVodTilePrivate() = default;

StbVodTile::StbVodTile(QQuickItem *parent)
    : StbVodTile(*new StbVodTilePrivate, parent)
{
}

StbVodTile::StbVodTile(StbVodTilePrivate &dd, QQuickItem *parent)
    : StbContentTile(dd, parent)
{
}

StbVodTile::~StbVodTile() = default;

QString StbVodTile::rating() const
{
    Q_D(const StbVodTile);
    return d->m_rating.text();
}

void StbVodTile::setRating(const QString &rating)
{
    Q_D(StbVodTile);
    if (assignText(this, d->m_rating, rating, &StbVodTile::ratingChanged))
        update();
}

QUrl StbVodTile::rightholderImageSource() const
{
    Q_D(const StbVodTile);
    return d->m_rightholderImageSource;
}

void StbVodTile::setRightholderImageSource(const QUrl &source)
{
    Q_D(StbVodTile);
    if (!assign(this, d->m_rightholderImageSource, source, &StbVodTile::rightholderImageSourceChanged))
        return;
    if (isComponentComplete())
        d->loadRightholderImage();
    update();
}

double StbVodTile::timepoint() const
{
    Q_D(const StbVodTile);
    return d->m_timepoint;
}

void StbVodTile::setTimepoint(double timepoint)
{
    Q_D(StbVodTile);
    if (assign(this, d->m_timepoint, timepoint, &StbVodTile::timepointChanged))
        update();
}

double StbVodTile::duration() const
{
    Q_D(const StbVodTile);
    return d->m_duration;
}

void StbVodTile::setDuration(double duration)
{
    Q_D(StbVodTile);
    if (assign(this, d->m_duration, duration, &StbVodTile::durationChanged))
        update();
}

void StbVodTile::componentComplete()
{
    Q_D(StbVodTile);
    StbContentTile::componentComplete();
    if (d->m_rightholderImageSource.isValid())
        d->loadRightholderImage();
}

void StbVodTilePrivate::loadRightholderImage()
{
    m_rightholderImage.load(q_func(), m_rightholderImageSource, SLOT(update()));
}

void StbVodTilePrivate::processStyleChanged(const TileStyle &style)
{
    StbContentTilePrivate::processStyleChanged(style);
    m_rating.setupRenderer(style.ratingStyle, style.tileRect.width());
}

void StbVodTilePrivate::forgetNodes()
{
    StbContentTilePrivate::forgetNodes();
    m_rightholderPresent = false;
    m_ratingPresent = false;
    m_progressTrackPresent = false;
    m_progressValuePresent = false;
}

// The badge, made with its first text and kept from then on, holds the text as its only child.
QSGRectangleNode *StbVodTilePrivate::updateBadge(ChildNodes &children, const TileStyle &style)
{
    QSGRectangleNode *badge = placeRectangleNode(children, m_ratingPresent || !m_rating.text().isEmpty(),
                                                 m_ratingPresent, sceneGraphContext(),
                                                 style.ratingBadgeColor);
    if (!badge)
        return nullptr;
    if (children.created())
        m_rating.createNode(sceneGraphContext(), sceneGraphRenderContext(), badge, nullptr);
    m_rating.updateNode(static_cast<QSGImageNode *>(badge->firstChild()), style.ratingColor, nullptr);
    return badge;
}

QSGNode *StbVodTilePrivate::updateExtendedNodes(const TileStyle &style, QSGNode *node)
{
    Q_Q(StbVodTile);
    QSGNode *last = StbContentTilePrivate::updateExtendedNodes(style, node);
    if (!last)
        return nullptr;
    ChildNodes children(last->parent(), last);
    QSGTexture *texture = m_rightholderImage.texture(sceneGraphRenderContext(), q->window());
    QSGImageNode *rightholder = m_rightholderImage.placeNode(children, m_rightholderPresent,
                                                             sceneGraphContext(), texture);
    QSGRectangleNode *badge = updateBadge(children, style);

    const StbVodTileLayout layout = StbVodTileLayout::compute(style, { m_customFocusRect.value(),
                                                                       m_rightholderImage.size(),
                                                                       m_rating.boundingRect().size(),
                                                                       m_timepoint, m_duration });
    if (rightholder)
        setNodeRect(rightholder, QRectF(layout.rightholder));
    if (badge) {
        setNodeRect(badge, nodeRect(layout.ratingBadge));
        placeImageNode(static_cast<QSGImageNode *>(badge->firstChild()), layout.ratingText);
    }
    if (auto *track = placeRectangleNode(children, layout.trackShown, m_progressTrackPresent,
                                         sceneGraphContext(), style.progressTrackColor))
        setNodeRect(track, nodeRect(layout.progressTrack));
    if (auto *value = placeRectangleNode(children, layout.progressShown, m_progressValuePresent,
                                         sceneGraphContext(), style.progressValueColor))
        setNodeRect(value, nodeRect(layout.progressValue));
    return nullptr; // no tile derives from this one
}
