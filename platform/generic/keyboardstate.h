// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_KEYBOARDSTATE_H
#define STBGENERIC_KEYBOARDSTATE_H

#include "keyboardgrid.h"
#include "keyboardlayouts.h"

namespace stbgeneric {

/*!
    What the keys type at present: the language, letters or symbols, shift and caps lock. Shift holds for one
    symbol, caps lock until it is pressed again; both together type small letters. A key of the symbols types the
    same with and without them.
*/
class KeyboardState
{
public:
    /*!
        The language in use. One without a layout changes nothing and is answered with false.
    */
    QString language() const { return layout().language; }
    bool setLanguage(const QString &language);

    /*!
        The languages that the language key goes through, in its order. Languages without a layout are left out;
        when none is left, all layouts are in.
    */
    QStringList languages() const { return m_languages; }
    void setLanguages(const QStringList &languages);
    /*! Goes to the next of languages() and shows its letters, without shift. */
    void useNextLanguage();

    bool isShifted() const { return m_isShifted; }
    bool isCapsLocked() const { return m_isCapsLocked; }
    bool showsSymbols() const { return m_showsSymbols; }
    void setShifted(bool shifted) { m_isShifted = shifted; }
    void setCapsLocked(bool locked) { m_isCapsLocked = locked; }
    void setShowsSymbols(bool shows) { m_showsSymbols = shows; }

    /*! The text that a key types; empty for a key that types none. */
    QString text(const KeyPlace &key) const;

    /*! A symbol has been typed: ends what holds for one. */
    void endShift() { m_isShifted = false; }

    const KeyboardLayout &layout() const { return keyboardLayouts().at(m_layout); }

    friend bool operator==(const KeyboardState &, const KeyboardState &) = default;

private:
    QStringList m_languages = defaultLanguages();
    int m_layout = 0;
    bool m_isShifted = false;
    bool m_isCapsLocked = false;
    bool m_showsSymbols = false;

    static QStringList defaultLanguages();
};

} // namespace stbgeneric

#endif // STBGENERIC_KEYBOARDSTATE_H
