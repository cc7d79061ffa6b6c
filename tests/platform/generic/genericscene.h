// SPDX-License-Identifier: MIT
#ifndef TESTS_PLATFORM_GENERIC_GENERICSCENE_H
#define TESTS_PLATFORM_GENERIC_GENERICSCENE_H

#include "testkit/qmlscene.h"
#include "testkit/stage.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qevent.h>
#include <QtQuick/qquickwindow.h>

/*! One item from QML text in a window that has the focus. */
class GenericScene
{
public:
    explicit GenericScene(const QString &text, const QSize &size = QSize(400, 200),
                          const QColor &background = Qt::white)
        : stage(size, background)
    {
        activate();
        item = qml.createItem(QStringLiteral("import QtQuick\n"
                                             "import QtQuick.Templates as T\n"
                                             "import Stbui.UI.Qml.Controls.Generic\n")
                                      + text,
                              stage.contentItem());
    }
    /*! The same from the file \a url, which may have components of its own. */
    GenericScene(const QUrl &url, const QSize &size, const QColor &background)
        : stage(size, background)
    {
        activate();
        item = qml.createItem(url, stage.contentItem());
    }

    /*! The item with this objectName. */
    QQuickItem *find(const char *name) const { return item->findChild<QQuickItem *>(QLatin1String(name)); }

    /*! The first child item of the class \a className, at any depth. */
    static QQuickItem *childOf(const QQuickItem *parent, const char *className)
    {
        for (QQuickItem *child : parent->childItems()) {
            if (child->inherits(className))
                return child;
            if (QQuickItem *found = childOf(child, className))
                return found;
        }
        return nullptr;
    }

    /*! Whether somebody took the key. */
    bool press(int key, bool repeated = false, const QString &text = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text, repeated);
        QCoreApplication::sendEvent(stage.window(), &event);
        return event.isAccepted();
    }
    bool release(int key, bool repeated = false)
    {
        QKeyEvent event(QEvent::KeyRelease, key, Qt::NoModifier, QString(), repeated);
        QCoreApplication::sendEvent(stage.window(), &event);
        return event.isAccepted();
    }
    bool click(int key)
    {
        const bool taken = press(key);
        release(key);
        return taken;
    }
    /*! A key held for some time, as X11 and evdev tell it. */
    void hold(int key)
    {
        press(key);
        for (int i = 0; i < 5; ++i) {
            release(key, true);
            press(key, true);
        }
        release(key);
    }
    void type(const QString &text)
    {
        for (const QChar c : text)
            press(c.toUpper().unicode(), false, c);
    }

    QColor pixel(int x, int y) const { return stage.picture().pixelColor(x, y); }

    stbtest::QmlScene qml;
    stbtest::Stage stage;
    std::unique_ptr<QQuickItem> item;

private:
    void activate()
    {
        QFocusEvent focus(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(stage.window(), &focus);
    }
};

#endif // TESTS_PLATFORM_GENERIC_GENERICSCENE_H
