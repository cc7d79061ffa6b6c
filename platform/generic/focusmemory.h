// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_FOCUSMEMORY_H
#define STBGENERIC_FOCUSMEMORY_H

#include <QtCore/qpointer.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

namespace stbgeneric {

/*!
    A focus scope that never keeps the focus for itself while there is an item in its area that can have it: it goes
    to the one that had it last, else to the first one. An item can have it when it is seen and enabled and is a
    focus scope (all views and controls are one) or takes the focus by tab; when no item is of that kind, the first
    one that is seen and enabled gets it.
*/
class FocusMemory : public QQuickItem
{
    Q_OBJECT
    /*! The item whose child items are looked at; none by default. */
    Q_PROPERTY(QQuickItem *area READ area WRITE setArea NOTIFY areaChanged)
    QML_ELEMENT
public:
    explicit FocusMemory(QQuickItem *parent = nullptr);
    ~FocusMemory() override;
    Q_DISABLE_COPY_MOVE(FocusMemory)

    QQuickItem *area() const { return m_area; }
    void setArea(QQuickItem *area);

Q_SIGNALS:
    void areaChanged();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void followFocusIn(QQuickWindow *window);
    void watch(QQuickItem *item);
    void leaveHidden();
    void giveAwayFocus();

    QPointer<QQuickItem> m_area;
    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_watched; //!< has the focus; Qt leaves it there when the item is hidden
};

/*! The first item below \a area that can have the focus; null when there is none. */
QQuickItem *firstFocusable(const QQuickItem *area);

} // namespace stbgeneric

#endif // STBGENERIC_FOCUSMEMORY_H
