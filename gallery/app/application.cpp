// SPDX-License-Identifier: MIT
#include "app/application.h"

#include "app/keyrun.h"
#include "app/languages.h"
#include "gallery/data/catalogueloader.h"
#include "screens/pictureprovider.h"
#include "screens/shellcontroller.h"

#include <QtCore/qdir.h>
#include <QtCore/qstandardpaths.h>
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

QString remindersFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return folder.isEmpty() ? QString() : folder + "/stbui/reminders.json"_L1;
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
    , m_shell(std::make_unique<ShellController>(remindersFile()))
    , m_catalogueLoader(std::make_unique<CatalogueLoader>())
{
    if (m_options.now.isValid())
        m_shell->clock()->setFixed(m_options.now);
    m_screens = screenNames();
    if (!m_options.screen.isEmpty())
        m_screens = QStringList { m_options.screen };
    else if (!wantsPictures(m_options))
        m_screens = QStringList { m_screens.constFirst() };
}

Application::~Application() = default;

bool Application::start()
{
    setUpConfiguration();
    if (!setUpLanguage() || !setUpView())
        return false;
    m_shell->start(m_screens.constFirst());
    m_loading = 2;
    loadCatalogue();
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
        m_shell->setMirrored(QGuiApplication::layoutDirection() == Qt::RightToLeft);
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
    m_view->engine()->addImageProvider(PictureProvider::name(), new PictureProvider);
    m_view->setTitle(QCoreApplication::applicationName());
    m_view->setResizeMode(QQuickView::SizeViewToRootObject);
    m_view->setInitialProperties({ { u"controller"_s, QVariant::fromValue(m_shell.get()) } });
    m_view->setSource(QUrl(u"qrc:/Gallery/Shell.qml"_s));
    if (m_view->status() != QQuickView::Ready) {
        const QList<QQmlError> errors = m_view->errors();
        m_error = errors.isEmpty() ? u"the screens cannot be loaded"_s : errors.constFirst().toString();
        return false;
    }
    connect(m_shell.get(), &ShellController::leaveRequested, this, [this] {
        if (!wantsPictures(m_options))
            Q_EMIT finished(ExitCode::Success);
    });
    return true;
}

void Application::loadGuide()
{
    GuideController *guide = m_shell->guide();
    connect(guide, &GuideController::guideShown, this, &Application::finishLoading,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    if (m_options.guideFile.isEmpty() && m_options.playlistFile.isEmpty()) {
        guide->showOwnGuide(m_language);
        return;
    }
    guide->load({ m_options.guideFile, m_options.playlistFile, m_language, m_shell->clock()->now() });
    // A file that is no guide, or no playlist, is refused without a window flashing up; a long one shows its
    // progress soon.
    QTimer::singleShot(200, m_view.get(), &QWindow::show);
}

void Application::loadCatalogue()
{
    if (m_options.catalogueFile.isEmpty()) {
        m_shell->setCatalogue(ownCatalogue(m_language, m_shell->clock()->now().date()));
        --m_loading;
        return;
    }
    connect(m_catalogueLoader.get(), &CatalogueLoader::finished, this, [this] {
        m_shell->setCatalogue(m_catalogueLoader->catalogue());
        finishLoading();
    });
    m_catalogueLoader->load(m_options.catalogueFile, m_language);
}

void Application::finishLoading()
{
    if (--m_loading > 0 || !tellProblems())
        return;
    m_view->show();
    showScreen(m_screens.constFirst());
}

bool Application::tellProblems()
{
    const PlaylistReport playlist = m_shell->guide()->playlistReport();
    if (playlist.outcome == PlaylistReport::Outcome::Unreadable) {
        fail(ExitCode::Usage, playlist.error);
        return false;
    }
    const GuideReport guide = m_shell->guide()->report();
    if (!m_options.guideFile.isEmpty() && guide.outcome == GuideReport::Outcome::Unreadable) {
        fail(ExitCode::Usage, guide.error);
        return false;
    }
    const CatalogueReport catalogue = m_catalogueLoader->report();
    if (catalogue.outcome == CatalogueReport::Outcome::Unreadable) {
        fail(ExitCode::Usage, catalogue.error);
        return false;
    }
    const QStringList messages = playlist.messages(m_options.playlistFile)
                                 + guide.messages(m_options.guideFile)
                                 + catalogue.messages(m_options.catalogueFile);
    for (const QString &message : messages)
        printError(message);
    return true;
}

void Application::showScreen(const QString &name)
{
    // Whoever has gone on to another screen while files were read stays there; a picture starts anew.
    if (wantsPictures(m_options) || m_shell->screen() != name)
        m_shell->start(name);
    m_keyRun = std::make_unique<KeyRun>(m_options.keys, m_view.get());
    connect(m_keyRun.get(), &KeyRun::finished, this, &Application::finishScreen, Qt::QueuedConnection);
    m_keyRun->start();
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

void Application::finishScreen()
{
    if (!hasWantedRenderer()) {
        fail(ExitCode::Failure, u"the renderer \"%1\" is not available here"_s.arg(m_options.backend));
        return;
    }
    if (!wantsPictures(m_options) || !writePicture())
        return;
    m_screens.removeFirst();
    if (m_screens.isEmpty())
        Q_EMIT finished(ExitCode::Success);
    else
        showScreen(m_screens.constFirst());
}

bool Application::writePicture()
{
    const QString path = QDir(m_options.screenshotsFolder).filePath(m_screens.constFirst() + u".png"_s);
    if (!m_view->grabWindow().save(path)) {
        fail(ExitCode::Failure, u"cannot write \"%1\""_s.arg(path));
        return false;
    }
    QTextStream(stdout) << path << Qt::endl;
    return true;
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
