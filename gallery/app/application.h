// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_APPLICATION_H
#define GALLERY_APP_APPLICATION_H

#include "app/options.h"
#include "app/pictureplan.h"
#include "app/runconfiguration.h"
#include "app/screenwindow.h"
#include "app/themewatcher.h"
#include "screens/content.h"

#include <QtCore/qobject.h>

#include <memory>

namespace gallery {

class CatalogueLoader;
class KeyRun;
class ShellController;

/*!
    One run of the gallery: configuration, language, guide, catalogue and the window with the screens. Needs a
    QGuiApplication.
*/
class Application : public QObject
{
    Q_OBJECT
public:
    explicit Application(const Options &options, QObject *parent = nullptr);
    ~Application() override;

    /*!
        Builds the window and starts to read guide and catalogue. False when that is impossible; error() tells why then.
        The run ends with finished(), never from within this function.
    */
    bool start();
    QString error() const { return m_error; }

    /*! Whether guide and catalogue are not all there yet, at the start or after a change of the language. */
    bool isReading() const { return m_reading; }

    ShellController *shell() const { return m_shell.get(); }
    ScreenWindow *view() const { return m_view.get(); }
    RunConfiguration *configuration() { return &m_configuration; }

public Q_SLOTS:
    /*!
        Makes the screens anew, as the configuration says by then, in the same window: the controllers stay, and with
        them everything that keys have led to. In another language guide and catalogue are read again too. It happens
        when control is back in the event loop, once however often it was asked for till then.
    */
    void rebuild();

Q_SIGNALS:
    /*! The screens were made anew. */
    void rebuilt();
    void finished(gallery::ExitCode code);

private:
    void setUpConfiguration();
    void setUpView();
    bool useLanguage(const QString &code);
    bool buildScreens();
    bool rebuildNow();

    void readFiles(Content content);
    void loadGuide();
    void loadCatalogue(Content content);
    void finishLoading();
    bool tellProblems();
    bool hasWantedRenderer() const;
    void pressKeys();
    void finishKeys();
    void showPicture();
    bool writePicture();
    void fail(ExitCode code, const QString &message);

    Options m_options;
    RunConfiguration m_configuration;
    QString m_language;
    QString m_error;
    QList<Picture> m_pictures; // still to be written, the present one first
    QString m_startScreen;
    bool m_rebuildAsked = false;
    bool m_reading = false; // files, or is about to
    bool m_begun = false; // the first screen was shown
    std::unique_ptr<ShellController> m_shell;
    std::unique_ptr<CatalogueLoader> m_catalogueLoader;
    ThemeWatcher m_themeWatcher;
    std::unique_ptr<ScreenWindow> m_view;
    std::unique_ptr<KeyRun> m_keyRun;
};

/*! Prints \a message as the program does, in one line on standard error. */
void printError(const QString &message);

} // namespace gallery

#endif // GALLERY_APP_APPLICATION_H
