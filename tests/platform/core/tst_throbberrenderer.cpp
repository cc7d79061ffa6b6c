// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "textpictures.h"

#include <stbcore/throbberrenderer.h>

#include <QtCore/qabstracteventdispatcher.h>
#include <QtCore/qcoreevent.h>
#include <QtGui/qimage.h>
#include <QtGui/qpainter.h>
#include <QtTest/qsignalspy.h>

#include <cmath>

using stbcore::ThrobberRenderer;
using textpictures::blank;
using textpictures::inkOf;

namespace {

QList<QAbstractEventDispatcher::TimerInfo> timersOf(QObject *object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

// What the event loop does when the throbber's time has come.
void passOneFrame(ThrobberRenderer &throbber)
{
    const auto timers = timersOf(&throbber);
    QCOMPARE(timers.size(), 1);
    QTimerEvent event(timers.constFirst().timerId);
    QCoreApplication::sendEvent(&throbber, &event);
}

QImage painted(ThrobberRenderer &throbber, QSize size = QSize(60, 60))
{
    QImage image = blank(size);
    QPainter painter(&image);
    throbber.draw(painter);
    return image;
}

int inkedPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 0;
    }
    return count;
}

// The mean direction of the paint around the centre, counter-clockwise from three o'clock, in degrees.
qreal direction(const QImage &image)
{
    qreal x = 0;
    qreal y = 0;
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            const int alpha = qAlpha(image.pixel(column, row));
            x += alpha * (column + 0.5 - image.width() / 2.0);
            y -= alpha * (row + 0.5 - image.height() / 2.0);
        }
    }
    return std::atan2(y, x) * 180 / M_PI;
}

} // namespace

class tst_ThrobberRenderer : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void standsStillUntilItIsStarted()
    {
        ThrobberRenderer throbber(nullptr);
        QVERIFY(!throbber.isRunning());
        QVERIFY(timersOf(&throbber).isEmpty());
    }

    void belongsToItsParent()
    {
        QObject parent;
        QPointer<ThrobberRenderer> throbber = new ThrobberRenderer(&parent);
        QCOMPARE(throbber->parent(), &parent);
    }

    void runningHasOneTimerAndStoppedHasNone()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRunning(true);
        QVERIFY(throbber.isRunning());
        QCOMPARE(timersOf(&throbber).size(), 1);
        throbber.setRunning(false);
        QVERIFY(!throbber.isRunning());
        QVERIFY(timersOf(&throbber).isEmpty());
    }

    void startingTwiceKeepsTheOneTimer()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRunning(true);
        const int timer = timersOf(&throbber).constFirst().timerId;
        throbber.setRunning(true);
        QCOMPARE(timersOf(&throbber).size(), 1);
        QCOMPARE(timersOf(&throbber).constFirst().timerId, timer);
    }

    void stoppingTwiceIsStopped()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRunning(true);
        throbber.setRunning(false);
        throbber.setRunning(false);
        QVERIFY(!throbber.isRunning());
        QVERIFY(timersOf(&throbber).isEmpty());
    }

    void twentyFiveFramesASecond()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRunning(true);
        QCOMPARE(timersOf(&throbber).constFirst().interval, 40);
    }

    void updatedComesOncePerFrameAndAtNoOtherTime()
    {
        ThrobberRenderer throbber(nullptr);
        QSignalSpy updated(&throbber, &ThrobberRenderer::updated);
        throbber.setRenderRect(QRect(0, 0, 60, 60));
        throbber.setPenWidth(7);
        throbber.setRunning(true);
        painted(throbber);
        QCOMPARE(updated.size(), 0);
        passOneFrame(throbber);
        QCOMPARE(updated.size(), 1);
        passOneFrame(throbber);
        QCOMPARE(updated.size(), 2);
        throbber.setRunning(false);
        QCOMPARE(updated.size(), 2);
    }

    void framesComeByThemselves()
    {
        ThrobberRenderer throbber(nullptr);
        QSignalSpy updated(&throbber, &ThrobberRenderer::updated);
        throbber.setRunning(true);
        QTRY_VERIFY(updated.size() >= 2);
    }

    void aTimerEventOfSomebodyElseIsNoFrame()
    {
        ThrobberRenderer throbber(nullptr);
        QSignalSpy updated(&throbber, &ThrobberRenderer::updated);
        QTimerEvent foreign(12345);
        QCoreApplication::sendEvent(&throbber, &foreign);
        throbber.setRunning(true);
        QCoreApplication::sendEvent(&throbber, &foreign);
        QCOMPARE(updated.size(), 0);
    }

    void everyFrameOfATurnLooksDifferentAndTheNextTurnTheSame()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRenderRect(QRect(0, 0, 60, 60));
        throbber.setRunning(true);
        QList<QImage> frames;
        for (int frame = 0; frame < 30; ++frame) {
            const QImage picture = painted(throbber);
            QVERIFY2(!frames.contains(picture), qPrintable(QString::number(frame)));
            frames.append(picture);
            passOneFrame(throbber);
        }
        QCOMPARE(painted(throbber), frames.constFirst());
    }

    void turnsClockwise()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRenderRect(QRect(0, 0, 60, 60));
        throbber.setRunning(true);
        for (int frame = 0; frame < 30; ++frame) {
            const qreal before = direction(painted(throbber));
            passOneFrame(throbber);
            const qreal turned = std::remainder(before - direction(painted(throbber)), 360);
            QVERIFY2(turned > 8 && turned < 16, qPrintable(QString::number(turned)));
        }
    }

    void drawingDoesNotAdvanceTheFrame()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRenderRect(QRect(0, 0, 60, 60));
        throbber.setRunning(true);
        const QImage first = painted(throbber);
        QCOMPARE(painted(throbber), first);
    }

    void aStoppedThrobberKeepsItsFrameAndGoesOnFromThere()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRenderRect(QRect(0, 0, 60, 60));
        const QImage start = painted(throbber);
        throbber.setRunning(true);
        passOneFrame(throbber);
        const QImage shown = painted(throbber);
        QVERIFY(shown != start);
        throbber.setRunning(false);
        QCOMPARE(painted(throbber), shown);
        throbber.setRunning(true);
        QCOMPARE(painted(throbber), shown);
    }

    void paintsAllOfItsRectangleAndNothingOutside_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<int>("penWidth");
        QTest::addColumn<QRect>("circle"); // the square in the middle that the arc fills
        QTest::newRow("square") << QRect(13, 7, 31, 31) << 5 << QRect(13, 7, 31, 31);
        QTest::newRow("wide") << QRect(3, 7, 51, 31) << 5 << QRect(13, 7, 31, 31);
        QTest::newRow("tall") << QRect(13, 3, 21, 51) << 3 << QRect(13, 18, 21, 21);
        QTest::newRow("pen of 0 counts as 1") << QRect(13, 7, 31, 31) << 0 << QRect(13, 7, 31, 31);
        QTest::newRow("negative pen counts as 1") << QRect(13, 7, 31, 31) << -8 << QRect(13, 7, 31, 31);
        QTest::newRow("pen thicker than it") << QRect(13, 7, 31, 31) << 500 << QRect(13, 7, 31, 31);
        QTest::newRow("one pixel") << QRect(13, 7, 1, 1) << 4 << QRect(13, 7, 1, 1);
    }

    void paintsAllOfItsRectangleAndNothingOutside()
    {
        QFETCH(QRect, rect);
        QFETCH(int, penWidth);
        QFETCH(QRect, circle);
        ThrobberRenderer throbber(nullptr);
        throbber.setRenderRect(rect);
        throbber.setPenWidth(penWidth);
        throbber.setRunning(true);
        QRect ink;
        for (int frame = 0; frame < 30; ++frame) {
            ink |= inkOf(painted(throbber));
            passOneFrame(throbber);
        }
        QCOMPARE(ink, circle);
    }

    void anEmptyRectanglePaintsNothing_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::newRow("null") << QRect();
        QTest::newRow("no width") << QRect(5, 5, 0, 20);
        QTest::newRow("no height") << QRect(5, 5, 20, 0);
        QTest::newRow("negative") << QRect(30, 30, -9, -9);
    }

    void anEmptyRectanglePaintsNothing()
    {
        QFETCH(QRect, rect);
        ThrobberRenderer throbber(nullptr);
        QVERIFY(inkOf(painted(throbber)).isEmpty());
        throbber.setRenderRect(QRect(0, 0, 60, 60));
        throbber.setRenderRect(rect);
        QVERIFY(inkOf(painted(throbber)).isEmpty());
    }

    void isFourPixelsThickByDefault()
    {
        ThrobberRenderer throbber(nullptr);
        QCOMPARE(throbber.penWidth(), 4);
    }

    void thePenWidthIsKeptAsItWasSet()
    {
        ThrobberRenderer throbber(nullptr);
        for (int width : { 9, 0, -3, 1000 }) {
            throbber.setPenWidth(width);
            QCOMPARE(throbber.penWidth(), width);
        }
    }

    void aThickerPenPaintsMore()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRenderRect(QRect(0, 0, 60, 60));
        throbber.setPenWidth(2);
        const int thin = inkedPixels(painted(throbber));
        throbber.setPenWidth(8);
        QVERIFY(inkedPixels(painted(throbber)) > 2 * thin);
    }

    void theArcIsWhiteAndItsTailFadesIntoADarkTrack()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRenderRect(QRect(0, 0, 60, 60));
        throbber.setPenWidth(6);
        for (const QColor &ground : { QColor(Qt::white), QColor(Qt::black) }) {
            QImage picture(60, 60, QImage::Format_RGB32);
            picture.fill(ground);
            QPainter painter(&picture);
            throbber.draw(painter);
            painter.end();
            // The head is at the top and turns clockwise: left of it the arc, right of it the gap.
            const QColor arc = picture.pixelColor(27, 3);
            QVERIFY2(arc.lightness() > 240, qPrintable(arc.name())); // the tail begins to fade at once
            const QColor gap = picture.pixelColor(45, 8);
            QCOMPARE(gap.red(), gap.blue());
            QVERIFY2(gap.lightness() < 128, qPrintable(gap.name()));
        }
    }

    void drawingLeavesThePaintersState()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRenderRect(QRect(0, 0, 60, 60));
        QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        const QPen pen(Qt::red, 7);
        painter.setPen(pen);
        painter.setBrush(Qt::green);
        painter.translate(3, 5);
        const QTransform transform = painter.transform();
        throbber.draw(painter);
        QCOMPARE(painter.pen(), pen);
        QCOMPARE(painter.brush(), QBrush(Qt::green));
        QCOMPARE(painter.transform(), transform);
        QCOMPARE(painter.renderHints(), QPainter::RenderHints(QPainter::TextAntialiasing));
    }

    void drawsInThePaintersCoordinates()
    {
        ThrobberRenderer throbber(nullptr);
        throbber.setRenderRect(QRect(0, 0, 20, 20));
        QImage moved(60, 60, QImage::Format_ARGB32_Premultiplied);
        moved.fill(Qt::transparent);
        QPainter painter(&moved);
        painter.translate(31, 17);
        throbber.draw(painter);
        painter.end();
        QCOMPARE(moved.copy(31, 17, 20, 20), painted(throbber, QSize(20, 20)));
    }
};

STB_TEST_MAIN(tst_ThrobberRenderer)
#include "tst_throbberrenderer.moc"
