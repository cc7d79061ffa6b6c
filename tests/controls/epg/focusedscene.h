// SPDX-License-Identifier: MIT
#ifndef STBTEST_FOCUSEDSCENE_H
#define STBTEST_FOCUSEDSCENE_H

#include "epgstyles.h"
#include "epgtexts.h"
#include "testkit/handpictures.h"
#include "testkit/nodes.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepgviewdelegatefocused.h>
#include <stbcore/textrenderer.h>

#include <QtGui/qpainter.h>

#include <map>

/*! Where a row lies on its stage. */
inline const QPoint rowPosition(20, 30);
inline const QColor stageGround(0, 60, 40);

/*! An application's translations of what a focused row shows, in force as long as they live. */
class EpgWords : public QTranslator
{
public:
    EpgWords()
    {
        const QByteArray list("stbui::EpgListModel");
        words = { { { "QObject", "NOW_IN_LIVE" }, "LIVE" },
                  { { "QObject", "WATCH_UNAVAILABLE" }, "Not available any more" },
                  { { "QObject", "LIVE_SOON" }, "On air soon" },
                  { { "QObject", "ADD_REMINDER" }, "Remind me" },
                  { { "QObject", "DELETE_REMINDER" }, "Forget the reminder" },
                  { { list, "REMINDER_WAS_SET" }, "Reminder is set" },
                  { { list, "ON" }, "From" } };
        QCoreApplication::installTranslator(this);
    }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const auto found = words.find({ context, source });
        return found == words.end() ? QString() : found->second;
    }
    bool isEmpty() const override { return false; }

    std::map<std::pair<QByteArray, QByteArray>, QString> words;
};

/*! A picture of four fields in different colours, so that a shift, a flip or a wrong size shows. */
inline QImage fieldsPicture(const QSize &size = QSize(139, 71))
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

/*! What a text of \a style looks like in \a color. */
inline QImage textPicture(const design_system::TextStyle &style, const QString &text, int width,
                          const QColor &color)
{
    stbcore::TextRenderer renderer;
    stbtest::layOutText(renderer, style, text, width);
    QImage image(renderer.boundingRect().size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    stbcore::drawTextRenderer(painter, renderer, QPen(color));
    return image;
}

/*! A stage with one focused row, made by a QML engine, with pictures that arrive when the test says so. */
struct FocusedScene
{
    explicit FocusedScene(const QString &content = QString())
    {
        style.setStyle(oddEpgStyle());
        row = qml.createItem<StbEpgViewDelegateFocused>(
                QStringLiteral("import Stbui.UI.Qml.Controls.Basic\nEpgViewDelegateFocused { %1 }")
                        .arg(content),
                stage.contentItem());
        if (!row)
            qFatal("no row");
        row->setPosition(rowPosition);
        row->setWidth(580);
    }

    void fill()
    {
        row->setStyle(&style);
        row->setStartTimeText("20:05");
        row->setTitle("Evening news");
        row->setSubtitle("With the weather");
    }
    void setState(bool playable, bool live, bool past, bool future, bool reminder = false)
    {
        row->setPlayable(playable);
        row->setLive(live);
        row->setPast(past);
        row->setFuture(future);
        row->setReminder(reminder);
    }
    /*! Gives the row a picture and lets it arrive. */
    bool show(const QImage &picture, const QString &name = QStringLiteral("picture"))
    {
        row->setImageSource(stbtest::HandPictures::url(name));
        return arrive(picture, name);
    }
    bool arrive(const QImage &picture, const QString &name = QStringLiteral("picture"))
    {
        stage.renderFrame();
        return pictures.deliver(name, picture) && QTest::qWaitFor([this] { return stage.wantsFrame(); });
    }

    QList<stbtest::NodeInfo> children() { return stbtest::childNodes(stbtest::paintNode(row.get())); }
    /*! The card: the last child, a badge and a picture lie before it. */
    stbtest::NodeInfo card() { return children().last(); }
    QList<stbtest::NodeInfo> parts() { return stbtest::childNodes(card().node); }

    const EpgWords words;
    stbtest::QmlScene qml;
    stbtest::HandPictures pictures { qml.engine() };
    stbtest::Stage stage { QSize(640, 440), stageGround };
    design_system::PlayerEpgDelegateQmlStyle style;
    std::unique_ptr<StbEpgViewDelegateFocused> row;
};

/*! Where \a node lies on the stage. */
inline QRect onStage(const stbtest::NodeInfo &node)
{
    return node.rect.toRect().translated(rowPosition);
}

#endif // STBTEST_FOCUSEDSCENE_H
