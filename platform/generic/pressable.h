// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_PRESSABLE_H
#define STBGENERIC_PRESSABLE_H

#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

namespace stbgeneric {

/*!
    An item that the OK keys (isOkKey()) and the left mouse button press, and that is nothing else: unlike a
    button of Qt Quick's templates it never checks itself. A click is a press and a release on the item; a key
    that is held clicks once. Losing the focus, the pointer, its enabled state or its visibility ends a press
    without a click.
*/
class Pressable : public QQuickItem
{
    Q_OBJECT
    /*! Whether a key or the mouse button is held on the item. */
    Q_PROPERTY(bool pressed READ isPressed NOTIFY pressedChanged)
    QML_ELEMENT
public:
    explicit Pressable(QQuickItem *parent = nullptr);

    bool isPressed() const { return m_pressed; }

    /*! A click by other means, such as an assistive program; none while the item is disabled or hidden. */
    Q_INVOKABLE void click();

Q_SIGNALS:
    void pressedChanged();
    /*! A press that began on the item was released on it. pressed is false by then. */
    void clicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void focusOutEvent(QFocusEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void setPressed(bool pressed);
    void release();

    bool m_pressed = false;
};

} // namespace stbgeneric

#endif // STBGENERIC_PRESSABLE_H
