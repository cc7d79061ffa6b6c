// SPDX-License-Identifier: MIT
#ifndef STBTEST_TILESCENE_H
#define STBTEST_TILESCENE_H

#include "testkit/fakeplatform.h"
#include "testkit/handpictures.h"
#include "testkit/nodes.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"
#include "tilestyles.h"

#include <controls/tiles/stbexpandabletile.h>
#include <controls/tiles/stbexpandabletile_p.h>

#include <QtCore/qtimeline.h>
#include <QtGui/qpainter.h>

#include <memory>
#include <vector>

/*! A picture of four fields in different colours, so that a shift, a flip or a wrong size shows. */
inline QImage fieldsPicture(const QSize &size = QSize(201, 113))
{
    QImage image(size, QImage::Format_RGB32);
    const int middleX = size.width() / 3;
    const int middleY = size.height() / 3;
    image.fill(QColor(201, 61, 51));
    QPainter painter(&image);
    painter.fillRect(QRect(middleX, 0, size.width(), middleY), QColor(61, 171, 91));
    painter.fillRect(QRect(0, middleY, middleX, size.height()), QColor(51, 91, 201));
    painter.fillRect(QRect(middleX, middleY, size.width(), size.height()), QColor(231, 191, 61));
    return image;
}

/*! A picture of one colour. */
inline QImage plainPicture(const QColor &color, const QSize &size = QSize(201, 113))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

inline StbExpandableTilePrivate *tilePrivate(StbExpandableTile *tile)
{
    return static_cast<StbExpandableTilePrivate *>(QQuickItemPrivate::get(tile)); // NOLINT
}

/*! Brings an animation to \a progress of its time, without anybody waiting for it. */
inline void advance(QTimeLine &timeLine, double progress)
{
    timeLine.setCurrentTime(qRound(timeLine.duration() * progress));
}

/*! Brings it to the end that it runs to, and to rest. */
inline void finish(QTimeLine &timeLine)
{
    if (timeLine.state() == QTimeLine::NotRunning)
        return;
    advance(timeLine, timeLine.direction() == QTimeLine::Forward ? 1.0 : 0.0);
    timeLine.stop();
}

/*!
    A stage with one tile of the class \a Tile, made by a QML engine, at 60, 50 on a coloured ground, with
    settings in memory and pictures that arrive when the test says so. Pictures do not fade in unless the test
    changes that before it makes the tile.
*/
template <typename Tile>
struct TileScene
{
    TileScene()
    {
        settings.setValue("Animations", "fadeEffectEnabled", false);
        style.setStyle(oddTileStyle());
    }

    /*! Makes the tile, and gives it oddTileStyle() when it is complete. */
    void make(const QString &element, const QString &content = QString())
    {
        makeBare(element, content);
        tile->setStyle(&style);
        stage.renderFrame();
    }
    void makeBare(const QString &element, const QString &content = QString())
    {
        tile = qml.createItem<Tile>(QStringLiteral("import Stbui.UI.Qml.Controls.Basic\n%1 { %2 }")
                                            .arg(element, content),
                                    stage.contentItem());
        if (!tile)
            qFatal("no tile");
        tile->setPosition(QPointF(60, 50));
    }

    /*! Gives the tile another style object, with \a values in it. */
    void restyle(const design_system::TileStyle &values)
    {
        styles.push_back(std::make_unique<design_system::TileQmlStyle>());
        styles.back()->setStyle(values);
        tile->setStyle(styles.back().get());
    }

    /*! Gives the tile a picture and lets it arrive; the fade has begun then, if there is one. */
    bool show(const QImage &picture, const QString &name = QStringLiteral("poster"))
    {
        tile->setImageSource(stbtest::HandPictures::url(name));
        return arrive(picture, name);
    }
    /*! Lets a picture that was asked for arrive; a null one is a failure. Renders a frame first. */
    bool arrive(const QImage &picture, const QString &name = QStringLiteral("poster"))
    {
        stage.renderFrame();
        return pictures.deliver(name, picture) && QTest::qWaitFor([this] { return stage.wantsFrame(); });
    }

    QList<stbtest::NodeInfo> children() { return stbtest::childNodes(stbtest::paintNode(tile.get())); }
    QStringList types()
    {
        QStringList result;
        for (const stbtest::NodeInfo &node : children())
            result += node.type;
        return result;
    }

    stbtest::MemoryConfiguration settings;
    stbtest::QmlScene qml;
    stbtest::HandPictures pictures { qml.engine() };
    stbtest::Stage stage { QSize(400, 320), QColor(0, 60, 40) };
    design_system::TileQmlStyle style;
    std::vector<std::unique_ptr<design_system::TileQmlStyle>> styles;
    std::unique_ptr<Tile> tile;
};

#endif // STBTEST_TILESCENE_H
