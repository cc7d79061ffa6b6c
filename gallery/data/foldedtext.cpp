// SPDX-License-Identifier: MIT
#include "gallery/data/foldedtext.h"

#include <algorithm>

namespace gallery {

namespace {

constexpr char16_t breve = 0x0306;
constexpr char16_t tatweel = 0x0640;
constexpr char16_t sharpS = 0x00DF; // also of the capital one, once its case is folded

bool isPlain(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x80; });
}

bool isWordStart(const QString &text, qsizetype place)
{
    return place == 0 || !text.at(place - 1).isLetterOrNumber();
}

TextMatch matchOf(const QString &text, const QString &word)
{
    TextMatch best = TextMatch::None;
    for (qsizetype place = text.indexOf(word); place >= 0; place = text.indexOf(word, place + 1)) {
        if (isWordStart(text, place))
            return TextMatch::WordStart;
        best = TextMatch::Inside;
    }
    return best;
}

} // namespace

QString foldedText(const QString &text)
{
    if (isPlain(text))
        return text.toLower();
    const QString decomposed = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    QString result;
    result.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        const bool isShortI = c == breve && result.endsWith(QChar(0x0438));
        if (isShortI)
            result.back() = QChar(0x0439);
        else if (c == sharpS)
            result.append(QStringLiteral("ss"));
        else if (c != tatweel && !c.isMark())
            result.append(c);
    }
    return result;
}

QStringList searchWords(const QString &text)
{
    return foldedText(text).simplified().split(u' ', Qt::SkipEmptyParts);
}

TextMatch matchOf(const QString &text, const QStringList &words)
{
    TextMatch worst = words.isEmpty() ? TextMatch::None : TextMatch::WordStart;
    for (const QString &word : words)
        worst = std::min(worst, matchOf(text, word));
    return worst;
}

} // namespace gallery
