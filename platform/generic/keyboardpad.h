// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_KEYBOARDPAD_H
#define STBGENERIC_KEYBOARDPAD_H

#include "keyboardgrid.h"
#include "keyboardstate.h"

#include <QtCore/qpointer.h>
#include <QtGui/qcolor.h>
#include <QtGui/qfont.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

namespace stbgeneric {

class KeyboardKey;
struct KeyLook;

/*!
    The logic and the look of the on-screen keyboard; its keys are child items of the class KeyboardKey, one for
    each place of keyboardKeys(). It is a focus scope, and the current key has its focus.

    Arrow keys steer, Return, Enter and Select press the current key. A key that is held repeats the steering; held
    OK repeats backspace and the cursor keys and presses any other once. What a real keyboard types meanwhile, the
    space bar included, goes the same way as what the keys type. A keyboard that is hidden or disabled does nothing.
    The texts on its keys follow a change of the application's translator.

    Keys keep their places in a mirrored layout and for Arabic, as on the keyboards one is used to; left and right
    are those of the screen. Only the picture of backspace is mirrored for a language that runs to the left.
*/
class KeyboardPad : public QQuickItem
{
    Q_OBJECT
    /*! Radius of the keys' corners in pixels; 0 by default. */
    Q_PROPERTY(qreal keyRoundingRadius MEMBER m_keyRoundingRadius NOTIFY lookChanged)
    /*! Colours of a key; dark grey and white by default. */
    Q_PROPERTY(QColor keyBackgroundColor MEMBER m_keyBackgroundColor NOTIFY lookChanged)
    Q_PROPERTY(QColor keyTextColor MEMBER m_keyTextColor NOTIFY lookChanged)
    /*! Colours of the current key while the keyboard has the focus; by default the others exchanged. */
    Q_PROPERTY(QColor focusedKeyBackgroundColor MEMBER m_focusedKeyBackgroundColor NOTIFY lookChanged)
    Q_PROPERTY(QColor focusedKeyTextColor MEMBER m_focusedKeyTextColor NOTIFY lookChanged)
    /*! Fonts of symbols, of control keys such as shift, and of domains. */
    Q_PROPERTY(QFont symbolKeysFont MEMBER m_symbolKeysFont NOTIFY lookChanged)
    Q_PROPERTY(QFont controlKeysFont MEMBER m_controlKeysFont NOTIFY lookChanged)
    Q_PROPERTY(QFont domainKeysFont MEMBER m_domainKeysFont NOTIFY lookChanged)
    /*!
        Pictures of the control keys, painted in the key's text colour: "qrc:/...", a file's URL or path. A key
        without one shows its name. One that cannot be read is a warning, and the key shows nothing.
    */
    Q_PROPERTY(QString backspaceIconPath MEMBER m_backspaceIconPath NOTIFY lookChanged)
    Q_PROPERTY(QString leftIconPath MEMBER m_leftIconPath NOTIFY lookChanged)
    Q_PROPERTY(QString rightIconPath MEMBER m_rightIconPath NOTIFY lookChanged)
    Q_PROPERTY(QString capslockEnabledIconPath MEMBER m_capslockEnabledIconPath NOTIFY lookChanged)
    Q_PROPERTY(QString capslockDisabledIconPath MEMBER m_capslockDisabledIconPath NOTIFY lookChanged)
    /*! Pixels between rows and between columns; 0 by default. */
    Q_PROPERTY(qreal rowSpacing MEMBER m_rowSpacing NOTIFY measuresChanged)
    Q_PROPERTY(qreal columnSpacing MEMBER m_columnSpacing NOTIFY measuresChanged)
    /*! Size of a key that takes one column, in pixels; 40 x 40 by default. Wider keys take the spacing too. */
    Q_PROPERTY(qreal keyHeight MEMBER m_keyHeight NOTIFY measuresChanged)
    Q_PROPERTY(qreal keyWidth MEMBER m_keyWidth NOTIFY measuresChanged)

    /*!
        The language whose letters are shown: "en", "ru", "de" or "ar"; by default that of the default locale,
        English when that has no layout. A locale's name ("de_AT", "de-AT") means its language; another text changes
        nothing.
    */
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY stateChanged)
    /*! The languages that the language key goes through, in this order; all by default. */
    Q_PROPERTY(QStringList languages READ languages WRITE setLanguages NOTIFY stateChanged)
    /*! Capital letters for the next symbol, and until further notice; both false by default. */
    Q_PROPERTY(bool shift READ isShifted WRITE setShifted NOTIFY stateChanged)
    Q_PROPERTY(bool capsLock READ isCapsLocked WRITE setCapsLocked NOTIFY stateChanged)
    /*! Whether symbols stand in the place of letters; false by default. */
    Q_PROPERTY(bool symbols READ showsSymbols WRITE setShowsSymbols NOTIFY stateChanged)
    /*!
        Whether steering goes around from the last key of a row or column to its first one; true by default. When
        it does not, an arrow key at the edge is left to others, such as KeyNavigation with the priority AfterItem.
    */
    Q_PROPERTY(bool wrapsHorizontally MEMBER m_wrapsHorizontally NOTIFY wrappingChanged)
    Q_PROPERTY(bool wrapsVertically MEMBER m_wrapsVertically NOTIFY wrappingChanged)
    /*!
        The edges of the keyboard, Qt.LeftEdge and so on, beyond which an arrow key is left to others although steering
        goes around; none by default.
    */
    Q_PROPERTY(int openEdges MEMBER m_openEdges NOTIFY wrappingChanged)
    /*! The number of the current key, counted along the rows; by default the first letter's. */
    Q_PROPERTY(int currentKey READ currentKey WRITE setCurrentKey NOTIFY currentKeyChanged)
    /*!
        The line of text that is written into; none by default. The property "editing" of it is true while the
        keyboard has the focus and can be seen.
    */
    Q_PROPERTY(QQuickItem *edited READ edited WRITE setEdited NOTIFY editedChanged)
    /*! The edges of the keyboard that the current key is at. */
    Q_PROPERTY(int currentEdges READ currentEdges NOTIFY currentKeyChanged)
    /*! How many keys there are. */
    Q_PROPERTY(int keyCount READ keyCount CONSTANT)
    QML_ELEMENT
public:
    explicit KeyboardPad(QQuickItem *parent = nullptr);
    ~KeyboardPad() override;
    Q_DISABLE_COPY_MOVE(KeyboardPad)

    QString language() const { return m_state.language(); }
    QStringList languages() const { return m_state.languages(); }
    bool isShifted() const { return m_state.isShifted(); }
    bool isCapsLocked() const { return m_state.isCapsLocked(); }
    bool showsSymbols() const { return m_state.showsSymbols(); }
    int currentKey() const { return m_steering.key(); }
    QQuickItem *edited() const { return m_edited; }
    int currentEdges() const { return m_steering.edges(); }
    static int keyCount() { return static_cast<int>(keyboardKeys().size()); }

    void setLanguage(const QString &language);
    void setLanguages(const QStringList &languages);
    void setShifted(bool shifted);
    void setCapsLocked(bool locked);
    void setShowsSymbols(bool shows);
    void setCurrentKey(int key);
    void setEdited(QQuickItem *edited);

    /*! Does what the key \a key does; it becomes the current one. */
    Q_INVOKABLE void pressKey(int key);

    // For KeyboardKey.
    void addKey(KeyboardKey *key);
    void removeKey(KeyboardKey *key);
    QRectF keyRect(int key) const;
    QString keyName(int key) const;
    bool isOn(int key) const;

Q_SIGNALS:
    /*! A key or a real keyboard typed \a text, which may have more than one character. */
    void textEntered(const QString &text);
    void backspacePressed();
    /*! The cursor is to move by one character to the left or to the right on the screen. */
    void cursorLeftPressed();
    void cursorRightPressed();

    void lookChanged();
    void measuresChanged();
    void stateChanged();
    void wrappingChanged();
    void currentKeyChanged();
    void editedChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void updatePolish() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    template <typename Change>
    void changeState(Change change);
    void updateImplicitSize();
    void followLanguageIn(QQuickWindow *window);
    void tellEdited(bool isEdited);
    void giveFocus();
    void act(KeyKind kind, const QString &text);
    bool steer(int key);
    bool type(const QKeyEvent &event);
    KeyLook lookOf(const KeyboardKey &key) const;
    QString keyText(int key) const;
    QString iconPath(KeyKind kind) const;
    const QFont &font(KeyKind kind) const;

    qreal m_keyRoundingRadius = 0;
    QColor m_keyBackgroundColor = Qt::darkGray;
    QColor m_keyTextColor = Qt::white;
    QColor m_focusedKeyBackgroundColor;
    QColor m_focusedKeyTextColor;
    QFont m_symbolKeysFont;
    QFont m_controlKeysFont;
    QFont m_domainKeysFont;
    QString m_backspaceIconPath;
    QString m_leftIconPath;
    QString m_rightIconPath;
    QString m_capslockEnabledIconPath;
    QString m_capslockDisabledIconPath;
    qreal m_rowSpacing = 0;
    qreal m_columnSpacing = 0;
    qreal m_keyHeight = 40;
    qreal m_keyWidth = 40;
    bool m_wrapsHorizontally = true;
    bool m_wrapsVertically = true;
    int m_openEdges = 0;

    KeyboardState m_state;
    KeyboardSteering m_steering;
    QPointer<QQuickItem> m_edited;
    QPointer<QQuickWindow> m_window;
    QList<KeyboardKey *> m_keys; //!< in no particular order; not owned
};

} // namespace stbgeneric

#endif // STBGENERIC_KEYBOARDPAD_H
