// SPDX-License-Identifier: MIT
#include "design_system/themewriter.h"

#include <QtCore/qset.h>
#include <QtGui/qpen.h>

namespace design_system {

namespace {

constexpr QLatin1String colorsSection("colors");
constexpr QLatin1String fontsSection("fonts");

int firstField(const QMetaObject *meta)
{
    return meta->inherits(&QObject::staticMetaObject) ? QObject::staticMetaObject.propertyCount() : 0;
}

} // namespace

ThemeFields::ThemeFields(QObject *object)
    : m_meta(object->metaObject())
    , m_object(object)
{
}

ThemeFields::ThemeFields(const QMetaObject *meta, void *gadget)
    : m_meta(meta)
    , m_gadget(gadget)
{
}

QMetaProperty ThemeFields::find(const QString &name) const
{
    const int index = m_meta->indexOfProperty(name.toUtf8().constData());
    if (index < firstField(m_meta))
        return {};
    const QMetaProperty property = m_meta->property(index);
    // A name with a zero in it would be found by what stands before the zero.
    return property.isStored() && QLatin1String(property.name()) == name ? property : QMetaProperty();
}

QVariant ThemeFields::read(const QMetaProperty &property) const
{
    return m_object ? property.read(m_object) : property.readOnGadget(m_gadget);
}

void ThemeFields::write(const QMetaProperty &property, const QVariant &value) const
{
    if (m_object)
        property.write(m_object, value);
    else
        property.writeOnGadget(m_gadget, value);
}

bool ThemeFields::isCount(const QMetaProperty &property) const
{
    const QMetaClassInfo unscaled = m_meta->classInfo(m_meta->indexOfClassInfo("unscaled"));
    return QByteArray(unscaled.value()).split(',').contains(property.name());
}

QString ThemeFields::expectedNames() const
{
    constexpr qsizetype longestList = 8;
    QStringList names;
    for (int i = firstField(m_meta); i < m_meta->propertyCount(); ++i) {
        if (m_meta->property(i).isStored())
            names.append(QString::fromLatin1(m_meta->property(i).name()));
    }
    if (names.size() <= longestList)
        return QStringLiteral("one of %1 as the key").arg(names.join(QStringLiteral(", ")));
    const QString className = QString::fromLatin1(m_meta->className());
    return QStringLiteral("a property of %1 as the key").arg(className.section(QStringLiteral("::"), -1));
}

ThemeWriter::ThemeWriter(const ValueContext &context, ThemeWarnings &warnings)
    : m_context(context)
    , m_warnings(warnings)
{
}

void ThemeWriter::writeSections(const QJsonObject &sections, const QString &path, QObject *root)
{
    const ThemeFields fields(root);
    for (auto it = sections.begin(); it != sections.end(); ++it) {
        if (it.key() == colorsSection || it.key() == fontsSection)
            continue;
        const QMetaProperty property = fields.find(it.key());
        if (property.isValid())
            writeObject(it.value(), path + it.key(), fields.read(property).value<QObject *>());
        else
            m_warnings.add(path + it.key(), QStringLiteral("a section of a theme as the key"), it.value());
    }
}

// An object that only carries a struct is written as the struct.
void ThemeWriter::writeObject(const QJsonValue &json, const QString &path, QObject *object)
{
    const ThemeFields fields(object);
    const QMetaProperty style = fields.find(QStringLiteral("style"));
    if (!style.isValid())
        return writeFields(json, path, fields);
    QVariant value = fields.read(style);
    writeFields(json, path, ThemeFields(value.metaType().metaObject(), value.data()));
    fields.write(style, value);
}

void ThemeWriter::writeFields(const QJsonValue &json, const QString &path, const ThemeFields &fields)
{
    if (!json.isObject())
        return m_warnings.add(path, QStringLiteral("an object"), json);
    const QJsonObject values = json.toObject();
    for (auto it = values.begin(); it != values.end(); ++it) {
        const QString fieldPath = path + u'.' + it.key();
        const QMetaProperty property = fields.find(it.key());
        if (property.isValid())
            writeField(it.value(), fieldPath, fields, property);
        else
            m_warnings.add(fieldPath, fields.expectedNames(), it.value());
    }
}

void ThemeWriter::writeField(const QJsonValue &json, const QString &path, const ThemeFields &fields,
                             const QMetaProperty &property)
{
    const ValueKind *kind = fields.isCount(property) ? countKind() : valueKind(property.metaType());
    if (kind) {
        const QVariant value = kind->read(json, m_context);
        if (value.isValid())
            fields.write(property, value);
        else
            m_warnings.add(path, QString::fromUtf8(kind->expected), json);
        return;
    }
    const QVariant current = fields.read(property);
    if (auto *object = current.value<QObject *>())
        writeObject(json, path, object);
    else
        fields.write(property, composed(json, path, current));
}

// A value that has fields of its own: what json does not name stays as it is in current.
QVariant ThemeWriter::composed(const QJsonValue &json, const QString &path, QVariant current)
{
    if (current.metaType() == QMetaType::fromType<QFont>())
        return font(json, path, current.value<QFont>());
    if (current.metaType() == QMetaType::fromType<QPen>()) {
        auto pen = current.value<QPen>();
        PenKeys keys { pen.color(), pen.width() };
        writeFields(json, path, ThemeFields(&PenKeys::staticMetaObject, &keys));
        pen.setColor(keys.color);
        pen.setWidth(keys.width);
        return pen;
    }
    Q_ASSERT(current.metaType().flags().testFlag(QMetaType::IsGadget));
    writeFields(json, path, ThemeFields(current.metaType().metaObject(), current.data()));
    return current;
}

QFont ThemeWriter::font(const QJsonValue &json, const QString &path, const QFont &current)
{
    if (!json.isObject())
        return roleFont(json, path, current, "a role of \"fonts\" or an object");
    QJsonObject values = json.toObject();
    const QJsonValue role = values.take(QStringLiteral("role"));
    const QFont base = role.isUndefined() ? current
                                          : roleFont(role, path + QStringLiteral(".role"), current,
                                                     "a role of \"fonts\"");
    FontKeys keys = FontKeys::of(base);
    ValueContext context = m_context;
    context.scale *= context.textScale;
    const ThemeFields fields(&FontKeys::staticMetaObject, &keys);
    ThemeWriter(context, m_warnings).writeFields(values, path, fields);
    return keys.toFont();
}

QFont ThemeWriter::roleFont(const QJsonValue &role, const QString &path, const QFont &current,
                            const char *expected)
{
    const auto found = m_context.fonts.constFind(role.toString());
    if (!role.isString() || found == m_context.fonts.constEnd()) {
        m_warnings.add(path, QString::fromUtf8(expected), role);
        return current;
    }
    FontKeys keys = FontKeys::of(*found);
    keys.pixelSize.value = scaledPixelSize(keys.pixelSize.value, m_context.textScale);
    return keys.toFont();
}

} // namespace design_system
