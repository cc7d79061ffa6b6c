// SPDX-License-Identifier: MIT
#include "keyboardpad.h"

#include "keyboardkey.h"
#include "okkey.h"

#include <QtCore/qlocale.h>
#include <QtGui/qevent.h>
#include <QtQuick/qquickwindow.h>

namespace stbgeneric {

namespace {

constexpr int firstLetter = 12; // below the digits

} // namespace

KeyboardPad::KeyboardPad(QQuickItem *parent)
    : QQuickItem(parent)
    , m_steering(firstLetter)
{
    setFlag(ItemIsFocusScope);
    m_state.setLanguage(QLocale().name());
    connect(this, &KeyboardPad::lookChanged, this, &QQuickItem::polish);
    connect(this, &KeyboardPad::measuresChanged, this, &KeyboardPad::updateImplicitSize);
    updateImplicitSize();
}

KeyboardPad::~KeyboardPad()
{
    for (KeyboardKey *key : std::as_const(m_keys))
        key->forgetPad(); // Qt Quick takes the keys from a parent that is no pad any more
    tellEdited(false);
}

// --- state ----------------------------------------------------------------------------------------------

template <typename Change>
void KeyboardPad::changeState(Change change)
{
    const KeyboardState before = m_state;
    change(m_state);
    if (m_state == before)
        return;
    Q_EMIT stateChanged();
    for (KeyboardKey *key : std::as_const(m_keys))
        key->updateState();
    polish();
}

void KeyboardPad::setLanguage(const QString &language)
{
    changeState([&language](KeyboardState &state) { state.setLanguage(language); });
}

void KeyboardPad::setLanguages(const QStringList &languages)
{
    changeState([&languages](KeyboardState &state) { state.setLanguages(languages); });
}

void KeyboardPad::setShifted(bool shifted)
{
    changeState([shifted](KeyboardState &state) { state.setShifted(shifted); });
}

void KeyboardPad::setCapsLocked(bool locked)
{
    changeState([locked](KeyboardState &state) { state.setCapsLocked(locked); });
}

void KeyboardPad::setShowsSymbols(bool shows)
{
    changeState([shows](KeyboardState &state) { state.setShowsSymbols(shows); });
}

void KeyboardPad::setCurrentKey(int key)
{
    if (key < 0 || key >= keyCount() || key == currentKey())
        return;
    m_steering.setKey(key);
    Q_EMIT currentKeyChanged();
    giveFocus();
}

void KeyboardPad::setEdited(QQuickItem *edited)
{
    if (edited == m_edited)
        return;
    tellEdited(false);
    m_edited = edited;
    Q_EMIT editedChanged();
    tellEdited(hasActiveFocus() && isVisible());
}

void KeyboardPad::tellEdited(bool isEdited)
{
    if (m_edited)
        m_edited->setProperty("editing", isEdited);
}

void KeyboardPad::giveFocus()
{
    for (KeyboardKey *key : std::as_const(m_keys)) {
        if (key->index() == currentKey())
            key->setFocus(true, Qt::OtherFocusReason);
    }
}

// --- keys -----------------------------------------------------------------------------------------------

void KeyboardPad::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
    if (!isVisible())
        return;
    const int key = event->key();
    const bool isOk = isOkKey(key) && key != Qt::Key_Space;
    if (isOk) {
        if (!event->isAutoRepeat() || isRepeated(keyboardKeys().at(currentKey()).kind))
            pressKey(currentKey());
        event->accept();
        return;
    }
    event->setAccepted(steer(key) || type(*event));
}

bool KeyboardPad::steer(int key)
{
    const int before = currentKey();
    const auto move = [this](KeyDirection direction, bool wraps, Qt::Edge edge) {
        return m_steering.move(direction, wraps && (m_openEdges & edge) == 0);
    };
    bool isMoved = false;
    switch (key) {
    case Qt::Key_Left:
        isMoved = move(KeyDirection::Left, m_wrapsHorizontally, Qt::LeftEdge);
        break;
    case Qt::Key_Right:
        isMoved = move(KeyDirection::Right, m_wrapsHorizontally, Qt::RightEdge);
        break;
    case Qt::Key_Up:
        isMoved = move(KeyDirection::Up, m_wrapsVertically, Qt::TopEdge);
        break;
    case Qt::Key_Down:
        isMoved = move(KeyDirection::Down, m_wrapsVertically, Qt::BottomEdge);
        break;
    default:
        break;
    }
    if (currentKey() != before) {
        Q_EMIT currentKeyChanged();
        giveFocus();
    }
    return isMoved;
}

bool KeyboardPad::type(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Backspace) {
        Q_EMIT backspacePressed();
        return true;
    }
    constexpr Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const QString text = event.text();
    if (text.isEmpty() || !QChar::isPrint(text.toUcs4().constFirst()) || (event.modifiers() & commands))
        return false;
    Q_EMIT textEntered(text);
    return true;
}

void KeyboardPad::pressKey(int key)
{
    if (key < 0 || key >= keyCount() || !isEnabled() || !isVisible())
        return;
    setCurrentKey(key);
    const KeyPlace &place = keyboardKeys().at(key);
    act(place.kind, m_state.text(place));
}

void KeyboardPad::act(KeyKind kind, const QString &text)
{
    switch (kind) {
    case KeyKind::Symbol:
        Q_EMIT textEntered(text);
        changeState([](KeyboardState &state) { state.endShift(); });
        break;
    case KeyKind::Domain:
    case KeyKind::Space:
        Q_EMIT textEntered(text);
        break;
    case KeyKind::Backspace:
        Q_EMIT backspacePressed();
        break;
    case KeyKind::CursorLeft:
        Q_EMIT cursorLeftPressed();
        break;
    case KeyKind::CursorRight:
        Q_EMIT cursorRightPressed();
        break;
    case KeyKind::Shift:
        setShifted(!isShifted());
        break;
    case KeyKind::CapsLock:
        setCapsLocked(!isCapsLocked());
        break;
    case KeyKind::Page:
        setShowsSymbols(!showsSymbols());
        break;
    case KeyKind::Language:
        changeState([](KeyboardState &state) { state.useNextLanguage(); });
        break;
    }
}

// --- look -----------------------------------------------------------------------------------------------

void KeyboardPad::updateImplicitSize()
{
    setImplicitSize(keyboardColumnCount * (m_keyWidth + m_columnSpacing) - m_columnSpacing,
                    keyboardRowCount * (m_keyHeight + m_rowSpacing) - m_rowSpacing);
    polish();
}

QRectF KeyboardPad::keyRect(int key) const
{
    const KeyPlace &place = keyboardKeys().at(key);
    return { place.column * (m_keyWidth + m_columnSpacing), place.row * (m_keyHeight + m_rowSpacing),
             place.span * (m_keyWidth + m_columnSpacing) - m_columnSpacing, m_keyHeight };
}

QString KeyboardPad::keyName(int key) const
{
    const KeyPlace &place = keyboardKeys().at(key);
    switch (place.kind) {
    case KeyKind::Symbol:
    case KeyKind::Domain:
        break;
    case KeyKind::Space:
        return tr("Space");
    case KeyKind::Backspace:
        return tr("Backspace");
    case KeyKind::CursorLeft:
        return tr("Cursor left");
    case KeyKind::CursorRight:
        return tr("Cursor right");
    case KeyKind::Shift:
        return tr("Shift");
    case KeyKind::CapsLock:
        return tr("Caps lock");
    case KeyKind::Page:
        return showsSymbols() ? tr("Letters") : tr("Symbols");
    case KeyKind::Language:
        return tr("Language: %1").arg(m_state.layout().name);
    }
    return keyLabel(m_state.text(place));
}

QString KeyboardPad::keyText(int key) const
{
    switch (keyboardKeys().at(key).kind) {
    case KeyKind::Page:
        return showsSymbols() ? m_state.layout().firstLetters : QStringLiteral("#+=");
    case KeyKind::Language:
        return m_state.layout().name;
    default:
        return keyName(key);
    }
}

bool KeyboardPad::isOn(int key) const
{
    const KeyKind kind = keyboardKeys().at(key).kind;
    return (kind == KeyKind::Shift && isShifted()) || (kind == KeyKind::CapsLock && isCapsLocked());
}

QString KeyboardPad::iconPath(KeyKind kind) const
{
    switch (kind) {
    case KeyKind::Backspace:
        return m_backspaceIconPath;
    case KeyKind::CursorLeft:
        return m_leftIconPath;
    case KeyKind::CursorRight:
        return m_rightIconPath;
    case KeyKind::CapsLock:
        return isCapsLocked() ? m_capslockEnabledIconPath : m_capslockDisabledIconPath;
    default:
        return {};
    }
}

const QFont &KeyboardPad::font(KeyKind kind) const
{
    if (kind == KeyKind::Symbol)
        return m_symbolKeysFont;
    return kind == KeyKind::Domain ? m_domainKeysFont : m_controlKeysFont;
}

KeyLook KeyboardPad::lookOf(const KeyboardKey &key) const
{
    const QColor focusedBackground = m_focusedKeyBackgroundColor.isValid() ? m_focusedKeyBackgroundColor
                                                                           : m_keyTextColor;
    const QColor focusedText = m_focusedKeyTextColor.isValid() ? m_focusedKeyTextColor : m_keyBackgroundColor;
    const KeyKind kind = keyboardKeys().at(key.index()).kind;
    const bool isFocused = key.hasActiveFocus();
    KeyLook look;
    look.text = keyText(key.index());
    look.font = font(kind);
    look.iconPath = iconPath(kind);
    look.isIconMirrored = kind == KeyKind::Backspace && m_state.layout().isRightToLeft;
    look.background = isFocused ? focusedBackground : m_keyBackgroundColor;
    look.color = isFocused ? focusedText : m_keyTextColor;
    look.radius = m_keyRoundingRadius;
    look.isFramed = isOn(key.index());
    look.isEnabled = isEnabled();
    return look;
}

void KeyboardPad::addKey(KeyboardKey *key)
{
    m_keys.append(key);
    if (key->index() == currentKey())
        key->setFocus(true, Qt::OtherFocusReason);
    polish();
}

void KeyboardPad::removeKey(KeyboardKey *key)
{
    m_keys.removeOne(key);
}

void KeyboardPad::updatePolish()
{
    if (!isVisible())
        return;
    for (KeyboardKey *key : std::as_const(m_keys))
        key->setLook(keyRect(key->index()), lookOf(*key));
}

void KeyboardPad::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange)
        followLanguageIn(data.window);
    else if (change == ItemActiveFocusHasChanged || change == ItemVisibleHasChanged)
        tellEdited(hasActiveFocus() && isVisible());
    if (change == ItemVisibleHasChanged || change == ItemEnabledHasChanged
        || change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        polish();
}

void KeyboardPad::followLanguageIn(QQuickWindow *window)
{
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window)
        m_window->installEventFilter(this);
}

bool KeyboardPad::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        for (KeyboardKey *key : std::as_const(m_keys))
            key->updateState();
        polish();
    }
    return QQuickItem::eventFilter(watched, event);
}

} // namespace stbgeneric
