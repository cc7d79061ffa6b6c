// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_APPLICATION_H
#define GALLERY_APP_APPLICATION_H

#include "app/options.h"
#include "app/runconfiguration.h"

#include <QtCore/qobject.h>

#include <memory>

class QQuickView;

namespace gallery {

class Clock;
class GuideController;

/*!
    Sets the environment that a run needs before the application object is made: pictures are rendered without a
    display, by the software renderer unless another one is asked for, and pixel for pixel.
*/
void prepareEnvironment(const Options &options);

/*!
    One run of the gallery: configuration, language, guide and the window with the screen. Needs a
    QGuiApplication.
*/
class Application : public QObject
{
    Q_OBJECT
public:
    explicit Application(const Options &options, QObject *parent = nullptr);
    ~Application() override;

    /*!
        Builds the window and starts to read the guide. False when that is impossible; error() tells why then.
        The run ends with finished(), never from within this function.
    */
    bool start();
    QString error() const { return m_error; }

    GuideController *guide() const { return m_guide.get(); }
    QQuickView *view() const { return m_view.get(); }

Q_SIGNALS:
    void finished(gallery::ExitCode code);

private:
    void setUpConfiguration();
    bool setUpLanguage();
    bool setUpView();
    void loadGuide();
    bool hasWantedRenderer() const;
    void showScreen();
    void finishPicture();
    void fail(ExitCode code, const QString &message);

    Options m_options;
    RunConfiguration m_configuration;
    QString m_language;
    QString m_error;
    std::unique_ptr<Clock> m_clock;
    std::unique_ptr<GuideController> m_guide;
    std::unique_ptr<QQuickView> m_view;
};

/*! The whole program: reads \a arguments, runs, and returns the exit code. */
int runGallery(int &argc, char **argv);

} // namespace gallery

#endif // GALLERY_APP_APPLICATION_H
