// SPDX-License-Identifier: MIT
#ifndef TESTS_QML_BINDINGS_H
#define TESTS_QML_BINDINGS_H

#include "designvalues.h"

#include <QtCore/qbytearraylist.h>
#include <QtCore/qsize.h>
#include <QtCore/qstringlist.h>
#include <QtCore/qvariant.h>

#include <functional>
#include <vector>

/*! Where the value of a binding comes from. */
struct Sources
{
    QObject *design = nullptr; // the singleton QmlDesignSystem
    QObject *style = nullptr; // of the component, if it has one
    bool rounding = false;
    bool layoutScrolling = true;
};

/*! What a property of a component has to be. */
struct Binding
{
    QByteArray component;
    QByteArray property;
    std::function<QVariant(const Sources &)> value;
};

inline auto literal(const QVariant &value)
{
    return [value](const Sources &) { return value; };
}

inline auto fromDesign(const QByteArray &path)
{
    return [path](const Sources &sources) { return designValue(sources.design, path); };
}

inline auto fromStyle(const QByteArray &path)
{
    return [path](const Sources &sources) { return designValue(sources.style, path); };
}

inline auto roundedBy(const QByteArray &path)
{
    return [path](const Sources &sources) {
        return sources.rounding ? designValue(sources.style, path) : QVariant(0);
    };
}

inline auto colorsOf(const QList<QByteArray> &paths)
{
    return [paths](const Sources &sources) {
        QList<QColor> colors;
        for (const QByteArray &path : paths)
            colors += designValue(sources.style, path).value<QColor>();
        return QVariant::fromValue(colors);
    };
}

inline auto sizeOf(const QByteArray &rectangle)
{
    return [rectangle](const Sources &sources) {
        return QVariant(QSizeF(designValue(sources.style, rectangle).toRect().size()));
    };
}

/*! Every binding of the styled components, but for states and behaviours. */
std::vector<Binding> allBindings();

/*! The property of QmlDesignSystem that the property "style" of \a component starts from; empty without one. */
QByteArray styleOf(const QByteArray &component);

/*! What \a component reads, at first: with rounding off and scrolling animated. */
Sources sourcesOf(QObject *design, const QByteArray &component);

/*! The names of all components that have bindings, or of those with a property "style". */
QByteArrayList componentNames(bool withStyleOnly = false);

/*! The bindings of \a component that are not what they should be, but for those named in \a except. */
QStringList differences(const QObject *item, const QByteArray &component, const Sources &sources,
                        const QByteArrayList &except = {});

#endif // TESTS_QML_BINDINGS_H
