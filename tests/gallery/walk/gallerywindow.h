// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_GALLERYWINDOW_H
#define STBUI_TEST_GALLERYWINDOW_H

#include "testkit/fakeplatform.h"

#include "screens/shellcontroller.h"

#include <QtGui/qimage.h>
#include <QtQuick/qquickview.h>

/*! How a GalleryWindow looks. Empty: as the configuration's defaults say. */
struct WindowLook
{
    QString theme; // "light" and so on
    QString resolution; // "hd", "fullhd", "sd"
    QString language; // "en" if empty
    double textScale = 1;
};

/*!
    All screens of the gallery in a window, without a program around them: nothing is read from files but the gallery's
    own catalogue, settings are kept in memory, and time stands still unless a test lets events in. Nothing is animated.
*/
class GalleryWindow
{
    Q_DISABLE_COPY_MOVE(GalleryWindow)
public:
    explicit GalleryWindow(const WindowLook &look = {});
    ~GalleryWindow();

    /*! 20:05 of a Sunday, with the gallery's own guide and catalogue. */
    void showOwnContent();

    gallery::ShellController *shell() { return &m_shell; }
    QQuickWindow *window() { return &m_view; }

    /*! Starts anew on \a screen and presses \a keys. */
    void start(const QString &screen, const QList<Qt::Key> &keys = {});
    void press(Qt::Key key);
    /*! What was asked for is done, and everything has its place; no time goes by. */
    void settle();
    /*! What is seen when all pictures have come. */
    QImage picture();
    /*!
        What is seen now and was not in \a before: nothing, when all is as it was. Both pictures are kept then. What lies
        between pixels looks another way when only a part of it is painted again.
    */
    QString changeFrom(const QImage &before);

private:
    stbtest::MemoryConfiguration m_configuration;
    QString m_language;
    gallery::ShellController m_shell;
    QQuickView m_view;
};

/*! The keys that every remote control has. */
QList<Qt::Key> plainKeys();

/*! "Down Return". */
QString keyNames(const QList<Qt::Key> &keys);

#endif // STBUI_TEST_GALLERYWINDOW_H
