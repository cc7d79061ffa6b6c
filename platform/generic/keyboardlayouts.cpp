// SPDX-License-Identifier: MIT
#include "keyboardlayouts.h"

#include <QtCore/qlocale.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace stbgeneric {

namespace {

QStringList upperCase(const QStringList &texts, const QLocale &locale)
{
    QStringList result;
    for (const QString &text : texts)
        result.append(text == u"ß" ? u"ẞ"_s : locale.toUpper(text)); // the upper case of "ß" has two letters
    return result;
}

// The texts stand as on the keys: four rows of eleven, then comma and full stop.
QStringList split(QStringView texts)
{
    return texts.toString().split(u' ', Qt::SkipEmptyParts);
}

KeyboardLayout english()
{
    const QStringList normal = split(u"1 2 3 4 5 6 7 8 9 0 - "
                                     u"q w e r t y u i o p @ "
                                     u"a s d f g h j k l ' : "
                                     u"z x c v b n m ? ! & / "
                                     u", .");
    return {
        u"en"_s, u"English"_s, u"abc"_s, normal, upperCase(normal, QLocale::English), { u".com"_s, u".net"_s }
    };
}

KeyboardLayout russian()
{
    const QStringList normal = split(u"1 2 3 4 5 6 7 8 9 0 - "
                                     u"й ц у к е н г ш щ з х "
                                     u"ф ы в а п р о л д ж э "
                                     u"я ч с м и т ь б ю ъ ё "
                                     u", .");
    return {
        u"ru"_s, u"Русский"_s, u"абв"_s, normal, upperCase(normal, QLocale::Russian), { u".com"_s, u".ru"_s }
    };
}

KeyboardLayout german()
{
    const QStringList normal = split(u"1 2 3 4 5 6 7 8 9 0 ß "
                                     u"q w e r t z u i o p ü "
                                     u"a s d f g h j k l ö ä "
                                     u"y x c v b n m - @ ? ! "
                                     u", .");
    return {
        u"de"_s, u"Deutsch"_s, u"abc"_s, normal, upperCase(normal, QLocale::German), { u".com"_s, u".de"_s }
    };
}

// Shift has the digits of the script, the marks and the rarer forms, where Arabic keyboards have them.
KeyboardLayout arabic()
{
    const QStringList normal = split(u"1 2 3 4 5 6 7 8 9 0 - "
                                     u"ض ص ث ق ف غ ع ه خ ح ج "
                                     u"ش س ي ب ل ا ت ن م ك ط "
                                     u"ذ ئ ء ؤ ر ى ة و ز ظ د "
                                     u"\u060C .");
    const QStringList shifted = split(
            u"\u0661 \u0662 \u0663 \u0664 \u0665 \u0666 \u0667 \u0668 \u0669 \u0660 _ "
            u"\u064E \u064B \u064F \u064C لإ إ ع ه خ ح ج "
            u"\u0650 \u064D ي ب لأ أ \u0640 ن م ك ط "
            u"\u0651 ئ \u0652 ؤ ر آ ة و ز \u061F د "
            u"\u061B :");
    return { u"ar"_s, u"العربية"_s, u"أبت"_s, normal, shifted, { u".com"_s, u".net"_s }, true };
}

} // namespace

const QList<KeyboardLayout> &keyboardLayouts()
{
    static const QList<KeyboardLayout> layouts { english(), russian(), german(), arabic() };
    return layouts;
}

const QStringList &keyboardSymbols()
{
    static const QStringList symbols = split(u"1 2 3 4 5 6 7 8 9 0 - "
                                             u"! ? @ # $ % & * ( ) + "
                                             u"/ \\ _ = : ; \" ' ` ~ | "
                                             u"< > [ ] { } ^ € £ ₽ ° "
                                             u", .");
    return symbols;
}

int keyboardLayoutOf(const QString &language)
{
    const auto end = std::find_if(language.begin(), language.end(),
                                  [](QChar c) { return c == u'_' || c == u'-'; });
    const QString code(language.constData(), end - language.begin());
    const QList<KeyboardLayout> &layouts = keyboardLayouts();
    const auto layout = std::find_if(layouts.begin(), layouts.end(), [&code](const KeyboardLayout &candidate) {
        return candidate.language == code;
    });
    return layout == layouts.end() ? -1 : static_cast<int>(layout - layouts.begin());
}

QString keyLabel(const QString &text)
{
    const bool isMark = !text.isEmpty() && text.at(0).isMark();
    return isMark ? QChar(0x0640) + text : text;
}

} // namespace stbgeneric
