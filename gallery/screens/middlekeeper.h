// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_MIDDLEKEEPER_H
#define GALLERY_SCREENS_MIDDLEKEEPER_H

#include <QtCore/qpointer.h>
#include <QtQuick/qquickitem.h>

namespace gallery {

/*!
    Keeps the current item of a list view in its middle, as far as the ends of the list allow, whatever becomes of the
    sizes of its items: at once, and again before each frame that follows a change. The view's own following of a
    highlight gets there in steps of an animation, and its positionViewAtIndex() trusts sizes of before.
*/
class MiddleKeeper : public QQuickItem
{
    Q_OBJECT
    /*! A ListView; null by default. */
    Q_PROPERTY(QQuickItem *list READ list WRITE setList NOTIFY listChanged)
    QML_ELEMENT
public:
    using QQuickItem::QQuickItem;

    QQuickItem *list() const { return m_list; }
    void setList(QQuickItem *list);

Q_SIGNALS:
    void listChanged();

protected:
    void updatePolish() override;

private Q_SLOTS:
    void follow();
    void keep();

private:
    void arrange();
    void placeOnPixels();

    QPointer<QQuickItem> m_list;
    QPointer<QQuickItem> m_current;
    bool m_keeping = false;
    bool m_moved = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_MIDDLEKEEPER_H
