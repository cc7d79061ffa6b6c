// SPDX-License-Identifier: MIT
#ifndef STBTEST_DESIGN_REFLECTION_H
#define STBTEST_DESIGN_REFLECTION_H

#include <QtCore/qjsonobject.h>
#include <QtCore/qmetaobject.h>
#include <QtCore/qvariant.h>

#include <functional>

/*! Style values by reflection, so that no field is left out and no two fields get the same value. */
namespace reflection {

/*! The fields of a gadget or object: its stored properties but for QObject's own. */
QList<QMetaProperty> fields(const QMetaObject *meta);

/*! A value of \a type that no other call gives (as far as the type allows), even deep inside of gadgets. */
QVariant distinct(QMetaType type);

/*! \a value as a theme file writes it. */
QJsonValue toJson(const QVariant &value);

/*! Calls \a visit with each value inside of \a value that has no fields of its own, and its path. */
void visitLeaves(const QVariant &value, const QString &path,
                 const std::function<void(const QString &, const QVariant &)> &visit);

/*!
    The styles of \a object: the struct of an object that carries one, else the object's own fields; groups
    are followed. The first argument of \a visit is the path.
*/
void visitFields(QObject *object, const QString &path,
                 const std::function<void(const QString &, QObject *, const QMetaProperty &)> &visit);

} // namespace reflection

#endif // STBTEST_DESIGN_REFLECTION_H
