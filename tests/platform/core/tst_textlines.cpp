// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "textpictures.h"

#include <stbcore/textcounters.h>

#include <QtCore/qtextboundaryfinder.h>
#include <QtGui/qfontmetrics.h>
#include <QtGui/qtextlayout.h>

using namespace textpictures;

namespace {

QStringList wrappedByQt(const QString &text, int width)
{
    QTextLayout layout(text, font22());
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.append(text.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return lines;
}

// As much of the text as fits with "…" behind it.
QString shortened(const QString &text, int width)
{
    for (qsizetype kept = text.size() - 1; kept > 0; --kept) {
        const QString line = text.left(kept).trimmed() + QChar(0x2026);
        if (naturalWidth(line) <= width)
            return line;
    }
    return QString(QChar(0x2026));
}

} // namespace

class tst_TextLines : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void anEmptyTextOrNoWidthIsTheNullRectangle_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::newRow("null text") << QString() << 300;
        QTest::newRow("empty text") << QString(QLatin1String("")) << 300;
        QTest::newRow("width 0") << QStringLiteral("text") << 0;
        QTest::newRow("negative width") << QStringLiteral("text") << -1;
        QTest::newRow("lowest width") << QStringLiteral("text") << -2147483647 - 1;
    }

    void anEmptyTextOrNoWidthIsTheNullRectangle()
    {
        QFETCH(QString, text);
        QFETCH(int, width);
        TextRenderer renderer = laidOut(QStringLiteral("before"));
        renderer.setText(text);
        renderer.setMaxTextWidth(width);
        renderer.relayout();
        const QRect rect = renderer.boundingRect();
        QCOMPARE(QList<int>({ rect.left(), rect.top(), rect.right(), rect.bottom() }),
                 QList<int>({ 0, 0, -1, -1 }));
        QVERIFY(inkOf(painted(renderer, 30)).isEmpty());
    }

    void theRectangleIsAsWideAsTheWidestLineAndAsHighAsAll_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("lines");
        QTest::addColumn<QStringList>("shown");
        const auto row = [](const char *name, const QString &text, int width, int lines,
                            const QStringList &shown) {
            QTest::newRow(name) << text << width << lines << shown;
        };
        const QString hello = QStringLiteral("Hello world of text");
        const QString nl = QStringLiteral("\n");
        row("one line", hello, unlimited, 1, { hello });
        row("unlimited lines", hello, unlimited, unlimited, { hello });
        row("exactly wide enough", hello, naturalWidth(hello), 1, { hello });
        row("one pixel too narrow", hello, naturalWidth(hello) - 1, 1,
            { QStringLiteral("Hello world of t…") });
        row("at words", hello, 110, 3,
            { QStringLiteral("Hello"), QStringLiteral("world of"), QStringLiteral("text") });
        row("shortened", hello, 120, 2, { QStringLiteral("Hello"), QStringLiteral("world of…") });
        row("no space before …", QStringLiteral("Hello world"), naturalWidth(QStringLiteral("Hello …")) + 1,
            1, { QStringLiteral("Hello…") });
        row("in a long word", QStringLiteral("MMMMM"), 2 * naturalWidth(QStringLiteral("M")), 3,
            { QStringLiteral("MM"), QStringLiteral("MM"), QStringLiteral("M") });
        row("long word after a short one", QStringLiteral("i MMMMM"), 2 * naturalWidth(QStringLiteral("M")),
            4, { QStringLiteral("i"), QStringLiteral("MM"), QStringLiteral("MM"), QStringLiteral("M") });
        row("line break", QStringLiteral("a\nbcd"), unlimited, 2,
            { QStringLiteral("a"), QStringLiteral("bcd") });
        row("empty line", QStringLiteral("a\n\nb"), unlimited, 3,
            { QStringLiteral("a"), QString(), QStringLiteral("b") });
        row("leading break", QStringLiteral("\nb"), unlimited, 3, { QString(), QStringLiteral("b") });
        row("trailing break with room", QStringLiteral("b\n"), unlimited, 2,
            { QStringLiteral("b"), QString() });
        row("trailing breaks without room", QStringLiteral("b\n \r\n\n"), unlimited, 1,
            { QStringLiteral("b") });
        row("cut at a break", QStringLiteral("a\nb"), unlimited, 1, { QStringLiteral("a…") });
        row("cut at the second break", QStringLiteral("a\nb\nc"), unlimited, 2,
            { QStringLiteral("a"), QStringLiteral("b…") });
        row("cut at a break in a narrow line", QStringLiteral("MMM\nb"), naturalWidth(QStringLiteral("MMM")),
            1, { QStringLiteral("M…") });
        row("only a break before the cut", QStringLiteral("\nb"), unlimited, 1, { QStringLiteral("…") });
        row("CR LF", QStringLiteral("a\r\nb"), unlimited, 5, { QStringLiteral("a"), QStringLiteral("b") });
        row("CR", QStringLiteral("a\rb"), unlimited, 5, { QStringLiteral("a"), QStringLiteral("b") });
        row("LF CR", QStringLiteral("a\n\rb"), unlimited, 5,
            { QStringLiteral("a"), QString(), QStringLiteral("b") });
        row("line separator", "a\u2028b"_u, unlimited, 5, { QStringLiteral("a"), QStringLiteral("b") });
        row("paragraph separator", "a\u2029b"_u, unlimited, 5, { QStringLiteral("a"), QStringLiteral("b") });
        row("markup", QStringLiteral("<b>a</b> &amp; &File"), unlimited, 1,
            { QStringLiteral("<b>a</b> &amp; &File") });
        row("too narrow for …", QStringLiteral("ab"), 15, 1, { QStringLiteral("…") });
        row("combining marks", "e\u0301a\u0308 o\u0302"_u, unlimited, 1, { "e\u0301a\u0308 o\u0302"_u });
        row("surrogate pairs", "😀😀😀😀"_u, naturalWidth("😀😀😀"_u), 1, { "😀😀…"_u });
    }

    void theRectangleIsAsWideAsTheWidestLineAndAsHighAsAll()
    {
        QFETCH(QString, text);
        QFETCH(int, width);
        QFETCH(int, lines);
        QFETCH(QStringList, shown);
        const TextRenderer renderer = laidOut(text, width, lines);
        int widest = 0;
        for (const QString &line : shown)
            widest = std::max(widest, naturalWidth(line));
        QCOMPARE(renderer.boundingRect(),
                 QRect(0, 0, std::min(widest, width), heightOfLines(int(shown.size()))));
        QCOMPARE(painted(renderer), paintedByQt(shown, renderer.boundingRect().size()));
    }

    void whiteSpaceOnlyHasTheHeightOfItsLinesAndNoInk()
    {
        const TextRenderer renderer = laidOut(QStringLiteral("   "));
        QCOMPARE(renderer.boundingRect().height(), heightOfLines(1));
        QVERIFY(inkOf(painted(renderer, 20)).isEmpty());
        QVERIFY(inkOf(painted(laidOut(QString(100000, u' '), 300, 3), 20)).isEmpty());
    }

    void aCharacterWiderThanTheMaximumIsCutOffAtTheMaximum()
    {
        for (int width : { 1, 5 }) {
            const TextRenderer renderer = laidOut(QStringLiteral("MMMM"), width, 3);
            QCOMPARE(renderer.boundingRect(), QRect(0, 0, width, heightOfLines(3)));
            const QRect ink = inkOf(painted(renderer, 40));
            QCOMPARE(ink.isEmpty(), width == 1); // the letter's first column is empty
            QCOMPARE(ink & QRect(40, 40, width, heightOfLines(3)), ink);
        }
    }

    void noWidthCutsACharacterApart()
    {
        const QString texts[] = { "👍🏽👨‍👩‍👧😀e\u0301\u0302x"_u, "é̂ä̈ö̂ñ̃"_u };
        for (const QString &text : texts) {
            for (int width = 1; width < 150; ++width) {
                const TextRenderer renderer = laidOut(text, width);
                QVERIFY(renderer.boundingRect().width() <= width);
                QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
                bool found = painted(renderer) == paintedByQt({ text }, renderer.boundingRect().size());
                for (qsizetype kept = 0; !found && kept >= 0; kept = finder.toNextBoundary()) {
                    const QString shown = text.left(kept) + QChar(0x2026);
                    found = painted(renderer) == paintedByQt({ shown }, renderer.boundingRect().size());
                }
                QVERIFY2(found, qPrintable(QString::number(width)));
            }
        }
    }

    void everyWidthKeepsTheLimits()
    {
        const QString text = QStringLiteral("The quick brown fox,\njumps over the lazy-dog (again)");
        for (int width = 1; width < 400; width += 3) {
            for (int lines = 1; lines < 5; ++lines) {
                const QRect rect = laidOut(text, width, lines).boundingRect();
                QCOMPARE(rect.topLeft(), QPoint(0, 0));
                QVERIFY(rect.width() >= 1 && rect.width() <= width);
                QVERIFY(rect.height() >= heightOfLines(1) && rect.height() <= heightOfLines(lines));
                QCOMPARE(rect.height() % heightOfLines(1), 0);
            }
        }
    }

    void whatDoesNotFitEndsInAsMuchAsFitsAndAnEllipsis_data()
    {
        QTest::addColumn<int>("lines");
        for (int lines : { 1, 2, 3, 4 })
            QTest::addRow("%d lines", lines) << lines;
    }

    void whatDoesNotFitEndsInAsMuchAsFitsAndAnEllipsis()
    {
        QFETCH(int, lines);
        const QString text = QStringLiteral("A quick brown fox steps over the lazy-dog, again and (again)");
        for (int width = 70; width < 720; width += 7) {
            const QStringList wrapped = wrappedByQt(text, width);
            const int count = std::min(int(wrapped.size()), lines);
            const QString rest = wrapped.mid(lines - 1).join(QString());
            const TextRenderer renderer = laidOut(text, width, lines);
            QCOMPARE(renderer.boundingRect().height(), heightOfLines(count));
            bool found = false;
            for (int spared : { 0, 1, 2 }) { // pixels: the end of an "r" reaches over the letter behind it
                QStringList shown = wrapped.first(count);
                if (wrapped.size() > lines)
                    shown.last() = shortened(rest, width - spared);
                found |= painted(renderer) == paintedByQt(shown, renderer.boundingRect().size());
            }
            QVERIFY2(found, qPrintable(QString::number(width)));
        }
    }

    void aTextIsMeasuredOnlyAsFarAsItsLinesReach()
    {
        const QString text = QStringLiteral("many words and ").repeated(100000 / 15);
        const QString start = text.left(1500);
        QBENCHMARK_ONCE
        {
            for (int lines = 1; lines <= 3; ++lines) {
                const quint64 before = stbcore::textLayoutCount();
                const TextRenderer longOne = laidOut(text, 500, lines);
                QCOMPARE(stbcore::textLayoutCount() - before, quint64(2));
                QCOMPARE(painted(longOne), painted(laidOut(start, 500, lines)));
            }
        }
    }

    void aFirstGuessThatWasTooShortGivesTheSameLines()
    {
        // Marks have no width: far more characters fit than the font's size lets one expect.
        const QString text = "a"_u + "\u0301"_u.repeated(3000) + QStringLiteral(" end of it");
        const TextRenderer renderer = laidOut(text, 400, 2);
        QCOMPARE(renderer.boundingRect().width(), naturalWidth(text));
    }

    void unlimitedWidthHoldsAVeryLongLine()
    {
        const QString text = QString(100000, u'x');
        const TextRenderer renderer = laidOut(text);
        const qreal one = QFontMetricsF(font22()).horizontalAdvance(u'x');
        QVERIFY(qAbs(renderer.boundingRect().width() - 100000 * one) < 100000 * one * 0.05);
        QCOMPARE(renderer.boundingRect().height(), heightOfLines(1));
        const QRect right = laidOut(QStringLiteral("a\nbcd"), unlimited, 2, Qt::AlignRight).boundingRect();
        QCOMPARE(right.width(), naturalWidth(QStringLiteral("bcd")));
    }
};

STB_TEST_MAIN(tst_TextLines)
#include "tst_textlines.moc"
