// SPDX-License-Identifier: MIT
#include "app/application.h"

#include "app/keyrun.h"
#include "app/languages.h"
#include "gallery/data/clock.h"
#include "gallery/data/ownguide.h"
#include "screens/guidecontroller.h"

#include <QtCore/qdir.h>
#include <QtCore/qtextstream.h>
#include <QtCore/qtimer.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlengine.h>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickview.h>
#include <QtQuick/qsgrendererinterface.h>

#include <cstdlib>

Q_IMPORT_QML_PLUGIN(GalleryPlugin)

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

bool wantsPictures(const Options &options)
{
    return !options.screenshotsFolder.isEmpty();
}

void printError(const QString &message)
{
    QTextStream(stderr) << "stbui-gallery: " << message << Qt::endl;
}

/*! Ends the program with one line, where Qt would dump core because there is no display to show a window on. */
void endWithoutDisplay(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type != QtFatalMsg)
        return;
    printError(u"there is no display; --screenshots writes pictures without one, by the software renderer"_s);
    std::_Exit(int(ExitCode::Failure));
}

/*!
    Where the project's QML modules are: beside the program in the build tree, and below the prefix when it is
    installed.
*/
QStringList moduleFolders()
{
    const QDir programFolder(QCoreApplication::applicationDirPath());
    QStringList folders;
    for (const auto *relative : { STBUI_GALLERY_BUILD_QMLDIR, STBUI_GALLERY_INSTALL_QMLDIR }) {
        const QString folder = QDir::cleanPath(programFolder.absoluteFilePath(QLatin1StringView(relative)));
        if (QFileInfo::exists(folder + "/Stbui"_L1))
            folders.append(folder);
    }
    return folders;
}

} // namespace

void prepareEnvironment(const Options &options)
{
    if (options.backend == "software"_L1 || (options.backend.isEmpty() && wantsPictures(options)))
        qputenv("QT_QUICK_BACKEND", "software");
    else if (options.backend == "rhi"_L1)
        qunsetenv("QT_QUICK_BACKEND");
    if (!wantsPictures(options))
        return;
    // Without a display there is only the software renderer; another one needs the display there is.
    if (options.backend != "rhi"_L1)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char *name : { "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_USE_PHYSICAL_DPI" })
        qunsetenv(name);
    qputenv("QT_FONT_DPI", "96");
}

Application::Application(const Options &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_clock(std::make_unique<Clock>())
    , m_guide(std::make_unique<GuideController>(m_clock.get()))
{
    if (m_options.now.isValid())
        m_clock->setFixed(m_options.now);
}

Application::~Application() = default;

bool Application::start()
{
    setUpConfiguration();
    if (!setUpLanguage() || !setUpView())
        return false;
    loadGuide();
    return true;
}

void Application::setUpConfiguration()
{
    if (!m_options.resolution.isEmpty())
        m_configuration.setValue(u"UI"_s, u"resolution"_s, m_options.resolution);
    if (!m_options.themeFile.isEmpty())
        m_configuration.setValue(u"UI"_s, u"theme"_s, QFileInfo(m_options.themeFile).absoluteFilePath());
    if (!m_options.language.isEmpty())
        m_configuration.setValue(u"UI"_s, u"language"_s, m_options.language);
    if (!wantsPictures(m_options))
        return;
    // A picture shows where a movement ends, not some moment of it.
    for (const QString &key : { u"focusingEnabled"_s, u"layoutScrollingEnabled"_s,
                                u"viewportScrollingEnabled"_s, u"fadeEffectEnabled"_s, u"slidingEnabled"_s })
        m_configuration.setValue(u"Animations"_s, key, false);
}

bool Application::setUpLanguage()
{
    const QString configured = m_configuration.value(u"UI"_s, u"language"_s, {}).toString();
    m_language = bestLanguage(configured.isEmpty() ? QLocale::system().uiLanguages()
                                                   : QStringList(configured));
    if (!installLanguage(m_language)) {
        m_error = u"the texts of the language \"%1\" cannot be loaded"_s.arg(m_language);
        return false;
    }
    const auto mirror = [this] {
        m_guide->setMirrored(QGuiApplication::layoutDirection() == Qt::RightToLeft);
    };
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, mirror);
    mirror();
    return true;
}

bool Application::setUpView()
{
    m_view = std::make_unique<QQuickView>();
    const QStringList folders = moduleFolders();
    for (const QString &folder : folders)
        m_view->engine()->addImportPath(folder);
    m_view->engine()->addImportPath(u"qrc:/"_s);
    m_view->setTitle(QCoreApplication::translate("ScreenHeader", "TV guide"));
    m_view->setResizeMode(QQuickView::SizeViewToRootObject);
    m_view->setInitialProperties({ { u"guide"_s, QVariant::fromValue(m_guide.get()) } });
    m_view->setSource(QUrl(u"qrc:/Gallery/GuideScreen.qml"_s));
    if (m_view->status() != QQuickView::Ready) {
        const QList<QQmlError> errors = m_view->errors();
        m_error = errors.isEmpty() ? u"the screen cannot be loaded"_s : errors.constFirst().toString();
        return false;
    }
    connect(m_guide.get(), &GuideController::leaveRequested, this, [this] {
        if (!wantsPictures(m_options))
            Q_EMIT finished(ExitCode::Success);
    });
    return true;
}

void Application::loadGuide()
{
    connect(m_guide.get(), &GuideController::guideShown, this, &Application::showScreen, Qt::QueuedConnection);
    if (m_options.guideFile.isEmpty()) {
        m_guide->setGuide(ownGuide(m_clock->now(), m_language));
        return;
    }
    m_guide->load(m_options.guideFile, m_language);
    // A file that is no guide is refused without a window flashing up; a long one shows its progress soon.
    QTimer::singleShot(200, m_view.get(), &QWindow::show);
}

void Application::showScreen()
{
    disconnect(m_guide.get(), &GuideController::guideShown, this, nullptr);
    const bool unreadable = m_guide->report().outcome == GuideReport::Outcome::Unreadable;
    if (!m_options.guideFile.isEmpty() && unreadable) {
        fail(ExitCode::Usage, m_guide->report().error);
        return;
    }
    m_view->show();
    auto *run = new KeyRun(m_options.keys, m_view.get());
    connect(run, &KeyRun::finished, this, &Application::finishPicture);
    run->start();
}

void Application::fail(ExitCode code, const QString &message)
{
    printError(message);
    Q_EMIT finished(code);
}

bool Application::hasWantedRenderer() const
{
    const bool software = m_view->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
    return m_options.backend.isEmpty() || software == (m_options.backend == "software"_L1);
}

void Application::finishPicture()
{
    if (!hasWantedRenderer()) {
        fail(ExitCode::Failure, u"the renderer \"%1\" is not available here"_s.arg(m_options.backend));
        return;
    }
    if (!wantsPictures(m_options))
        return;
    const QString path = QDir(m_options.screenshotsFolder).filePath(u"guide.png"_s);
    if (!m_view->grabWindow().save(path)) {
        fail(ExitCode::Failure, u"cannot write \"%1\""_s.arg(path));
        return;
    }
    QTextStream(stdout) << path << Qt::endl;
    Q_EMIT finished(ExitCode::Success);
}

int runGallery(int &argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const CommandLine commandLine = parseCommandLine(arguments);
    if (commandLine.exitCode) {
        if (*commandLine.exitCode == ExitCode::Success)
            QTextStream(stdout) << commandLine.message << Qt::endl;
        else
            printError(commandLine.message);
        return int(*commandLine.exitCode);
    }

    prepareEnvironment(commandLine.options);
    const QtMessageHandler handler = qInstallMessageHandler(endWithoutDisplay);
    QGuiApplication app(argc, argv);
    qInstallMessageHandler(handler);
    QCoreApplication::setApplicationName(u"stbui-gallery"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(STBUI_VERSION));

    Application gallery(commandLine.options);
    QObject::connect(
            &gallery, &Application::finished, &app, [](ExitCode code) { QCoreApplication::exit(int(code)); },
            Qt::QueuedConnection);
    if (!gallery.start()) {
        printError(gallery.error());
        return int(ExitCode::Failure);
    }
    return QCoreApplication::exec();
}

} // namespace gallery
