// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_APPLICATION_H
#define GALLERY_APP_APPLICATION_H

#include "app/options.h"
#include "app/runconfiguration.h"

#include <QtCore/qobject.h>

#include <memory>

class QQuickView;

namespace gallery {

class CatalogueLoader;
class KeyRun;
class ShellController;

/*!
    Sets the environment that a run needs before the application object is made: pictures are rendered without a
    display, by the software renderer unless another one is asked for, and pixel for pixel.
*/
void prepareEnvironment(const Options &options);

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

    ShellController *shell() const { return m_shell.get(); }
    QQuickView *view() const { return m_view.get(); }

Q_SIGNALS:
    void finished(gallery::ExitCode code);

private:
    void setUpConfiguration();
    bool setUpLanguage();
    bool setUpView();
    void loadGuide();
    void loadCatalogue();
    void finishLoading();
    bool tellProblems();
    bool hasWantedRenderer() const;
    void showScreen(const QString &name);
    void finishScreen();
    bool writePicture();
    void fail(ExitCode code, const QString &message);

    Options m_options;
    RunConfiguration m_configuration;
    QString m_language;
    QString m_error;
    QStringList m_screens; // still to be shown, the present one first
    int m_loading = 0; // files that are being read
    std::unique_ptr<ShellController> m_shell;
    std::unique_ptr<CatalogueLoader> m_catalogueLoader;
    std::unique_ptr<QQuickView> m_view;
    std::unique_ptr<KeyRun> m_keyRun;
};

/*! The whole program: reads \a arguments, runs, and returns the exit code. */
int runGallery(int &argc, char **argv);

} // namespace gallery

#endif // GALLERY_APP_APPLICATION_H
