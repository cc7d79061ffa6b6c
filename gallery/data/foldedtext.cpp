// SPDX-License-Identifier: MIT
#include "gallery/data/foldedtext.h"

#include <algorithm>
#include <iterator>

namespace gallery {

namespace {

constexpr char16_t breve = 0x0306;
constexpr char16_t tatweel = 0x0640;

struct Alike
{
    char16_t character;
    const char16_t *plain;
};

/*!
    Characters without a mark to take off, and what is typed for them: letters of alphabets that have more than the
    keyboard's, the Arabic letters that are often written one for the other, and the apostrophes and dashes of print.
*/
constexpr Alike alike[] = {
    { 0x00DF, u"ss" }, // sharp s, also the capital one, once its case is folded
    { 0x00E6, u"ae" },     { 0x00F0, u"d" }, { 0x00F8, u"o" },  { 0x00FE, u"th" },     { 0x0111, u"d" },
    { 0x0131, u"i" },      { 0x0142, u"l" }, { 0x0153, u"oe" }, { 0x0629, u"\u0647" }, // teh marbuta as heh
    { 0x0649, u"\u064A" }, // alef maksura as yeh
    { 0x0671, u"\u0627" }, // alef wasla as alef
    { 0x02BC, u"'" },      { 0x2010, u"-" }, { 0x2011, u"-" },  { 0x2012, u"-" },      { 0x2013, u"-" },
    { 0x2014, u"-" },      { 0x2018, u"'" }, { 0x2019, u"'" },
};

/*! What is typed for \a c; nothing when that is \a c itself. */
QString plainFor(QChar c)
{
    if (c.unicode() < 0x80)
        return {};
    const auto *found = std::find_if(std::begin(alike), std::end(alike),
                                     [c](const Alike &entry) { return entry.character == c; });
    if (found != std::end(alike))
        return QString::fromUtf16(found->plain);
    return c.digitValue() >= 0 ? QString(QChar(u'0' + c.digitValue())) : QString();
}

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
        else if (const QString plain = plainFor(c); !plain.isEmpty())
            result.append(plain);
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
