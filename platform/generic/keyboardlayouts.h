// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_KEYBOARDLAYOUTS_H
#define STBGENERIC_KEYBOARDLAYOUTS_H

#include <QtCore/qlist.h>
#include <QtCore/qstring.h>
#include <QtCore/qstringlist.h>

namespace stbgeneric {

/*! What the keys of one language type. */
struct KeyboardLayout
{
    QString language; //!< as in a locale's name: "en"
    QString name; //!< what the language calls itself
    QString firstLetters; //!< on the key that leads back from the symbols
    QStringList normal; //!< keyboardSymbolCount texts
    QStringList shifted; //!< as many, for shift and caps lock
    QStringList domains; //!< keyboardDomainCount texts
    bool isRightToLeft = false;
};

/*! English, Russian, German and Arabic. */
const QList<KeyboardLayout> &keyboardLayouts();

/*! The symbols, which all languages share: keyboardSymbolCount texts. */
const QStringList &keyboardSymbols();

/*! The number of the layout for a \a language ("en") or a locale's name ("en_GB", "en-GB"); -1 when there is none. */
int keyboardLayoutOf(const QString &language);

/*! How a \a text is shown on a key: a mark that needs a letter gets a bar to stand on. */
QString keyLabel(const QString &text);

} // namespace stbgeneric

#endif // STBGENERIC_KEYBOARDLAYOUTS_H
