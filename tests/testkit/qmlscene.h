// SPDX-License-Identifier: MIT
#ifndef STBTEST_QMLSCENE_H
#define STBTEST_QMLSCENE_H

#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>

#include <memory>

class QQmlComponent;

namespace stbtest {

/*! A QML engine that finds the build's modules, and items from QML text. It has to outlive its items. */
class QmlScene
{
public:
    QmlScene();

    QQmlEngine *engine();

    /*!
        The object that \a text describes, or null: then the engine's message is a warning, which fails a test,
        and errorString() repeats it.
    */
    std::unique_ptr<QObject> createObject(const QString &text);
    /*!
        The same from the file \a url. From Qt 6.8 on the engine finds components that are declared within others only
        when it can read the file.
    */
    std::unique_ptr<QObject> createObject(const QUrl &url);

    /*! The same, from a text or an url, for an item of the class \a Item, made a child item of \a parent. */
    template <typename Item = QQuickItem, typename Source>
    std::unique_ptr<Item> createItem(const Source &source, QQuickItem *parent = nullptr)
    {
        std::unique_ptr<QObject> object = createObject(source);
        auto *item = qobject_cast<Item *>(object.get());
        if (!item) {
            if (object)
                fail(QStringLiteral("the QML text describes a %1")
                             .arg(QLatin1String(object->metaObject()->className())));
            return nullptr;
        }
        static_cast<void>(object.release()); // the item is owned from here on
        item->setParentItem(parent);
        return std::unique_ptr<Item>(item);
    }

    /*! What was wrong with the last text; empty when nothing was. */
    QString errorString() const;

private:
    std::unique_ptr<QObject> create(QQmlComponent &component);
    void fail(const QString &message);

    QQmlEngine m_engine;
    QString m_errorString;
};

} // namespace stbtest

#endif // STBTEST_QMLSCENE_H
