// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "textpictures.h"

using namespace textpictures;

class tst_TextPlacement : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void inkNeverLeavesTheRectangle_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("j") << QStringLiteral("jfj");
        QTest::newRow("f") << QStringLiteral("Tuff");
        QTest::newRow("mark on i") << "i\u0302\u0303 i\u0302"_u;
        QTest::newRow("Arabic") << "ورحمة الله"_u;
        QTest::newRow("lines") << QStringLiteral("jelly\nfff\nWAVf");
    }

    void inkNeverLeavesTheRectangle()
    {
        QFETCH(QString, text);
        for (int size = 9; size < 60; size += 3) {
            for (Qt::Alignment alignment : { Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight }) {
                QFont font(QStringLiteral("DejaVu Serif"));
                font.setItalic(true);
                font.setPixelSize(size);
                TextRenderer renderer = laidOut(text, unlimited, 3, alignment);
                renderer.setTextFont(font);
                renderer.relayout();
                const QRect ink = inkOf(painted(renderer, 40));
                const QRect allowed = renderer.boundingRect().translated(40, 40);
                QVERIFY2(ink.left() >= allowed.left() && ink.right() <= allowed.right(),
                         qPrintable(QStringLiteral("%1 px: ink from %2 to %3 of %4")
                                            .arg(size)
                                            .arg(ink.left() - 40)
                                            .arg(ink.right() - 40)
                                            .arg(allowed.width())));
            }
        }
    }

    void linesStandWhereTheAlignmentPutsThem_data()
    {
        QTest::addColumn<QString>("text"); // a wide line and a narrow one
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::addColumn<int>("place"); // of the narrow one: -1 left, 0 centre, 1 right
        const QString latin = QStringLiteral("MMMMMMMM\nMM");
        const QString hebrew = "שלום עולם\nאב"_u;
        const Qt::Alignment absolute = Qt::AlignAbsolute;
        QTest::newRow("left") << latin << Qt::Alignment(Qt::AlignLeft) << -1;
        QTest::newRow("none") << latin << Qt::Alignment() << -1;
        QTest::newRow("justify") << latin << Qt::Alignment(Qt::AlignJustify) << -1;
        QTest::newRow("centre") << latin << Qt::Alignment(Qt::AlignHCenter) << 0;
        QTest::newRow("both centres") << latin << Qt::Alignment(Qt::AlignCenter) << 0;
        QTest::newRow("right") << latin << Qt::Alignment(Qt::AlignRight) << 1;
        QTest::newRow("absolute right") << latin << (absolute | Qt::AlignRight) << 1;
        QTest::newRow("Hebrew, left") << hebrew << Qt::Alignment(Qt::AlignLeft) << 1;
        QTest::newRow("Hebrew, none") << hebrew << Qt::Alignment() << 1;
        QTest::newRow("Hebrew, centre") << hebrew << Qt::Alignment(Qt::AlignHCenter) << 0;
        QTest::newRow("Hebrew, right") << hebrew << Qt::Alignment(Qt::AlignRight) << -1;
        QTest::newRow("Hebrew, absolute left") << hebrew << (absolute | Qt::AlignLeft) << -1;
        QTest::newRow("Hebrew, absolute right") << hebrew << (absolute | Qt::AlignRight) << 1;
    }

    void linesStandWhereTheAlignmentPutsThem()
    {
        QFETCH(QString, text);
        QFETCH(Qt::Alignment, alignment);
        QFETCH(int, place);
        const TextRenderer renderer = laidOut(text, unlimited, 2, alignment);
        const QRect ink = inkOfLine(renderer, 1);
        const int width = renderer.boundingRect().width();
        const int left = ink.left();
        const int right = width - 1 - ink.right();
        const int bearing = 4; // pixels between the edge of a letter's box and its ink
        if (place < 0)
            QVERIFY2(left <= bearing && right > 30, qPrintable(QStringLiteral("%1 %2").arg(left).arg(right)));
        else if (place > 0)
            QVERIFY2(right <= bearing && left > 30, qPrintable(QStringLiteral("%1 %2").arg(left).arg(right)));
        else
            QVERIFY2(qAbs(left - right) <= bearing && left > 15,
                     qPrintable(QStringLiteral("%1 %2").arg(left).arg(right)));
    }

    void theVerticalAlignmentHasNoEffect()
    {
        const QImage picture = painted(laidOut(QStringLiteral("one\ntwo"), unlimited, 5, Qt::AlignRight));
        for (Qt::Alignment vertical : { Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom, Qt::AlignBaseline }) {
            QCOMPARE(painted(laidOut(QStringLiteral("one\ntwo"), unlimited, 5, Qt::AlignRight | vertical)),
                     picture);
        }
    }

    void rightToLeftTextIsShortenedAtItsLeftEnd()
    {
        const QString text = "שלום עולם טוב מאוד"_u;
        const TextRenderer renderer = laidOut(text, 120);
        QVERIFY(renderer.boundingRect().width() <= 120);
        bool found = false;
        for (qsizetype kept = 1; kept < text.size(); ++kept) {
            const QString candidate = text.left(kept) + QChar(0x2026);
            found |= painted(renderer)
                     == paintedByQt({ candidate }, renderer.boundingRect().size(), Qt::RightToLeft);
        }
        QVERIFY(found);
        const QImage dots = painted(renderer).copy(0, 0, 18, renderer.boundingRect().height());
        QVERIFY(inkOf(dots).top() > renderer.boundingRect().height() / 2);
    }

    void arabicAndHebrewAreShapedAsQtShapesThem()
    {
        for (const QString &text : { "السلام عليكم"_u, "שלום (abc) 123"_u }) {
            const TextRenderer renderer = laidOut(text);
            QCOMPARE(painted(renderer).size().width() >= naturalWidth(text), true);
            QCOMPARE(painted(renderer),
                     paintedByQt({ text }, renderer.boundingRect().size(), Qt::RightToLeft));
        }
    }
};

STB_TEST_MAIN(tst_TextPlacement)
#include "tst_textplacement.moc"
