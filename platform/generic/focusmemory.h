// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_FOCUSMEMORY_H
#define STBGENERIC_FOCUSMEMORY_H

#include <QtCore/qpointer.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

#include <memory>

namespace stbgeneric {

/*!
    A focus scope that never keeps the focus for itself while there is an item in its area that can have it: it goes
    to the one that had it last, else to the first one. An item can have it when it is seen and enabled and is a
    focus scope (all views and controls are one) or takes the focus by tab; when no item is of that kind, the first
    one that is seen and enabled gets it, until one of that kind appears. A Loader counts as what it has loaded.

    An item that loses the focus while it is still there may be on its way out, and the ones around it too: then the
    scope itself has the focus until the next frame.
*/
class FocusMemory : public QQuickItem
{
    Q_OBJECT
    /*! The item whose child items are looked at; none by default. */
    Q_PROPERTY(QQuickItem *area READ area WRITE setArea NOTIFY areaChanged)
    /*!
        How far down the items in the area reach. What they do because the height of this item changes does not
        count, so one of them may fill an area that is as high as its content.
    */
    Q_PROPERTY(qreal contentHeight READ contentHeight NOTIFY contentHeightChanged)
    QML_ELEMENT
public:
    explicit FocusMemory(QQuickItem *parent = nullptr);
    ~FocusMemory() override;
    Q_DISABLE_COPY_MOVE(FocusMemory)

    QQuickItem *area() const { return m_area; }
    void setArea(QQuickItem *area);
    qreal contentHeight() const { return m_contentHeight; }

Q_SIGNALS:
    void areaChanged();
    void contentHeightChanged();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void updatePolish() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void followFocusIn(QQuickWindow *window);
    void watch(QQuickItem *item);
    void leaveHidden();
    bool isWaiting() const;
    void listenTo(QQuickItem *item);
    void giveAwayFocus();
    void measure();

    QPointer<QQuickItem> m_area;
    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_watched; //!< has the focus; Qt leaves it there when the item is hidden
    QPointer<QQuickItem> m_standIn; //!< got the focus because there was nothing better
    qreal m_contentHeight = 0;
    bool m_isResizing = false;
    std::unique_ptr<QObject> m_ears; //!< while the focus waits for an item: receives the area's changes
};

/*! The first item below \a area that can have the focus; null when there is none. */
QQuickItem *firstFocusable(const QQuickItem *area);

} // namespace stbgeneric

#endif // STBGENERIC_FOCUSMEMORY_H
