// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_OKKEY_H
#define STBGENERIC_OKKEY_H

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

namespace stbgeneric {

/*! Whether \a key (Qt::Key) is one of the keys that mean OK: Return, Enter, Select and the space bar. */
bool isOkKey(int key);

/*!
    Lets every OK key press a button of Qt Quick's templates, which by themselves know the space bar and Select
    only. A key that is held presses once: what it repeats is swallowed. A button that is hidden while it is
    pressed is let go without a click.

    With the key Return it does the same for a line of text, where the space bar writes a space.
*/
class OkKey : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *target READ target WRITE setTarget NOTIFY targetChanged)
    /*! The key (Qt::Key) that the target gets for each of them; the space bar by default. */
    Q_PROPERTY(int key MEMBER m_key NOTIFY keyChanged)
    QML_ELEMENT
public:
    using QObject::QObject;

    /*! The button; none by default. */
    QQuickItem *target() const { return m_target; }
    void setTarget(QQuickItem *target);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void targetChanged();
    void keyChanged();

private:
    void letGo();

    QPointer<QQuickItem> m_target;
    int m_key = Qt::Key_Space;
};

} // namespace stbgeneric

#endif // STBGENERIC_OKKEY_H
