// SPDX-License-Identifier: MIT
#ifndef STBTEST_TVCHANNELSCENE_H
#define STBTEST_TVCHANNELSCENE_H

#include "epgstyles.h"
#include "testkit/handpictures.h"
#include "testkit/nodes.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"

#include <controls/epg/stbtvchannelviewdelegate_p.h>

#include <QtGui/qpainter.h>
#include <QtTest/qtest.h>

/*! An application's translation of one text in the context "QObject", in force as long as it lives. */
class Translation : public QTranslator
{
public:
    Translation(const QByteArray &source, const QString &text)
        : m_source(source)
        , m_text(text)
    {
        QCoreApplication::installTranslator(this);
    }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "QObject") == 0 && m_source == source ? m_text : QString();
    }
    bool isEmpty() const override { return false; }

private:
    QByteArray m_source;
    QString m_text;
};

/*! A logo of four fields in different colours, in the size in which it is shown. */
inline QImage logoPicture(const QColor &first = QColor(201, 61, 51))
{
    QImage image(121, 67, QImage::Format_RGB32);
    image.fill(first);
    QPainter painter(&image);
    painter.fillRect(QRect(41, 0, 121, 23), QColor(61, 171, 91));
    painter.fillRect(QRect(0, 23, 41, 67), QColor(51, 91, 201));
    painter.fillRect(QRect(41, 23, 121, 67), QColor(231, 191, 61));
    return image;
}

/*! The cell \a number of the sheet of placeholders, in the size in which it is shown. */
inline QRect canvasCell(int number)
{
    return { 3 + 127 * number, 5, 121, 67 };
}

/*! A sheet of three cells, each of its own colour with a darker corner, on white. */
inline QPixmap channelCanvas()
{
    QPixmap sheet(400, 80);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    const QColor colors[] = { QColor(91, 101, 121), QColor(121, 91, 61), QColor(61, 111, 81) };
    for (int i = 0; i < 3; ++i) {
        painter.fillRect(canvasCell(i), colors[i]);
        painter.fillRect(QRect(canvasCell(i).topLeft(), QSize(31, 17)), colors[i].darker());
    }
    return sheet;
}

/*!
    A \a Stage with one row, made by a QML engine, at 20, 30 on a coloured ground; its logos arrive when the test
    says so. The row has a size and nothing else.
*/
template <typename Stage>
struct TvChannelScene
{
    using StyleObject = design_system::PlayerTvChannelItemQmlStyle;

    TvChannelScene()
    {
        style.setStyle(oddTvChannelStyle());
        other.setStyle(otherTvChannelStyle());
        row = qml.createItem<StbTvChannelViewDelegate>(
                QStringLiteral("import Stbui.UI.Qml.Controls.Basic\nTvChannelViewDelegate {}"),
                stage.contentItem());
        if (!row)
            qFatal("no row");
        row->setPosition(QPointF(20, 30));
        row->setSize(QSizeF(600, 111));
    }

    /*! What a channel has that is neither on the screen nor locked. */
    void fill()
    {
        row->setStyle(&style);
        row->setChannelNumber(QStringLiteral("47"));
        row->setChannelQuality(QStringLiteral("HD"));
        row->setChannelName(QStringLiteral("Rivers"));
        row->setProgramName(QStringLiteral("The Nature of Rivers"));
        row->setProgress(0.5);
    }
    void setCell(int number = 0)
    {
        row->setCanvas(channelCanvas());
        row->setCachedChannelRect(canvasCell(number));
    }
    void ask(const QString &name = QStringLiteral("logo"))
    {
        row->setImageSource(stbtest::HandPictures::url(name));
    }
    StbTvChannelViewDelegatePrivate *d() const
    {
        return static_cast<StbTvChannelViewDelegatePrivate *>(QQuickItemPrivate::get(row.get()));
    }

    Stage stage { QSize(640, 170), QColor(0, 60, 40) };
    StyleObject style; // odd
    StyleObject other;
    stbtest::QmlScene qml;
    stbtest::HandPictures pictures { qml.engine() };
    std::unique_ptr<StbTvChannelViewDelegate> row;
};

/*! The same with an offscreen stage. */
struct OffscreenTvChannelScene : TvChannelScene<stbtest::Stage>
{
    void fillAndPaint()
    {
        fill();
        stage.renderFrame();
    }
    /*! Asks for a logo and lets it arrive; a null one is a failure. */
    bool show(const QImage &picture = logoPicture(), const QString &name = QStringLiteral("logo"))
    {
        ask(name);
        return arrive(picture, name);
    }
    /*! Lets a logo that was asked for arrive. Renders a frame before and one after. */
    bool arrive(const QImage &picture, const QString &name = QStringLiteral("logo"))
    {
        stage.renderFrame();
        if (!pictures.deliver(name, picture) || !QTest::qWaitFor([this] { return stage.wantsFrame(); }))
            return false;
        stage.renderFrame();
        return true;
    }

    QList<stbtest::NodeInfo> children() { return stbtest::childNodes(stbtest::paintNode(row.get())); }
    /*! What the stage shows in the logo's place. */
    QImage shownLogo() const
    {
        return stage.picture().copy(20 + 11, 30 + 15, 121, 67).convertToFormat(QImage::Format_RGB32);
    }
    /*! Where \a node lies on the stage. */
    static QRect onStage(const stbtest::NodeInfo &node)
    {
        return node.rect.toAlignedRect().translated(20, 30);
    }
    /*! What a row paints that got everything at once. */
    static QImage freshPicture(const std::function<void(OffscreenTvChannelScene &)> &change)
    {
        OffscreenTvChannelScene scene;
        scene.fill();
        change(scene);
        scene.stage.renderFrame();
        return scene.stage.picture();
    }
};

#endif // STBTEST_TVCHANNELSCENE_H
