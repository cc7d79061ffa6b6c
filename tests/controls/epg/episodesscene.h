// SPDX-License-Identifier: MIT
#ifndef STBTEST_EPISODESSCENE_H
#define STBTEST_EPISODESSCENE_H

#include "epgstyles.h"
#include "testkit/handpictures.h"
#include "testkit/nodes.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"

#include <controls/epg/stbepisodesviewdelegate.h>

#include <QtGui/qpainter.h>
#include <QtTest/qtest.h>

/*! A picture of four fields in different colours, as large as the odd style's tile. */
inline QImage episodePicture()
{
    QImage image(201, 113, QImage::Format_RGB32);
    image.fill(QColor(201, 61, 51));
    QPainter painter(&image);
    painter.fillRect(QRect(63, 0, 201, 35), QColor(61, 171, 91));
    painter.fillRect(QRect(0, 35, 63, 113), QColor(51, 91, 201));
    painter.fillRect(QRect(63, 35, 201, 113), QColor(231, 191, 61));
    return image;
}

/*! The status that suits the kind of episode. */
inline QString statusOf(const QString &type)
{
    if (type == QLatin1String("comingSoonTile"))
        return QStringLiteral("12 March");
    return type == QLatin1String("viewedTile") ? QStringLiteral("Viewed") : QStringLiteral("12 min left");
}

inline std::unique_ptr<StbEpisodesViewDelegate> makeEpisode(stbtest::QmlScene &qml,
                                                            QQuickItem *parent = nullptr)
{
    return qml.createItem<StbEpisodesViewDelegate>(
            QStringLiteral("import Stbui.UI.Qml.Controls.Basic\nEpisodesViewDelegate {}"), parent);
}

/*!
    A \a Stage with one cell, made by a QML engine, at 20, 30 on a coloured ground; its pictures arrive when the
    test says so. The cell has a size and nothing else.
*/
template <typename Stage>
struct EpisodesScene
{
    EpisodesScene()
    {
        style.setStyle(oddEpisodesStyle());
        if (!cell)
            qFatal("no cell");
        cell->setPosition(QPointF(20, 30));
        cell->setSize(QSizeF(541, 131));
    }

    void fill(const QString &type)
    {
        cell->setStyle(&style);
        cell->setListItemType(type);
        cell->setTitle(QStringLiteral("The first evening of the year"));
        cell->setSubtitle(QStringLiteral("Season 1, episode 3: nobody knows yet what there is to be known."));
        cell->setStatus(statusOf(type));
        cell->setViewedPosition(20);
        cell->setDuration(50);
    }
    void ask() { cell->setImageSource(stbtest::HandPictures::url(picture)); }

    Stage stage { QSize(580, 190), QColor(0, 60, 40) };
    design_system::PlayerEpisodesItemQmlStyle style; // odd
    stbtest::QmlScene qml;
    stbtest::HandPictures pictures { qml.engine() };
    std::unique_ptr<StbEpisodesViewDelegate> cell = makeEpisode(qml, stage.contentItem());
    // Cells share a picture of the same name, whatever their engines are: each scene has its own one.
    const QString picture = QStringLiteral("still%1").arg(++scenes);
    static inline int scenes = 0;
};

/*! The same with an offscreen stage. */
struct OffscreenEpisodesScene : EpisodesScene<stbtest::Stage>
{
    void fillAndPaint(const QString &type)
    {
        fill(type);
        stage.renderFrame();
    }
    /*! Asks for a picture and lets it arrive; a null one is a failure. Renders a frame before and one after. */
    bool show(const QImage &image = episodePicture())
    {
        ask();
        stage.renderFrame();
        if (!pictures.deliver(picture, image) || !QTest::qWaitFor([this] { return stage.wantsFrame(); }))
            return false;
        stage.renderFrame();
        return true;
    }

    QSGNode *rootNode() { return stbtest::paintNode(cell.get()); }
    /*! The picture, if there is one, the overlay, the title and the subtitle. */
    QList<stbtest::NodeInfo> children() { return stbtest::childNodes(rootNode()); }
    stbtest::NodeInfo overlay() { return children()[children().size() - 3]; }
    QList<stbtest::NodeInfo> onTile() { return stbtest::childNodes(overlay().node); }
};

#endif // STBTEST_EPISODESSCENE_H
