// SPDX-License-Identifier: MIT
#include "screens/logosheet.h"

#include "gallery/data/playlist.h"

#include <QtCore/qtextboundaryfinder.h>
#include <QtGui/qfontmetrics.h>
#include <QtGui/qpainter.h>

#include <algorithm>
#include <cmath>

namespace gallery {

namespace {

// Hues that can be told from each other.
constexpr uint hues = 9;

// What a reader takes for one character: a letter with its marks.
QString firstCharacter(const QString &word)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, word);
    const qsizetype end = finder.toNextBoundary();
    return word.left(std::max<qsizetype>(end, 0));
}

bool beginsReadably(const QString &word)
{
    const QList<uint> characters = word.left(2).toUcs4();
    return !characters.isEmpty() && QChar::isLetterOrNumber(characters.constFirst());
}

// Deterministic, unlike qHash(): a channel keeps its colour from run to run.
uint hashOf(const QString &text)
{
    uint hash = 2166136261U;
    for (const QChar c : text)
        hash = (hash ^ c.unicode()) * 16777619U;
    return hash ^ (hash >> 16);
}

// A name that is an abbreviation, such as "ITV" or "RT2", needs none.
bool isShortName(const QString &word)
{
    constexpr qsizetype longest = 4;
    return word.size() > 1 && word.size() <= longest
           && std::all_of(word.cbegin(), word.cend(), [](QChar c) { return c.isUpper() || c.isDigit(); });
}

// The size of a text in a cell: two fifths of its height, less where that is too wide.
QFont fitting(QFont font, const QString &text, const QSize &cell)
{
    font.setPixelSize(std::max(1, cell.height() * 2 / 5));
    const int room = std::max(1, cell.width() * 4 / 5);
    const int taken = QFontMetrics(font).horizontalAdvance(text);
    if (taken > room)
        font.setPixelSize(std::max(1, font.pixelSize() * room / taken));
    return font;
}

} // namespace

LogoSheet::LogoSheet(QObject *parent)
    : QObject(parent)
{
}

template <typename Value>
void LogoSheet::set(Value &member, const Value &value)
{
    if (member == value)
        return;
    member = value;
    m_sheets.clear();
    Q_EMIT changed();
}

void LogoSheet::setController(ChannelsController *controller)
{
    set(m_controller, QPointer(controller));
}

void LogoSheet::setCellSize(const QSize &size)
{
    set(m_cellSize, size);
}

void LogoSheet::setFont(const QFont &font)
{
    set(m_font, font);
}

void LogoSheet::setColor(const QColor &color)
{
    set(m_color, color);
}

void LogoSheet::setPlate(const QColor &plate)
{
    set(m_plate, plate);
}

QPixmap LogoSheet::canvas(int channel)
{
    if (m_controller.isNull() || m_cellSize.isEmpty())
        return {};
    if (!m_guide.isSameAs(m_controller->guide())) {
        m_guide = m_controller->guide();
        m_sheets.clear();
    }
    if (channel < 0 || channel >= m_guide.channelCount())
        return {};
    const int first = channel - channel % cellsPerSheet;
    if (const QPixmap *sheet = m_sheets.object(first))
        return *sheet;
    const QPixmap sheet = drawn(first);
    const int kilobytes = 1 + sheet.width() * sheet.height() / 256; // of four bytes a pixel
    m_sheets.setMaxCost(std::max(keptKilobytes, 2 * kilobytes));
    m_sheets.insert(first, new QPixmap(sheet), kilobytes);
    ++m_drawnSheets;
    return sheet;
}

QRect LogoSheet::cell(int channel) const
{
    if (channel < 0)
        return {};
    return { QPoint(0, channel % cellsPerSheet * m_cellSize.height()), m_cellSize };
}

QColor LogoSheet::tint(const Channel &channel) const
{
    const double hue = double(hashOf(channel.id) % hues) / hues;
    return QColor::fromHslF(float(hue), m_plate.hslSaturationF(), m_plate.lightnessF());
}

QPixmap LogoSheet::drawn(int first) const
{
    const int count = std::min(cellsPerSheet, m_guide.channelCount() - first);
    QPixmap sheet(m_cellSize.width(), count * m_cellSize.height());
    QPainter painter(&sheet);
    painter.setPen(m_color);
    for (int i = 0; i < count; ++i) {
        const Channel &channel = m_guide.channel(first + i);
        const QString initials = channelInitials(channel.name);
        painter.fillRect(cell(i), tint(channel));
        painter.setFont(fitting(m_font, initials, m_cellSize));
        // The row has the channel's number in the upper corner.
        painter.drawText(cell(i).adjusted(0, m_cellSize.height() / 5, 0, 0), Qt::AlignCenter, initials);
    }
    return sheet;
}

QString channelInitials(const QString &name)
{
    const QStringList words = withoutQuality(name).simplified().split(u' ');
    QStringList readable;
    std::copy_if(words.cbegin(), words.cend(), std::back_inserter(readable), beginsReadably);
    if (readable.isEmpty())
        return firstCharacter(words.constFirst()).toUpper();
    const QString initial = firstCharacter(readable.at(0)).toUpper();
    if (readable.size() == 1)
        return isShortName(readable.at(0)) ? readable.at(0) : initial;
    const QChar::JoiningType joining = initial.back().joiningType();
    const bool joins = joining == QChar::Joining_Dual || joining == QChar::Joining_Transparent;
    const QString apart = joins ? QString(QChar(0x200c)) : QString();
    return initial + apart + firstCharacter(readable.at(1)).toUpper();
}

} // namespace gallery
