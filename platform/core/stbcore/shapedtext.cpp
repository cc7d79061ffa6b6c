// SPDX-License-Identifier: MIT
#include "stbcore/shapedtext_p.h"

#include "stbcore/textcounters.h"

#include <QtGui/qfontmetrics.h>
#include <QtGui/qglyphrun.h>
#include <QtGui/qrawfont.h>
#include <QtGui/qtextoption.h>

#include <algorithm>
#include <atomic>
#include <cmath>

namespace stbcore {

namespace {

constexpr QChar ellipsis(0x2026);

// QTextLayout bounds every line width by this number of pixels.
constexpr int widestLine = 2147483647 / 256;

std::atomic<quint64> shapedTexts { 0 };

bool isLineBreak(QChar c)
{
    return c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

bool hasInk(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return !c.isSpace(); });
}

// The beginning of a text, in the form that QTextLayout wants it.
struct Prefix
{
    QString text; // every line break is one U+2028
    QStringView rest; // what of the source is not in it
    bool endsLastLine = false; // a line break that is in neither ends the last line that may be shown
};

Prefix prefixOf(const QString &source, qsizetype maxLength, int maxLines)
{
    if (source.size() <= maxLength && std::none_of(source.begin(), source.end(), isLineBreak))
        return { source, {} };

    Prefix prefix;
    const QStringView all(source);
    qsizetype at = 0;
    for (int line = 1; at < all.size() && prefix.text.size() < maxLength; ++at) {
        if (!isLineBreak(all[at])) {
            prefix.text += all[at];
            continue;
        }
        if (all.sliced(at).startsWith(QLatin1String("\r\n")))
            ++at;
        if (line == maxLines) {
            prefix.endsLastLine = true;
            ++at;
            break;
        }
        prefix.text += QChar::LineSeparator;
        ++line;
    }
    prefix.rest = all.sliced(at);
    return prefix;
}

// How much of a text is enough to fill its lines, with fonts as they are. A wrong guess costs time only.
qsizetype enoughCharacters(const TextShapeKey &key)
{
    constexpr qsizetype narrowestPerEm = 5;
    const qsizetype em = std::max(1, key.font.pixelSize() > 0 ? key.font.pixelSize() : key.font.pointSize());
    const qsizetype perLine = std::min(key.maxWidth, widestLine) * narrowestPerEm / em + 1;
    const qsizetype lines = std::min<qsizetype>(key.maxLines, key.text.size());
    return std::min(perLine * lines + 64, key.text.size());
}

// Unites the columns that the ink of one cluster may touch with those from \a left to \a right. A painter
// without subpixel positions puts a glyph to the nearest whole pixel.
void uniteInk(const QTextLine &line, int from, int to, int &left, int &right)
{
    const QList<QGlyphRun> runs = line.glyphRuns(from, to - from);
    for (const QGlyphRun &run : runs) {
        const QRawFont font = run.rawFont();
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            const QRectF ink = font.boundingRect(glyphs[i]);
            const qreal x = positions[i].x();
            left = std::min(left, int(std::floor(std::min(x, std::round(x)) + ink.left())));
            right = std::max(right, int(std::ceil(std::max(x, std::round(x)) + ink.right())));
        }
    }
}

// The ink that stands out of a line's box is that of its first or its last visible character.
void uniteInkOfEnds(const QTextLine &line, const QTextLayout &layout, int &left, int &right)
{
    const QString text = layout.text();
    const int start = line.textStart();
    int end = start + line.textLength();
    while (end > start && text[end - 1].isSpace())
        --end;
    if (end == start)
        return;
    uniteInk(line, start, layout.nextCursorPosition(start), left, right);
    uniteInk(line, layout.previousCursorPosition(end), end, left, right);
}

} // namespace

quint64 textLayoutCount()
{
    return shapedTexts.load(std::memory_order_relaxed);
}

ShapedText::ShapedText(const TextShapeKey &key)
    : m_key(key)
    , m_rightToLeft(key.text.isRightToLeft())
{
    qsizetype length = enoughCharacters(key);
    while (!layOut(length))
        length *= 4;
    measure();
}

bool ShapedText::isGoodFor(const TextShapeKey &key) const
{
    if (key.text != m_key.text || key.font != m_key.font)
        return false;
    if (key.maxWidth == m_key.maxWidth && key.maxLines == m_key.maxLines)
        return true;
    if (m_cut || int(m_lines.size()) > key.maxLines)
        return false;
    return key.maxWidth == m_key.maxWidth || (!m_wrapped && m_width <= key.maxWidth);
}

std::unique_ptr<QTextLayout> ShapedText::newLayout(const QString &text) const
{
    shapedTexts.fetch_add(1, std::memory_order_relaxed);
    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(m_rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    auto layout = std::make_unique<QTextLayout>(text, m_key.font);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    return layout;
}

// False when the lines need more of the text than the prefix of \a prefixLength characters.
bool ShapedText::layOut(qsizetype prefixLength)
{
    Prefix prefix = prefixOf(m_key.text, prefixLength, m_key.maxLines);
    const bool inkLeft = hasInk(prefix.rest);
    if (prefix.endsLastLine && inkLeft)
        prefix.text += ellipsis;
    m_body = newLayout(prefix.text);
    m_body->beginLayout();
    const QStringView hidden = QStringView(prefix.text).sliced(breakLines());
    if (hidden.isEmpty() && !prefix.rest.isEmpty() && !prefix.endsLastLine)
        return false;
    m_cut = !hidden.isEmpty() || prefix.endsLastLine;
    const bool shorten = hasInk(hidden) || (!hidden.isEmpty() && inkLeft);
    if (shorten)
        elideLastLine();
    m_body->endLayout();
    if (shorten && m_lines.size() == 1)
        m_body.reset();
    return true;
}

// Fills the lines and returns how many characters are in them.
qsizetype ShapedText::breakLines()
{
    const QString text = m_body->text();
    qsizetype end = 0;
    m_lines.clear();
    m_wrapped = false;
    while (m_lines.size() < size_t(m_key.maxLines)) {
        QTextLine line = m_body->createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(std::min(m_key.maxWidth, widestLine));
        m_lines.push_back(line);
        end = line.textStart() + line.textLength();
        m_wrapped |= end < text.size() && text[end - 1] != QChar::LineSeparator;
    }
    return end;
}

// The last line ends in "…" and still fits; a maximum width too small even for that leaves "…" alone.
void ShapedText::elideLastLine()
{
    QTextLine line = m_lines.back();
    const qreal room = m_key.maxWidth - QFontMetricsF(m_key.font).horizontalAdvance(ellipsis);
    QString kept;
    if (room > 0) {
        QTextOption option = m_body->textOption();
        option.setWrapMode(QTextOption::WrapAnywhere);
        m_body->setTextOption(option);
        line.setLineWidth(room);
        if (line.naturalTextWidth() <= room)
            kept = m_body->text().mid(line.textStart(), line.textLength());
    }
    for (;;) {
        while (!kept.isEmpty() && kept.back().isSpace())
            kept.chop(1);
        m_elided = newLayout(kept + ellipsis);
        m_elided->beginLayout();
        line = m_elided->createLine();
        line.setLineWidth(widestLine);
        m_elided->endLayout();
        if (kept.isEmpty() || line.naturalTextWidth() <= m_key.maxWidth)
            break;
        kept.truncate(m_elided->previousCursorPosition(int(kept.size())));
    }
    m_lines.back() = line;
}

void ShapedText::measure()
{
    for (size_t i = 0; i < m_lines.size(); ++i) {
        const bool elided = m_elided && i + 1 == m_lines.size();
        const int width = int(std::ceil(m_lines[i].naturalTextWidth()));
        int left = 0;
        int right = width;
        uniteInkOfEnds(m_lines[i], elided ? *m_elided : *m_body, left, right);
        m_width = std::max(m_width, width);
        m_leftOverhang = std::max(m_leftOverhang, -left);
        m_rightOverhang = std::max(m_rightOverhang, right - width);
    }
}

} // namespace stbcore
