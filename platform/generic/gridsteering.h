// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_GRIDSTEERING_H
#define STBGENERIC_GRIDSTEERING_H

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

class QKeyEvent;

namespace stbgeneric {

/*! Who acts on a key in a grid. */
enum class GridStep {
    Usual, // the grid itself
    ToLastItem, // the last item becomes the current one
    Leave, // whoever is around the grid
};

/*!
    What the arrow \a key does with the item \a index current of \a count items in \a columns. Down leads to the last
    item where the last row is too short to have one below; left and right do not lead into another row. In a
    mirrored grid the first column is on the right.
*/
GridStep gridStep(int key, int index, int count, int columns, bool isMirrored);

/*!
    Gives a GridView that is filled row by row the steering of gridStep(). With keyNavigationWraps a row goes on in
    the next one, as the grid has it; without keyNavigationEnabled keys are none of its business.
*/
class GridSteering : public QObject
{
    Q_OBJECT
    /*! The view; none by default. */
    Q_PROPERTY(QQuickItem *view READ view WRITE setView NOTIFY viewChanged)
    QML_ELEMENT
public:
    using QObject::QObject;

    QQuickItem *view() const { return m_view; }
    void setView(QQuickItem *view);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void viewChanged();

private:
    GridStep stepFor(int key) const;

    QPointer<QQuickItem> m_view;
};

} // namespace stbgeneric

#endif // STBGENERIC_GRIDSTEERING_H
