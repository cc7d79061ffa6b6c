// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_FOLLOWCURRENTITEM_H
#define STBGENERIC_FOLLOWCURRENTITEM_H

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

namespace stbgeneric {

/*!
    Lets a ListView or GridView bring its current item into view after items have come or gone. By itself a view
    whose highlightMoveDuration is 0 does that only when another item becomes the current one. A view that is told
    not to follow (highlightFollowsCurrentItem is false) is left where it is.
*/
class FollowCurrentItem : public QObject
{
    Q_OBJECT
    /*! The view; none by default. */
    Q_PROPERTY(QQuickItem *view READ view WRITE setView NOTIFY viewChanged)
    QML_ELEMENT
public:
    using QObject::QObject;

    QQuickItem *view() const { return m_view; }
    void setView(QQuickItem *view);

Q_SIGNALS:
    void viewChanged();

private Q_SLOTS:
    void follow();

private:
    QPointer<QQuickItem> m_view;
};

} // namespace stbgeneric

#endif // STBGENERIC_FOLLOWCURRENTITEM_H
