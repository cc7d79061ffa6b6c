// SPDX-License-Identifier: MIT
#ifndef TESTS_QML_DESIGNVALUES_H
#define TESTS_QML_DESIGNVALUES_H

#include <design_system/statescolors.h>

#include <QtCore/qlist.h>
#include <QtCore/qmetaobject.h>
#include <QtCore/qobject.h>
#include <QtCore/qrect.h>
#include <QtCore/qsize.h>
#include <QtGui/qcolor.h>
#include <QtGui/qfont.h>

/*! Numbers, colours, fonts and texts of which no two are alike, so that two swapped fields show. */
class OddValues
{
public:
    int number() { return 101 + 2 * m_count++; }
    QColor color() { return QColor::fromRgba(0xff102030U + 0x00010305U * unsigned(m_count++)); }

    QVariant of(QMetaType type)
    {
        if (type == QMetaType::fromType<int>())
            return number();
        if (type == QMetaType::fromType<QColor>())
            return color();
        if (type == QMetaType::fromType<QString>())
            return QStringLiteral("text %1").arg(number());
        if (type == QMetaType::fromType<QSize>())
            return QSize(number(), number());
        if (type == QMetaType::fromType<QRect>())
            return QRect(number(), number(), number(), number());
        if (type == QMetaType::fromType<QFont>()) {
            QFont font(QStringLiteral("DejaVu Sans"));
            font.setPixelSize(number());
            return font;
        }
        if (type == QMetaType::fromType<design_system::StatesColors>())
            return QVariant::fromValue(design_system::StatesColors { color(), color(), color(), color() });
        return {};
    }

    /*! Gives every writable property of \a object, and of the objects that it hands out, a value of its own. */
    void fill(QObject *object)
    {
        const QMetaObject *meta = object->metaObject();
        for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (auto *group = property.read(object).value<QObject *>())
                fill(group);
            else if (property.isWritable())
                property.write(object, of(property.metaType()));
        }
    }

private:
    int m_count = 0;
};

/*!
    What QML reads as \a path below \a object: properties, the sides of rectangles and sizes, and methods that
    return colours ("indicatorColors()"). Invalid when there is no such thing.
*/
inline QVariant designValue(QObject *object, const QByteArray &path)
{
    const QList<QByteArray> names = path.split('.');
    for (qsizetype i = 0; i < names.size() && object; ++i) {
        if (names[i].endsWith("()")) {
            QList<QColor> colors;
            const QByteArray method = names[i].chopped(2);
            return QMetaObject::invokeMethod(object, method.constData(), Q_RETURN_ARG(QList<QColor>, colors))
                           ? QVariant::fromValue(colors)
                           : QVariant();
        }
        const QVariant value = object->property(names[i].constData());
        if (i == names.size() - 1)
            return value;
        const bool isWidth = names[i + 1] == "width";
        if (value.metaType() == QMetaType::fromType<QRect>())
            return isWidth ? value.toRect().width() : value.toRect().height();
        if (value.metaType() == QMetaType::fromType<QSize>())
            return isWidth ? value.toSize().width() : value.toSize().height();
        object = value.value<QObject *>();
    }
    return {};
}

#endif // TESTS_QML_DESIGNVALUES_H
