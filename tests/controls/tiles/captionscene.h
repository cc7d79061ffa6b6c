// SPDX-License-Identifier: MIT
#ifndef STBTEST_CAPTIONSCENE_H
#define STBTEST_CAPTIONSCENE_H

#include "testkit/fakeplatform.h"
#include "testkit/nodes.h"
#include "testkit/pictures.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"
#include "testkit/texts.h"
#include "tilestyles.h"

#include <controls/tiles/stbexpandabletile_p.h>

#include <QtGui/qcolor.h>

inline const QColor captionGround(150, 190, 160);

/*! A stage with one tile on a coloured ground, made from C++: no engine, so neither pictures nor settings. */
template <typename Tile>
struct CaptionScene
{
    CaptionScene()
    {
        style.setStyle(oddTileStyle());
        tile.setParentItem(stage.contentItem());
        tile.setPosition(QPointF(60, 40));
    }

    /*! The nodes from the first one behind the base tile's: it has a background and a frame without a picture. */
    QList<stbtest::NodeInfo> nodes() { return stbtest::childNodes(stbtest::paintNode(&tile)).mid(2); }

    stbtest::Stage stage { QSize(360, 340), captionGround };
    design_system::TileQmlStyle style;
    Tile tile;
};

/*! The same with a tile made in QML that loads pictures; they do not fade in, unless \a fading. */
template <typename Tile, typename StageType = stbtest::Stage>
struct QmlCaptionScene
{
    explicit QmlCaptionScene(const QString &element, const QString &content = {}, bool fading = false)
    {
        configuration.setValue("Animations", "fadeEffectEnabled", fading);
        style.setStyle(oddTileStyle());
        tile = qml.createItem<Tile>("import Stbui.UI.Qml.Controls.Basic\n" + element + " { x: 60; y: 40; "
                                            + content + " }",
                                    stage.contentItem());
        if (tile)
            tile->setStyle(&style);
    }

    stbtest::MemoryConfiguration configuration;
    stbtest::QmlScene qml;
    StageType stage { QSize(360, 340), captionGround };
    design_system::TileQmlStyle style;
    std::unique_ptr<Tile> tile;
};

/*! Starts the focus animation of \a tile and holds it where \a progress, 0 to 1, of its time is over. */
inline void holdFocusAnimation(StbExpandableTile *tile, double progress)
{
    auto *d = static_cast<StbExpandableTilePrivate *>(QQuickItemPrivate::get(tile));
    d->m_focusTimeLine.setDuration(1000);
    tile->setState(QStringLiteral("focused"));
    d->m_focusTimeLine.setPaused(true);
    d->m_focusTimeLine.setCurrentTime(qRound(1000 * progress));
}

/*! Where \a node lies in the stage of a scene. */
inline QRect onStage(const stbtest::NodeInfo &node)
{
    return node.rect.toRect().translated(60, 40);
}

#endif // STBTEST_CAPTIONSCENE_H
