// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <stbcore/textcounters.h>
#include <stbcore/textrenderer.h>

#include <QtCore/qtextboundaryfinder.h>
#include <QtGui/qfontmetrics.h>
#include <QtGui/qimage.h>
#include <QtGui/qpainter.h>
#include <QtGui/qtextlayout.h>

#include <cmath>

using stbcore::TextRenderer;

namespace {

constexpr int unlimited = 2147483647;

QFont font22()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(22);
    return font;
}

QString operator""_u(const char *text, size_t size)
{
    return QString::fromUtf8(text, qsizetype(size));
}

TextRenderer laidOut(const QString &text, int maxWidth = unlimited, int maxLines = 1,
                     Qt::Alignment alignment = Qt::AlignLeft)
{
    TextRenderer renderer;
    renderer.setTextFont(font22());
    renderer.setText(text);
    renderer.setMaxTextWidth(maxWidth);
    renderer.setMaxLineCount(maxLines);
    renderer.setTextAlignment(alignment);
    renderer.relayout();
    return renderer;
}

QImage blank(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// The text with a frame of \a margin empty pixels around its bounding rectangle.
QImage painted(const TextRenderer &renderer, int margin = 0, const QPen &pen = QPen(Qt::white))
{
    QImage image = blank(renderer.boundingRect().size() + QSize(2 * margin, 2 * margin));
    QPainter painter(&image);
    painter.translate(margin, margin);
    drawTextRenderer(painter, renderer, pen);
    return image;
}

QRect inkOf(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

int heightOfLines(int count)
{
    QTextLayout layout(QStringLiteral("x"), font22());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1000);
    layout.endLayout();
    return count * int(line.height());
}

QRect inkOfLine(const TextRenderer &renderer, int line)
{
    const int height = heightOfLines(1);
    return inkOf(painted(renderer).copy(0, line * height, renderer.boundingRect().width(), height));
}

// What Qt paints for lines that are known already: no wrapping, no shortening, left-aligned at x = 0.
QImage paintedByQt(const QStringList &lines, QSize size, Qt::LayoutDirection direction = Qt::LeftToRight)
{
    QImage image = blank(size);
    QPainter painter(&image);
    painter.setPen(Qt::white);
    qreal y = 0;
    for (const QString &text : lines) {
        QTextLayout layout(text, font22());
        QTextOption option(Qt::AlignLeft);
        option.setTextDirection(direction);
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(100000);
        layout.endLayout();
        line.draw(&painter, QPointF(0, y));
        y += line.height();
    }
    return image;
}

int naturalWidth(const QString &text)
{
    QTextLayout layout(text, font22());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(100000);
    layout.endLayout();
    return int(std::ceil(line.naturalTextWidth()));
}

} // namespace

#define VERIFY_SHOWS(renderer, ...) \
    QCOMPARE(painted(renderer), paintedByQt(QStringList { __VA_ARGS__ }, (renderer).boundingRect().size()))

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
