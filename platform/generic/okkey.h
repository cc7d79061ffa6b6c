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
    only. A key that is held presses once: what it repeats is swallowed.
*/
class OkKey : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *target READ target WRITE setTarget NOTIFY targetChanged)
    QML_ELEMENT
public:
    using QObject::QObject;

    /*! The button; none by default. */
    QQuickItem *target() const { return m_target; }
    void setTarget(QQuickItem *target);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void targetChanged();

private:
    QPointer<QQuickItem> m_target;
};

} // namespace stbgeneric

#endif // STBGENERIC_OKKEY_H
