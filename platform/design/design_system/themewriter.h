// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_THEMEWRITER_H
#define DESIGN_SYSTEM_THEMEWRITER_H

#include "design_system/themefile.h"
#include "design_system/themevalues.h"

#include <QtCore/qmetaobject.h>

namespace design_system {

/*! The fields of an object or of a gadget, by name. */
class ThemeFields
{
public:
    explicit ThemeFields(QObject *object);
    ThemeFields(const QMetaObject *meta, void *gadget);

    /*! The field \a name; invalid if there is none, or if it is only another view of one. */
    QMetaProperty find(const QString &name) const;
    QVariant read(const QMetaProperty &property) const;
    void write(const QMetaProperty &property, const QVariant &value) const;

    /*! Whether \a property is a number that has nothing to do with pixels. */
    bool isCount(const QMetaProperty &property) const;
    /*! What to write instead of a name that is not found. */
    QString expectedNames() const;

private:
    const QMetaObject *m_meta;
    QObject *m_object = nullptr;
    void *m_gadget = nullptr;
};

/*! Writes values of one theme file to fields, and warns of those that do not fit. */
class ThemeWriter
{
public:
    ThemeWriter(const ValueContext &context, ThemeWarnings &warnings);

    /*! Writes \a sections to the properties of \a root, but for those that define what others refer to. */
    void writeSections(const QJsonObject &sections, const QString &path, QObject *root);

    /*! \a current, changed to what \a json says: a role, or an object of FontKeys. */
    QFont font(const QJsonValue &json, const QString &path, const QFont &current);

private:
    void writeObject(const QJsonValue &json, const QString &path, QObject *object);
    void writeFields(const QJsonValue &json, const QString &path, const ThemeFields &fields);
    void writeField(const QJsonValue &json, const QString &path, const ThemeFields &fields,
                    const QMetaProperty &property);
    QVariant composed(const QJsonValue &json, const QString &path, QVariant current);
    QFont roleFont(const QJsonValue &role, const QString &path, const QFont &current, const char *expected);

    ValueContext m_context;
    ThemeWarnings &m_warnings;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_THEMEWRITER_H
