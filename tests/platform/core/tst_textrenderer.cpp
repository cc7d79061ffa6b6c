// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "textpictures.h"

#include <stbcore/textcounters.h>

#include <QtGui/qpainter.h>

using namespace textpictures;

class tst_TextRenderer : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aNewRendererHasTheDefaultsAndNeedsNoRelayout()
    {
        const TextRenderer renderer;
        QCOMPARE(renderer.text(), QString());
        QCOMPARE(renderer.textFont(), QFont());
        QCOMPARE(renderer.maxTextWidth(), 2147483647);
        QCOMPARE(renderer.maxLineCount(), 1);
        QCOMPARE(renderer.textAlignment(), Qt::AlignLeft | Qt::AlignTop);
        QVERIFY(!renderer.isNeedRelayout());
        QCOMPARE(renderer.boundingRect(), QRect(0, 0, 0, 0));
    }

    void settersAreReadBack()
    {
        TextRenderer renderer;
        renderer.setText(QStringLiteral("seven"));
        renderer.setTextFont(font22());
        renderer.setMaxTextWidth(137);
        renderer.setMaxLineCount(3);
        renderer.setTextAlignment(Qt::AlignRight | Qt::AlignBottom);
        QCOMPARE(renderer.text(), QStringLiteral("seven"));
        QCOMPARE(renderer.textFont(), font22());
        QCOMPARE(renderer.maxTextWidth(), 137);
        QCOMPARE(renderer.maxLineCount(), 3);
        QCOMPARE(renderer.textAlignment(), Qt::AlignRight | Qt::AlignBottom);
        renderer.setMaxTextWidth(-5);
        QCOMPARE(renderer.maxTextWidth(), -5);
    }

    void aLineCountBelowOneCountsAsOne()
    {
        TextRenderer renderer = laidOut(QStringLiteral("one two three"), 60, 3);
        for (int count : { 0, -4, -2147483647 - 1 }) {
            renderer.setMaxLineCount(3);
            renderer.setMaxLineCount(count);
            QCOMPARE(renderer.maxLineCount(), 1);
            renderer.relayout();
            QCOMPARE(renderer.boundingRect().height(), heightOfLines(1));
        }
    }

    void aNewRendererAsksForRelayoutOnceAValueReallyChanges()
    {
        TextRenderer renderer;
        renderer.setText(QString());
        renderer.setText(QString(QLatin1String("")));
        renderer.setTextFont(QFont());
        renderer.setMaxTextWidth(unlimited);
        renderer.setMaxLineCount(1);
        renderer.setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
        renderer.relayout();
        QVERIFY(!renderer.isNeedRelayout());
        renderer.setText(QStringLiteral("a"));
        QVERIFY(renderer.isNeedRelayout());
        QCOMPARE(renderer.boundingRect(), QRect());
        renderer.relayout();
        QVERIFY(!renderer.isNeedRelayout());
        QCOMPARE(renderer.boundingRect().topLeft(), QPoint(0, 0));
        QVERIFY(!renderer.boundingRect().isEmpty());
    }

    void everySetterThatChangesTheLayoutAsksForRelayout_data()
    {
        QTest::addColumn<int>("setter");
        QTest::newRow("text") << 0;
        QTest::newRow("font") << 1;
        QTest::newRow("width") << 2;
        QTest::newRow("lines") << 3;
        QTest::newRow("alignment") << 4;
    }

    void everySetterThatChangesTheLayoutAsksForRelayout()
    {
        QFETCH(int, setter);
        TextRenderer renderer = laidOut(QStringLiteral("one two"), 300, 2);
        QVERIFY(!renderer.isNeedRelayout());
        const auto set = [&renderer, setter] {
            QFont small = font22();
            small.setPixelSize(13);
            switch (setter) {
            case 0:
                return renderer.setText(QStringLiteral("three"));
            case 1:
                return renderer.setTextFont(small);
            case 2:
                return renderer.setMaxTextWidth(55);
            case 3:
                return renderer.setMaxLineCount(5);
            default:
                return renderer.setTextAlignment(Qt::AlignHCenter);
            }
        };
        set();
        QVERIFY(renderer.isNeedRelayout());
        renderer.relayout();
        QVERIFY(!renderer.isNeedRelayout());
        set();
        QVERIFY(!renderer.isNeedRelayout());
    }

    void valuesThatChangeNothingInTheLayoutAskForNone()
    {
        TextRenderer renderer = laidOut(QStringLiteral("one"));
        renderer.setMaxLineCount(0);
        renderer.setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        renderer.setTextAlignment(Qt::AlignBottom);
        QVERIFY(!renderer.isNeedRelayout());
        QCOMPARE(renderer.textAlignment(), Qt::Alignment(Qt::AlignBottom));
        renderer.setMaxTextWidth(0);
        renderer.relayout();
        renderer.setMaxTextWidth(-7);
        QVERIFY(!renderer.isNeedRelayout());
    }

    void aValueThatWasSetBackStillAsksForRelayout()
    {
        TextRenderer renderer = laidOut(QStringLiteral("one"));
        renderer.setText(QStringLiteral("two"));
        renderer.setText(QStringLiteral("one"));
        QVERIFY(renderer.isNeedRelayout());
        const quint64 before = stbcore::textLayoutCount();
        renderer.relayout();
        QCOMPARE(stbcore::textLayoutCount(), before);
    }

    void relayoutThatIsNotNeededDoesNoWork()
    {
        TextRenderer renderer = laidOut(QStringLiteral("one two three"), 90, 2);
        const quint64 before = stbcore::textLayoutCount();
        renderer.relayout();
        renderer.relayout();
        TextRenderer().relayout();
        QCOMPARE(stbcore::textLayoutCount(), before);
    }

    void oneTextIsShapedOnceAndAShortenedOneTwice_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("lines");
        QTest::addColumn<quint64>("count");
        const QString text = QStringLiteral("one two three four five");
        QTest::newRow("fits") << text << unlimited << 1 << quint64(1);
        QTest::newRow("wraps") << text << 100 << 5 << quint64(1);
        QTest::newRow("shortened") << text << 100 << 2 << quint64(2);
        QTest::newRow("cut at a line break") << QStringLiteral("one\ntwo") << unlimited << 1 << quint64(1);
        QTest::newRow("empty") << QString() << 100 << 2 << quint64(0);
        QTest::newRow("no width") << text << 0 << 2 << quint64(0);
    }

    void oneTextIsShapedOnceAndAShortenedOneTwice()
    {
        QFETCH(QString, text);
        QFETCH(int, width);
        QFETCH(int, lines);
        QFETCH(quint64, count);
        const quint64 before = stbcore::textLayoutCount();
        const TextRenderer renderer = laidOut(text, width, lines);
        renderer.boundingRect();
        if (!renderer.boundingRect().isEmpty()) {
            painted(renderer);
            painted(renderer);
        }
        QCOMPARE(stbcore::textLayoutCount() - before, count);
    }

    void aChangeThatLeavesTheLinesAsTheyAreShapesNothing()
    {
        TextRenderer renderer = laidOut(QStringLiteral("one two"), 300, 2);
        const quint64 before = stbcore::textLayoutCount();
        renderer.setMaxTextWidth(200);
        renderer.relayout();
        renderer.setMaxLineCount(1);
        renderer.relayout();
        renderer.setTextAlignment(Qt::AlignRight);
        renderer.relayout();
        QCOMPARE(stbcore::textLayoutCount(), before);
        VERIFY_SHOWS(renderer, QStringLiteral("one two"));
    }

    void anyOrderOfChangesEndsInTheSamePicture()
    {
        const QStringList texts { QStringLiteral("one two three four"), QStringLiteral("a\nb\n\n"),
                                  QStringLiteral("jackdaws love my big sphinx   "), "שלום עולם abc"_u };
        TextRenderer walker = laidOut(texts.constFirst());
        quint32 seed = 12345;
        const auto random = [&seed](int below) {
            seed = seed * 1664525u + 1013904223u;
            return int((seed >> 8) % quint32(below));
        };
        for (int step = 0; step < 400; ++step) {
            switch (random(4)) {
            case 0:
                walker.setText(texts.at(random(4)));
                break;
            case 1:
                walker.setMaxTextWidth(QList<int> { 1, 40, 120, 260, unlimited }.at(random(5)));
                break;
            case 2:
                walker.setMaxLineCount(1 + random(5));
                break;
            default:
                walker.setTextAlignment(Qt::Alignment(1 << random(3)));
            }
            walker.relayout();
            const TextRenderer fresh = laidOut(walker.text(), walker.maxTextWidth(), walker.maxLineCount(),
                                               walker.textAlignment());
            QCOMPARE(walker.boundingRect(), fresh.boundingRect());
            QCOMPARE(painted(walker), painted(fresh));
        }
    }

    void theLastLayoutIsKeptUntilTheNextRelayout()
    {
        TextRenderer renderer = laidOut(QStringLiteral("one two"), 300, 2);
        const QRect rect = renderer.boundingRect();
        const QImage picture = painted(renderer);
        renderer.setText(QStringLiteral("something else"));
        renderer.setMaxTextWidth(40);
        QCOMPARE(renderer.boundingRect(), rect);
        QCOMPARE(painted(renderer), picture);
        renderer.relayout();
        QVERIFY(renderer.boundingRect() != rect);
        QVERIFY(painted(renderer) != picture);
    }

    void copiesShareTheLayoutAndDoNotChangeWithEachOther()
    {
        const TextRenderer original = laidOut(QStringLiteral("one two three"), 90, 2);
        const QImage picture = painted(original);
        const quint64 before = stbcore::textLayoutCount();
        TextRenderer copy = original;
        QVERIFY(!copy.isNeedRelayout());
        copy.setTextAlignment(Qt::AlignRight);
        QVERIFY(copy.isNeedRelayout());
        QVERIFY(!original.isNeedRelayout());
        QCOMPARE(painted(copy), picture);
        copy.relayout();
        QCOMPARE(stbcore::textLayoutCount(), before);
        QVERIFY(painted(copy) != picture);
        copy.setText(QStringLiteral("other"));
        copy.relayout();
        QCOMPARE(original.text(), QStringLiteral("one two three"));
        QCOMPARE(painted(original), picture);
    }

    void aChangedOriginalLeavesItsCopyAsItIs()
    {
        TextRenderer original = laidOut(QStringLiteral("one two three"), 90, 2);
        const TextRenderer copy = original;
        const QImage picture = painted(copy);
        original.setText(QStringLiteral("other"));
        original.setMaxTextWidth(31);
        original.setMaxLineCount(5);
        original.setTextAlignment(Qt::AlignRight);
        original.setTextFont(QFont());
        original.relayout();
        QCOMPARE(copy.text(), QStringLiteral("one two three"));
        QCOMPARE(copy.maxTextWidth(), 90);
        QCOMPARE(copy.maxLineCount(), 2);
        QCOMPARE(copy.textAlignment(), Qt::Alignment(Qt::AlignLeft));
        QCOMPARE(copy.textFont(), font22());
        QVERIFY(!copy.isNeedRelayout());
        QCOMPARE(painted(copy), picture);
    }

    void aCopyThatNeedsRelayoutIsLaidOutForItself()
    {
        TextRenderer original = laidOut(QStringLiteral("one"));
        const QRect rect = original.boundingRect();
        original.setText(QStringLiteral("one two three"));
        TextRenderer copy = original;
        QVERIFY(copy.isNeedRelayout());
        copy.relayout();
        QVERIFY(!copy.isNeedRelayout());
        QVERIFY(copy.boundingRect().width() > rect.width());
        QVERIFY(original.isNeedRelayout());
        QCOMPARE(original.boundingRect(), rect);
    }

    void aCopyOutlivesItsOriginal()
    {
        auto original = std::make_unique<TextRenderer>(laidOut(QStringLiteral("one two")));
        const QImage picture = painted(*original);
        const TextRenderer copy = *original;
        TextRenderer assigned;
        assigned = *original;
        original.reset();
        QCOMPARE(painted(copy), picture);
        QCOMPARE(painted(assigned), picture);
    }

    void drawsWithThePensColour()
    {
        const QImage picture = painted(laidOut(QStringLiteral("MMM")), 0, QPen(QColor(250, 130, 20)));
        bool solid = false;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                solid |= picture.pixel(x, y) == qRgb(250, 130, 20);
        }
        QVERIFY(solid);
    }

    void drawsAtThePaintersOrigin()
    {
        const TextRenderer renderer = laidOut(QStringLiteral("Hello"));
        const QImage moved = painted(renderer, 17);
        QCOMPARE(moved.copy(QRect(QPoint(17, 17), renderer.boundingRect().size())), painted(renderer));
    }

    void drawingLeavesThePaintersState()
    {
        for (int width : { 3, 300 }) {
            const TextRenderer renderer = laidOut(QStringLiteral("MMM"), width);
            QImage image = blank(QSize(90, 90));
            QPainter painter(&image);
            const QPen pen(Qt::green, 5);
            QFont font = font22();
            font.setPixelSize(31);
            painter.setPen(pen);
            painter.setBrush(Qt::red);
            painter.setFont(font);
            painter.translate(7, 11);
            const QTransform transform = painter.transform();
            drawTextRenderer(painter, renderer, QPen(Qt::white));
            QCOMPARE(painter.pen(), pen);
            QCOMPARE(painter.brush(), QBrush(Qt::red));
            QCOMPARE(painter.font(), font);
            QCOMPARE(painter.transform(), transform);
            QVERIFY(!painter.hasClipping());
        }
    }
};

STB_TEST_MAIN(tst_TextRenderer)
#include "tst_textrenderer.moc"
