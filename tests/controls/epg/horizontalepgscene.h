// SPDX-License-Identifier: MIT
#ifndef STBTEST_HORIZONTALEPGSCENE_H
#define STBTEST_HORIZONTALEPGSCENE_H

#include "epgstyles.h"
#include "testkit/handpictures.h"
#include "testkit/nodes.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"

#include <controls/epg/stbhorizontalepgviewdelegate_p.h>

#include <QtGui/qpainter.h>
#include <QtTest/qtest.h>

/*! A picture of four fields in different colours, so that a shift, a flip or a wrong size shows. */
inline QImage programmePicture()
{
    QImage image(131, 75, QImage::Format_RGB32);
    image.fill(QColor(201, 61, 51));
    QPainter painter(&image);
    painter.fillRect(QRect(43, 0, 131, 25), QColor(61, 171, 91));
    painter.fillRect(QRect(0, 25, 43, 75), QColor(51, 91, 201));
    painter.fillRect(QRect(43, 25, 131, 75), QColor(231, 191, 61));
    return image;
}

/*! The size of the picture that \a cell has loaded; empty while there is none. */
inline QSize pictureSize(StbHorizontalEpgViewDelegate *cell)
{
    return static_cast<StbHorizontalEpgViewDelegatePrivate *>(QQuickItemPrivate::get(cell))->m_picture.size();
}

/*!
    A \a Stage with one cell, made by a QML engine, at 20, 30 on a coloured ground; its pictures arrive when the
    test says so. The cell has a size and nothing else.
*/
template <typename Stage>
struct HorizontalEpgScene
{
    using StyleObject = design_system::PlayerHorizontalEpgViewQmlStyle;

    HorizontalEpgScene()
    {
        style.setStyle(oddHorizontalEpgStyle());
        other.setStyle(otherHorizontalEpgStyle());
        makeCell();
    }

    void makeCell()
    {
        cell = qml.createItem<StbHorizontalEpgViewDelegate>(
                QStringLiteral("import Stbui.UI.Qml.Controls.Basic\nHorizontalEpgViewDelegate {}"),
                stage.contentItem());
        if (!cell)
            qFatal("no cell");
        cell->setPosition(QPointF(20, 30));
        cell->setSize(QSizeF(500, 161));
    }

    void fill()
    {
        cell->setStyle(&style);
        cell->setExactDate(QStringLiteral("Today, 20:05"));
        cell->setTitle(QStringLiteral("Evening news"));
        cell->setDescription(QStringLiteral("What happened today, and the weather of tomorrow."));
    }
    void ask(const QString &name = QStringLiteral("still"))
    {
        cell->setImageSource(stbtest::HandPictures::url(name));
    }

    Stage stage { QSize(560, 250), QColor(0, 60, 40) };
    StyleObject style; // odd
    StyleObject other;
    stbtest::QmlScene qml;
    stbtest::HandPictures pictures { qml.engine() };
    std::unique_ptr<StbHorizontalEpgViewDelegate> cell;
};

/*! The same with an offscreen stage. */
struct OffscreenHorizontalEpgScene : HorizontalEpgScene<stbtest::Stage>
{
    void fillAndPaint()
    {
        fill();
        stage.renderFrame();
    }
    /*! Asks for a picture and lets it arrive; a null one is a failure. */
    bool show(const QImage &picture = programmePicture(), const QString &name = QStringLiteral("still"))
    {
        ask(name);
        return arrive(picture, name);
    }
    /*! Lets a picture that was asked for arrive. Renders a frame before and one after. */
    bool arrive(const QImage &picture, const QString &name = QStringLiteral("still"))
    {
        stage.renderFrame();
        if (!pictures.deliver(name, picture) || !QTest::qWaitFor([this] { return stage.wantsFrame(); }))
            return false;
        stage.renderFrame();
        return true;
    }

    QList<stbtest::NodeInfo> children() { return stbtest::childNodes(stbtest::paintNode(cell.get())); }
    stbtest::NodeInfo root() { return stbtest::nodeTree(stbtest::paintNode(cell.get())).first(); }
    /*! Where \a node lies on the stage. */
    static QRect onStage(const stbtest::NodeInfo &node)
    {
        return node.rect.toAlignedRect().translated(20, 30);
    }
};

#endif // STBTEST_HORIZONTALEPGSCENE_H
