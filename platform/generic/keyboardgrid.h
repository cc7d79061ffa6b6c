// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_KEYBOARDGRID_H
#define STBGENERIC_KEYBOARDGRID_H

#include <QtCore/qlist.h>
#include <QtCore/qnamespace.h>

namespace stbgeneric {

/*! What a key does. */
enum class KeyKind {
    Symbol, // types the text that the layout has for it
    Domain, // types the end of an address
    Space,
    Backspace,
    CursorLeft,
    CursorRight,
    Shift,
    CapsLock,
    Page, // letters or symbols
    Language,
};

/*! A key's place, in units of one key. */
struct KeyPlace
{
    KeyKind kind = KeyKind::Symbol;
    int row = 0;
    int column = 0;
    int span = 1; //!< how many columns it takes
    int text = -1; //!< of a symbol or a domain: its number in the layout
};

constexpr int keyboardRowCount = 5;
constexpr int keyboardColumnCount = 13;
constexpr int keyboardSymbolCount = 46;
constexpr int keyboardDomainCount = 2;

/*! All keys, row by row from the top, each row from the left. They stand in the same places in all layouts. */
const QList<KeyPlace> &keyboardKeys();

/*! Whether a key that is held acts again and again. */
bool isRepeated(KeyKind kind);

enum class KeyDirection { Left, Right, Up, Down };

/*!
    Which key is the current one, and the way from key to key. Up and down keep the column in which they started,
    also across wide keys.
*/
class KeyboardSteering
{
public:
    explicit KeyboardSteering(int key = 0);

    int key() const { return m_key; }
    /*! The edges of the keyboard that the key is at. */
    Qt::Edges edges() const;
    void setKey(int key);

    /*!
        Goes to the next key; from the last one in that direction to the first one if it \a wraps, else it stays
        there and answers false.
    */
    bool move(KeyDirection direction, bool wraps);

private:
    bool moveInRow(int step, bool wraps);
    bool moveInColumn(int step, bool wraps);

    int m_key = 0;
    int m_column = 0;
};

} // namespace stbgeneric

#endif // STBGENERIC_KEYBOARDGRID_H
