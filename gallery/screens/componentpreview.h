// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_COMPONENTPREVIEW_H
#define GALLERY_SCREENS_COMPONENTPREVIEW_H

#include "screens/componentscontroller.h"

#include <QtCore/qpointer.h>
#include <QtQuick/qquickitem.h>

#include <memory>

namespace gallery {

/*!
    The control of the page that is shown, made from the line of QML that is offered for copying, in the middle of the
    item; made smaller when it would not fit. There is no other control beside it.

    A control is made anew for each page and, as many keep something of what was, for each new value, unless the editor
    says that the value is written. What the control changes by itself goes back to the controller.

    It is a focus scope, and the control has its focus.
*/
class ComponentPreview : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(gallery::ComponentsController *controller READ controller WRITE setController NOTIFY
                       controllerChanged REQUIRED)
    /*! What a control that types writes into. */
    Q_PROPERTY(QQuickItem *target READ target WRITE setTarget NOTIFY targetChanged)
    /*! The control; null while there is none. */
    Q_PROPERTY(QQuickItem *control READ control NOTIFY controlChanged)
    /*! Where it is to be seen. */
    Q_PROPERTY(QRectF controlRect READ controlRect NOTIFY controlRectChanged)
    QML_ELEMENT
public:
    explicit ComponentPreview(QQuickItem *parent = nullptr);
    ~ComponentPreview() override;
    Q_DISABLE_COPY_MOVE(ComponentPreview)

    ComponentsController *controller() const { return m_controller; }
    void setController(ComponentsController *controller);
    QQuickItem *target() const { return m_target; }
    void setTarget(QQuickItem *target);
    QQuickItem *control() const { return m_control.get(); }
    QRectF controlRect() const { return m_controlRect; }

Q_SIGNALS:
    void controllerChanged();
    void targetChanged();
    void controlChanged();
    void controlRectChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private Q_SLOTS:
    void place();
    void readBack();

private:
    void make();
    void writeLate();
    void watch();
    void apply(int row);
    void write(int row);
    void handTarget();

    ComponentsController *m_controller = nullptr; // not owned
    std::unique_ptr<QQuickItem> m_control;
    QPointer<QQuickItem> m_target;
    QRectF m_controlRect;
};

} // namespace gallery

#endif // GALLERY_SCREENS_COMPONENTPREVIEW_H
