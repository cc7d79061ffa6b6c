// SPDX-License-Identifier: MIT
#include "reflection.h"

#include <QtCore/qjsonarray.h>
#include <QtCore/qmargins.h>
#include <QtCore/qpoint.h>
#include <QtCore/qrect.h>
#include <QtCore/qsize.h>
#include <QtGui/qcolor.h>
#include <QtGui/qfont.h>
#include <QtGui/qpen.h>

namespace reflection {

namespace {

int number()
{
    static int last = 1;
    return last += 2;
}

QColor color()
{
    return QColor::fromRgba(0x80000000U | (unsigned(number()) * 7919U & 0xffffffU));
}

QFont font()
{
    QFont result;
    result.setFamilies({ QStringLiteral("Family %1").arg(number()), QStringLiteral("sans-serif") });
    result.setPixelSize(number() % 999 + 1);
    result.setWeight(QFont::Weight(number() % 999 + 1));
    result.setItalic(number() % 4 == 1);
    result.setLetterSpacing(QFont::AbsoluteSpacing, number());
    return result;
}

Qt::Alignment alignment()
{
    const Qt::Alignment horizontal[] = { Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignJustify };
    const Qt::Alignment vertical[] = { Qt::AlignTop, Qt::AlignBottom, Qt::AlignVCenter };
    const int n = number() / 2;
    return horizontal[n % 4] | vertical[n % 3];
}

QVariant distinctGadget(QMetaType type)
{
    QVariant gadget(type);
    for (const QMetaProperty &property : fields(type.metaObject()))
        property.writeOnGadget(gadget.data(), distinct(property.metaType()));
    return gadget;
}

QString name(const QColor &c)
{
    return c.name(QColor::HexArgb);
}

QJsonObject fontJson(const QFont &f)
{
    return { { QStringLiteral("family"), QJsonArray::fromStringList(f.families()) },
             { QStringLiteral("pixelSize"), f.pixelSize() },
             { QStringLiteral("weight"), int(f.weight()) },
             { QStringLiteral("italic"), f.italic() },
             { QStringLiteral("letterSpacing"), int(f.letterSpacing()) } };
}

QJsonObject gadgetJson(const QVariant &gadget)
{
    QJsonObject result;
    for (const QMetaProperty &property : fields(gadget.metaType().metaObject())) {
        result.insert(QString::fromLatin1(property.name()), toJson(property.readOnGadget(gadget.constData())));
    }
    return result;
}

} // namespace

QList<QMetaProperty> fields(const QMetaObject *meta)
{
    QList<QMetaProperty> result;
    const bool isObject = meta->inherits(&QObject::staticMetaObject);
    for (int i = isObject ? QObject::staticMetaObject.propertyCount() : 0; i < meta->propertyCount(); ++i) {
        if (meta->property(i).isStored())
            result.append(meta->property(i));
    }
    return result;
}

QVariant distinct(QMetaType type)
{
    switch (type.id()) {
    case QMetaType::Int:
        return number();
    case QMetaType::QString:
        return QStringLiteral("text %1").arg(number());
    case QMetaType::QColor:
        return color();
    case QMetaType::QFont:
        return font();
    case QMetaType::QRect:
        return QRect(number(), number(), number(), number());
    case QMetaType::QSize:
        return QSize(number(), number());
    case QMetaType::QPoint:
        return QPoint(number(), number());
    case QMetaType::QPen:
        return QPen(QBrush(color()), number());
    default:
        break;
    }
    if (type == QMetaType::fromType<QMargins>())
        return QVariant::fromValue(QMargins(number(), number(), number(), number()));
    if (type == QMetaType::fromType<Qt::Alignment>())
        return QVariant::fromValue(alignment());
    Q_ASSERT_X(type.metaObject(), "distinct", type.name());
    return distinctGadget(type);
}

QJsonValue toJson(const QVariant &value)
{
    switch (value.metaType().id()) {
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QColor:
        return name(value.value<QColor>());
    case QMetaType::QFont:
        return fontJson(value.value<QFont>());
    case QMetaType::QRect: {
        const QRect r = value.toRect();
        return QJsonArray { r.x(), r.y(), r.width(), r.height() };
    }
    case QMetaType::QSize:
        return QJsonArray { value.toSize().width(), value.toSize().height() };
    case QMetaType::QPoint:
        return QJsonArray { value.toPoint().x(), value.toPoint().y() };
    case QMetaType::QPen: {
        const auto pen = value.value<QPen>();
        return QJsonObject { { QStringLiteral("color"), name(pen.color()) },
                             { QStringLiteral("width"), pen.width() } };
    }
    default:
        break;
    }
    if (value.metaType() == QMetaType::fromType<QMargins>()) {
        const auto m = value.value<QMargins>();
        return QJsonArray { m.left(), m.top(), m.right(), m.bottom() };
    }
    if (value.metaType() == QMetaType::fromType<Qt::Alignment>()) {
        const auto flags = QMetaEnum::fromType<Qt::Alignment>();
        return QString::fromLatin1(flags.valueToKeys(int(value.value<Qt::Alignment>())));
    }
    return gadgetJson(value);
}

void visitLeaves(const QVariant &value, const QString &path,
                 const std::function<void(const QString &, const QVariant &)> &visit)
{
    const QMetaObject *meta = value.metaType().metaObject();
    const bool isLeaf = !meta || value.metaType().id() < QMetaType::User;
    if (isLeaf || !QByteArray(meta->className()).startsWith("design_system::"))
        return visit(path, value);
    for (const QMetaProperty &property : fields(meta)) {
        visitLeaves(property.readOnGadget(value.constData()),
                    path + u'.' + QString::fromLatin1(property.name()), visit);
    }
}

void visitFields(QObject *object, const QString &path,
                 const std::function<void(const QString &, QObject *, const QMetaProperty &)> &visit)
{
    for (const QMetaProperty &property : fields(object->metaObject())) {
        const QString name = QString::fromLatin1(property.name());
        const QString fieldPath = name == QLatin1String("style") ? path : path + u'.' + name;
        if (auto *group = property.read(object).value<QObject *>())
            visitFields(group, fieldPath, visit);
        else
            visit(fieldPath, object, property);
    }
}

} // namespace reflection
