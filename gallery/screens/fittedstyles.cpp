// SPDX-License-Identifier: MIT
#include "screens/fittedstyles.h"

#include <QtGui/qfontmetrics.h>

#include <algorithm>

namespace gallery {

namespace {

int heightOf(const design_system::TextStyle &style, int lines)
{
    return lines * QFontMetrics(style.font).height();
}

// What the texts of \a style need from their first line on, with \a lines of the description.
int textsOf(const design_system::PlayerHorizontalEpgViewStyle &style, int lines)
{
    return heightOf(style.dateStyle, 1) + style.dateTitleGap + heightOf(style.titleStyle, 1)
           + (lines > 0 ? style.titleDescriptionGap + heightOf(style.descriptionStyle, lines) : 0);
}

// They begin where the picture begins, which is in the middle.
int neededHeight(const design_system::PlayerHorizontalEpgViewStyle &style, int lines)
{
    return std::max(style.delegateRect.height(), 2 * textsOf(style, lines) - style.imageRect.height());
}

} // namespace

FittedEpisodeStyle::FittedEpisodeStyle(QObject *parent)
    : PlayerEpisodesItemQmlStyle(parent)
{
}

void FittedEpisodeStyle::setBase(design_system::PlayerEpisodesItemQmlStyle *base)
{
    if (base == m_base)
        return;
    m_base = base;
    derive();
    Q_EMIT baseChanged();
}

void FittedEpisodeStyle::setStatusScale(double scale)
{
    if (qFuzzyCompare(scale, m_statusScale))
        return;
    m_statusScale = scale;
    derive();
    Q_EMIT statusScaleChanged();
}

void FittedEpisodeStyle::derive()
{
    design_system::PlayerEpisodesItemStyle derived;
    if (m_base != nullptr)
        derived = m_base->style();
    const int room = derived.tileRect.height();
    int &titleLines = derived.titleTextStyle.maxLineCount;
    int &lines = derived.subtitleTextStyle.maxLineCount;
    const auto needed = [&derived](int title, int subtitle) {
        return heightOf(derived.titleTextStyle, title) + derived.titleSubtitleSpacing
               + heightOf(derived.subtitleTextStyle, subtitle);
    };
    // The title keeps its lines as long as one of the other text fits below it.
    while (titleLines > 1 && needed(titleLines, 1) > room)
        --titleLines;
    while (lines > 1 && needed(titleLines, lines) > room)
        --lines;
    for (design_system::TextStyle *text :
         { &derived.statusTextStyle, &derived.dateUpperTextStyle, &derived.dateLowerTextStyle }) {
        if (text->font.pixelSize() > 0)
            text->font.setPixelSize(qMax(1, qRound(text->font.pixelSize() * m_statusScale)));
    }
    setStyle(derived);
}

FittedProgrammeStyle::FittedProgrammeStyle(QObject *parent)
    : PlayerHorizontalEpgViewQmlStyle(parent)
{
}

void FittedProgrammeStyle::setBase(design_system::PlayerHorizontalEpgViewQmlStyle *base)
{
    if (base == m_base)
        return;
    m_base = base;
    derive();
    Q_EMIT baseChanged();
}

void FittedProgrammeStyle::setRoom(int room)
{
    if (room == m_room)
        return;
    m_room = room;
    derive();
    Q_EMIT roomChanged();
}

void FittedProgrammeStyle::derive()
{
    design_system::PlayerHorizontalEpgViewStyle derived;
    if (m_base != nullptr)
        derived = m_base->style();
    int &lines = derived.descriptionStyle.maxLineCount;
    const int room = std::max(m_room, derived.delegateRect.height());
    while (lines > 1 && neededHeight(derived, lines) > room)
        --lines;
    derived.delegateRect.setHeight(std::min(room, neededHeight(derived, lines)));
    setStyle(derived);
}

} // namespace gallery
