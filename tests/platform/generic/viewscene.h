// SPDX-License-Identifier: MIT
#ifndef STBTEST_VIEWSCENE_H
#define STBTEST_VIEWSCENE_H

#include "testkit/qmlscene.h"
#include "testkit/stage.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qstringlist.h>
#include <QtGui/qaccessible.h>
#include <QtGui/qevent.h>
#include <QtQuick/qquickwindow.h>

#include <memory>

namespace stbtest {

/*! An item from QML text in a window that has the focus, as an application's screen would be. */
struct ViewScene
{
    explicit ViewScene(const QSize &size = QSize(640, 360), const QColor &background = QColor(16, 20, 28))
        : stage(size, background)
    {
        QFocusEvent focus(QEvent::FocusIn);
        QCoreApplication::sendEvent(stage.window(), &focus);
    }

    /*! Shows the item that \a text describes; false when it cannot be made. */
    bool show(const QString &text)
    {
        item.reset();
        item = qml.createItem(QStringLiteral("import QtQuick\nimport QtQuick.Templates as T\n"
                                             "import Stbui.UI.Qml.Controls.Generic\n")
                                      + text,
                              stage.contentItem());
        if (!item)
            return false;
        stage.renderFrame();
        return true;
    }

    /*! Presses and releases a key; true when somebody wanted it. A key with \a text types it. */
    bool press(Qt::Key key, const QString &text = {}) const
    {
        const bool isAccepted = send(QEvent::KeyPress, key, false, text);
        send(QEvent::KeyRelease, key, false, text);
        return isAccepted;
    }

    /*! A key that is held repeats itself \a times times after the press. */
    void hold(Qt::Key key, int times) const
    {
        send(QEvent::KeyPress, key, false, {});
        for (int i = 0; i < times; ++i)
            send(QEvent::KeyPress, key, true, {});
        send(QEvent::KeyRelease, key, false, {});
    }

    bool send(QEvent::Type type, Qt::Key key, bool isRepeat, const QString &text) const
    {
        QKeyEvent event(type, key, Qt::NoModifier, text, isRepeat);
        QCoreApplication::sendEvent(stage.window(), &event);
        return event.isAccepted();
    }

    QQuickItem *focusItem() const { return stage.window()->activeFocusItem(); }

    QmlScene qml;
    Stage stage;
    std::unique_ptr<QQuickItem> item;
};

/*! \a defaults ("name: value") but for those that \a properties give otherwise, and \a properties. */
inline QString withDefaults(const QStringList &defaults, const QString &properties)
{
    QString result = properties;
    for (const QString &line : defaults) {
        if (!properties.contains(line.left(line.indexOf(QLatin1Char(':')) + 1)))
            result += QLatin1Char('\n') + line;
    }
    return result;
}

/*! What a screen reader is told of an item; null when it is told nothing. */
inline QAccessibleInterface *accessible(QObject *item)
{
    return QAccessible::queryAccessibleInterface(item);
}

/*! The first item below \a root of the class whose name starts with \a className; null when there is none. */
inline QQuickItem *findItem(QQuickItem *root, const char *className)
{
    const QList<QQuickItem *> children = root->childItems();
    for (QQuickItem *child : children) {
        if (QByteArray(child->metaObject()->className()).startsWith(className))
            return child;
        if (QQuickItem *found = findItem(child, className))
            return found;
    }
    return nullptr;
}

} // namespace stbtest

#endif // STBTEST_VIEWSCENE_H
