// SPDX-License-Identifier: MIT
#include "screens/componentpreview.h"

#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQml/qqmlinfo.h>
#include <QtQml/qqmlproperty.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace gallery {

ComponentPreview::ComponentPreview(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
    setClip(true);
}

ComponentPreview::~ComponentPreview() = default;

void ComponentPreview::setController(ComponentsController *controller)
{
    if (controller == m_controller)
        return;
    if (m_controller != nullptr)
        m_controller->disconnect(this);
    m_controller = controller;
    if (m_controller != nullptr) {
        connect(m_controller, &ComponentsController::pageChanged, this, &ComponentPreview::make);
        connect(m_controller, &ComponentsController::unitChanged, this, &ComponentPreview::make);
        connect(m_controller, &ComponentsController::valueChosen, this, &ComponentPreview::apply);
    }
    Q_EMIT controllerChanged();
    make();
}

void ComponentPreview::componentComplete()
{
    QQuickItem::componentComplete();
    make();
}

void ComponentPreview::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        place();
}

void ComponentPreview::make()
{
    if (!isComponentComplete() || m_controller == nullptr)
        return;
    m_control.reset();
    QQmlEngine *engine = qmlEngine(this);
    QQmlComponent component(engine);
    component.setData(m_controller->creationQml().toUtf8(), {});
    std::unique_ptr<QObject> made(component.beginCreate(engine->rootContext()));
    if (auto *item = qobject_cast<QQuickItem *>(made.get())) {
        static_cast<void>(made.release()); // m_control has it from here on
        m_control.reset(item);
        item->setParentItem(this);
        component.completeCreate();
        item->setFocus(true);
        writeLate();
        handTarget();
        watch();
    } else {
        qmlWarning(this) << m_controller->pageName() << ": " << component.errorString();
    }
    Q_EMIT controlChanged();
    place();
}

void ComponentPreview::writeLate()
{
    const QList<ComponentEditor> &editors = m_controller->page().editors;
    for (int row = 0; row < editors.size(); ++row) {
        if (editors.at(row).isLate)
            write(row);
    }
}

void ComponentPreview::watch()
{
    // By its number, because Qt connects the signals of aliases in no other way.
    const int slot = metaObject()->indexOfSlot("readBack()");
    for (const ComponentEditor &editor : m_controller->page().editors) {
        if (editor.isFedBack)
            QQmlProperty(m_control.get(), editor.name).connectNotifySignal(this, slot);
    }
    connect(m_control.get(), &QQuickItem::widthChanged, this, &ComponentPreview::place);
    connect(m_control.get(), &QQuickItem::heightChanged, this, &ComponentPreview::place);
}

// Which one of the properties has changed does not matter: the others are the same as before.
void ComponentPreview::readBack()
{
    if (m_control == nullptr)
        return;
    const QList<ComponentEditor> &editors = m_controller->page().editors;
    for (int row = 0; row < editors.size(); ++row) {
        if (editors.at(row).isFedBack)
            m_controller->takeValue(row, QQmlProperty::read(m_control.get(), editors.at(row).name));
    }
}

void ComponentPreview::apply(int row)
{
    if (m_control != nullptr && m_controller->page().editors.at(row).isWritten)
        write(row);
    else
        make();
}

void ComponentPreview::write(int row)
{
    const ComponentEditor &editor = m_controller->page().editors.at(row);
    const QVariant value = m_controller->editors()->value(row);
    QQmlProperty::write(m_control.get(), editor.name, editor.written(value, m_controller->unit()));
}

void ComponentPreview::setTarget(QQuickItem *target)
{
    if (target == m_target)
        return;
    m_target = target;
    handTarget();
    Q_EMIT targetChanged();
}

void ComponentPreview::handTarget()
{
    if (m_control != nullptr && m_controller->types())
        QQmlProperty::write(m_control.get(), u"target"_s, QVariant::fromValue(m_target.data()));
}

void ComponentPreview::place()
{
    if (m_control == nullptr)
        return;
    const QMargins sides = m_controller->page().overhang;
    const QMarginsF overhang = QMarginsF(sides) * m_controller->unit();
    const QSizeF whole = m_control->size().grownBy(overhang);
    if (whole.isEmpty())
        return;
    const qreal scale = std::min({ 1.0, width() / whole.width(), height() / whole.height() });
    const QSizeF shown = whole * scale;
    const QPointF corner(std::floor((width() - shown.width()) / 2),
                         std::floor((height() - shown.height()) / 2));
    m_control->setTransformOrigin(QQuickItem::TopLeft);
    m_control->setScale(scale);
    m_control->setPosition(corner + QPointF(overhang.left(), overhang.top()) * scale);
    const QRectF rect(m_control->position(), m_control->size() * scale);
    if (rect == m_controlRect)
        return;
    m_controlRect = rect;
    Q_EMIT controlRectChanged();
}

} // namespace gallery
