// SPDX-License-Identifier: MIT
#include "keyboardgrid.h"

#include <algorithm>

namespace stbgeneric {

namespace {

constexpr int symbolsInRow = 11;

QList<KeyPlace> makeKeys()
{
    QList<KeyPlace> keys;
    int symbol = 0;
    const auto add = [&keys](KeyKind kind, int row, int span = 1, int text = -1) {
        const bool isFirst = keys.isEmpty() || keys.constLast().row != row;
        const int column = isFirst ? 0 : keys.constLast().column + keys.constLast().span;
        keys.append({ kind, row, column, span, text });
    };
    constexpr KeyKind rowEnds[] = { KeyKind::Backspace, KeyKind::CapsLock, KeyKind::Shift, KeyKind::Page };
    int row = 0;
    for (const KeyKind rowEnd : rowEnds) {
        for (int i = 0; i < symbolsInRow; ++i)
            add(KeyKind::Symbol, row, 1, symbol++);
        add(rowEnd, row++, 2);
    }
    add(KeyKind::Language, row, 2);
    for (int domain = 0; domain < keyboardDomainCount; ++domain)
        add(KeyKind::Domain, row, 2, domain);
    add(KeyKind::Space, row, 3);
    while (symbol < keyboardSymbolCount)
        add(KeyKind::Symbol, row, 1, symbol++);
    add(KeyKind::CursorLeft, row);
    add(KeyKind::CursorRight, row);
    return keys;
}

int keyAt(int row, int column)
{
    const QList<KeyPlace> &keys = keyboardKeys();
    const auto key = std::find_if(keys.begin(), keys.end(), [row, column](const KeyPlace &place) {
        return place.row == row && column >= place.column && column < place.column + place.span;
    });
    return static_cast<int>(key - keys.begin());
}

/*! \a value + \a step within 0 to \a count - 1, around the end if it \a wraps; else -1 beyond the end. */
int stepped(int value, int step, int count, bool wraps)
{
    const int result = value + step;
    if (result >= 0 && result < count)
        return result;
    return wraps ? (result + count) % count : -1;
}

} // namespace

const QList<KeyPlace> &keyboardKeys()
{
    static const QList<KeyPlace> keys = makeKeys();
    return keys;
}

bool isRepeated(KeyKind kind)
{
    return kind == KeyKind::Backspace || kind == KeyKind::CursorLeft || kind == KeyKind::CursorRight;
}

KeyboardSteering::KeyboardSteering(int key)
{
    setKey(key);
}

void KeyboardSteering::setKey(int key)
{
    m_key = key;
    const KeyPlace &place = keyboardKeys().at(key);
    m_column = place.column + (place.span - 1) / 2;
}

Qt::Edges KeyboardSteering::edges() const
{
    const KeyPlace &place = keyboardKeys().at(m_key);
    Qt::Edges result;
    result.setFlag(Qt::TopEdge, place.row == 0);
    result.setFlag(Qt::BottomEdge, place.row == keyboardRowCount - 1);
    result.setFlag(Qt::LeftEdge, place.column == 0);
    result.setFlag(Qt::RightEdge, place.column + place.span == keyboardColumnCount);
    return result;
}

bool KeyboardSteering::move(KeyDirection direction, bool wraps)
{
    switch (direction) {
    case KeyDirection::Left:
        return moveInRow(-1, wraps);
    case KeyDirection::Right:
        return moveInRow(1, wraps);
    case KeyDirection::Up:
        return moveInColumn(-1, wraps);
    case KeyDirection::Down:
        return moveInColumn(1, wraps);
    }
    return false;
}

bool KeyboardSteering::moveInRow(int step, bool wraps)
{
    const KeyPlace &place = keyboardKeys().at(m_key);
    const int edge = step > 0 ? place.column + place.span - 1 : place.column;
    const int column = stepped(edge, step, keyboardColumnCount, wraps);
    if (column >= 0)
        setKey(keyAt(place.row, column));
    return column >= 0;
}

bool KeyboardSteering::moveInColumn(int step, bool wraps)
{
    const int row = stepped(keyboardKeys().at(m_key).row, step, keyboardRowCount, wraps);
    if (row >= 0)
        m_key = keyAt(row, m_column);
    return row >= 0;
}

} // namespace stbgeneric
