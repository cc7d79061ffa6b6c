// SPDX-License-Identifier: MIT
#include "app/application.h"

#include "app/keyrun.h"
#include "app/languages.h"
#include "gallery/data/catalogueloader.h"
#include "screens/shellcontroller.h"

#include <QtCore/qdir.h>
#include <QtCore/qstandardpaths.h>
#include <QtCore/qtextstream.h>
#include <QtCore/qtimer.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qstylehints.h>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuick/qsgrendererinterface.h>

Q_IMPORT_QML_PLUGIN(GalleryPlugin)

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

// As the zlib level 1: a third of the time of Qt's own choice, and files that are a little larger.
constexpr int pictureQuality = 85;

bool wantsPictures(const Options &options)
{
    return !options.screenshotsFolder.isEmpty();
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

/*! The language that \a configuration asks for, else the system's, as far as the gallery speaks it. */
QString languageOf(const RunConfiguration &configuration)
{
    const QString configured = configuration.value(u"UI"_s, u"language"_s, {}).toString();
    return bestLanguage(configured.isEmpty() ? QLocale::system().uiLanguages() : QStringList(configured));
}

/*! Whether \a configuration says other things than before when it has for this run what \a picture varies. */
bool choose(RunConfiguration &configuration, const Picture &picture)
{
    bool changed = false;
    const auto take = [&](const QString &key, const QString &value) {
        changed = changed || configuration.value(u"UI"_s, key, {}) != value;
        configuration.setForRun(u"UI"_s, key, value);
    };
    if (!picture.theme.isEmpty())
        take(u"theme"_s, configuredTheme(picture.theme));
    if (!picture.resolution.isEmpty())
        take(u"resolution"_s, picture.resolution);
    if (!picture.language.isEmpty())
        take(u"language"_s, picture.language);
    return changed;
}

} // namespace

void printError(const QString &message)
{
    QTextStream(stderr) << "stbui-gallery: " << message << Qt::endl;
}

Application::Application(const Options &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_pictures(picturePlan(options))
    , m_startScreen(options.screen.isEmpty() ? screenNames().constFirst() : options.screen)
    , m_shell(std::make_unique<ShellController>(remindersFile()))
    , m_catalogueLoader(std::make_unique<CatalogueLoader>())
{
    if (m_options.now.isValid())
        m_shell->clock()->setFixed(m_options.now);
    connect(&m_themeWatcher, &ThemeWatcher::changed, this, &Application::rebuild);
}

Application::~Application() = default;

bool Application::start()
{
    setUpConfiguration();
    m_shell->settings()->setStore(&m_configuration);
    connect(m_shell->settings(), &SettingsController::changed, this, &Application::rebuild);
    setUpView();
    if (!useLanguage(languageOf(m_configuration)) || !buildScreens())
        return false;
    m_shell->start(m_startScreen);
    readFiles(Content::Other);
    return true;
}

void Application::setUpConfiguration()
{
    if (!m_options.resolution.isEmpty())
        m_configuration.setForRun(u"UI"_s, u"resolution"_s, m_options.resolution);
    if (!m_options.theme.isEmpty())
        m_configuration.setForRun(u"UI"_s, u"theme"_s, configuredTheme(m_options.theme));
    if (!m_options.language.isEmpty())
        m_configuration.setForRun(u"UI"_s, u"language"_s, m_options.language);
    if (m_pictures.isEmpty())
        return;
    choose(m_configuration, m_pictures.constFirst());
    // Keys that are pressed for a picture are no wishes of the user.
    m_configuration.setReadOnly(true);
    // A picture shows where a movement ends, not some moment of it.
    for (const QString &key : { u"focusingEnabled"_s, u"layoutScrollingEnabled"_s,
                                u"viewportScrollingEnabled"_s, u"fadeEffectEnabled"_s, u"slidingEnabled"_s })
        m_configuration.setForRun(u"Animations"_s, key, false);
    QGuiApplication::styleHints()->setCursorFlashTime(0);
}

void Application::setUpView()
{
    QList<QUrl> screens;
    for (const QString &name : screenNames())
        screens.append(QUrl(u"qrc:/Gallery/%1Screen.qml"_s.arg(name.first(1).toUpper() + name.sliced(1))));
    m_view = std::make_unique<ScreenWindow>(QUrl(u"qrc:/Gallery/Shell.qml"_s),
                                            moduleFolders() + QStringList { u"qrc:/"_s }, screens);
    m_view->setTitle(QCoreApplication::applicationName());
    const auto mirror = [this] {
        m_shell->setMirrored(QGuiApplication::layoutDirection() == Qt::RightToLeft);
    };
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, mirror);
    mirror();
    connect(m_shell.get(), &ShellController::leaveRequested, this, [this] {
        if (!wantsPictures(m_options))
            Q_EMIT finished(ExitCode::Success);
    });
    connect(m_shell->guide(), &GuideController::guideShown, this, &Application::finishLoading,
            Qt::QueuedConnection);
    // Also when there is nothing new to be shown.
    connect(m_shell->guide(), &GuideController::loadingChanged, this, &Application::finishLoading,
            Qt::QueuedConnection);
    connect(m_catalogueLoader.get(), &CatalogueLoader::loadingChanged, this, &Application::finishLoading,
            Qt::QueuedConnection);
}

bool Application::useLanguage(const QString &code)
{
    if (!installLanguage(code)) {
        m_error = u"the texts of the language \"%1\" cannot be loaded"_s.arg(code);
        return false;
    }
    m_language = code;
    return true;
}

bool Application::buildScreens()
{
    // Before the theme is read: what changes after that is told.
    if (m_options.watchTheme)
        m_themeWatcher.setFile(m_configuration.value(u"UI"_s, u"theme"_s, {}).toString());
    if (m_view->build({ { u"controller"_s, QVariant::fromValue(m_shell.get()) } }))
        return true;
    m_error = m_view->error();
    return false;
}

void Application::rebuild()
{
    if (m_rebuildAsked)
        return;
    m_rebuildAsked = true;
    QMetaObject::invokeMethod(
            this, [this] { rebuildNow(); }, Qt::QueuedConnection);
}

bool Application::rebuildNow()
{
    m_rebuildAsked = false;
    m_view->clear();
    const QString language = languageOf(m_configuration);
    const bool translated = language != m_language;
    if (translated && useLanguage(language))
        readFiles(Content::Translated);
    m_shell->settings()->refresh();
    if (language != m_language || !buildScreens()) {
        fail(ExitCode::Failure, m_error);
        return false;
    }
    Q_EMIT rebuilt();
    return true;
}

void Application::readFiles(Content content)
{
    m_reading = true;
    loadCatalogue(content);
    loadGuide();
}

void Application::loadGuide()
{
    GuideController *guide = m_shell->guide();
    if (m_options.guideFile.isEmpty() && m_options.playlistFile.isEmpty()) {
        guide->showOwnGuide(m_language);
        return;
    }
    guide->load({ m_options.guideFile, m_options.playlistFile, m_language, m_shell->clock()->now() });
    // A file that is no guide, or no playlist, is refused without a window flashing up; a long one shows its
    // progress soon.
    QTimer::singleShot(200, m_view.get(), &QWindow::show);
}

void Application::loadCatalogue(Content content)
{
    if (m_options.catalogueFile.isEmpty()) {
        m_shell->setCatalogue(ownCatalogue(m_language, m_shell->clock()->now().date()), content);
        return;
    }
    const auto take = [this, content] {
        // What cannot be read any more stays as it is.
        const bool readable = m_catalogueLoader->report().outcome != CatalogueReport::Outcome::Unreadable;
        if (readable || content == Content::Other)
            m_shell->setCatalogue(m_catalogueLoader->catalogue(), content);
    };
    disconnect(m_catalogueLoader.get(), &CatalogueLoader::finished, this, nullptr);
    connect(m_catalogueLoader.get(), &CatalogueLoader::finished, this, take);
    m_catalogueLoader->load(m_options.catalogueFile, m_language);
}

void Application::finishLoading()
{
    if (!m_reading || m_shell->guide()->isLoading() || m_catalogueLoader->isLoading())
        return;
    m_reading = false;
    if (!tellProblems())
        return;
    m_view->show();
    if (!m_pictures.isEmpty())
        showPicture();
    else if (!m_begun)
        pressKeys();
    m_begun = true;
}

// False when that ends the run. A file that was read once may have gone when the language changes.
bool Application::tellProblems()
{
    const PlaylistReport playlist = m_shell->guide()->playlistReport();
    const GuideReport guide = m_shell->guide()->report();
    const CatalogueReport catalogue = m_catalogueLoader->report();
    QStringList unreadable;
    if (playlist.outcome == PlaylistReport::Outcome::Unreadable)
        unreadable.append(playlist.error);
    else if (!m_options.guideFile.isEmpty() && guide.outcome == GuideReport::Outcome::Unreadable)
        unreadable.append(guide.error);
    if (catalogue.outcome == CatalogueReport::Outcome::Unreadable)
        unreadable.append(catalogue.error);
    if (!unreadable.isEmpty() && (!m_begun || wantsPictures(m_options))) {
        fail(ExitCode::Usage, unreadable.constFirst());
        return false;
    }
    if (!m_begun) {
        unreadable = playlist.messages(m_options.playlistFile) + guide.messages(m_options.guideFile)
                     + catalogue.messages(m_options.catalogueFile);
    }
    for (const QString &message : std::as_const(unreadable))
        printError(message);
    return true;
}

void Application::pressKeys()
{
    const QString screen = m_pictures.isEmpty() ? m_startScreen : m_pictures.constFirst().screen;
    // Whoever has gone on to another screen while files were read stays there; a picture starts anew.
    if (!m_pictures.isEmpty() || m_shell->screen() != screen)
        m_shell->start(screen);
    const auto isBusy = [this] { return m_rebuildAsked || m_reading || m_view->pendingPictures() > 0; };
    m_keyRun = std::make_unique<KeyRun>(m_options.keys, m_view.get(), isBusy);
    connect(m_keyRun.get(), &KeyRun::finished, this, &Application::finishKeys, Qt::QueuedConnection);
    m_keyRun->start();
}

void Application::finishKeys()
{
    if (!hasWantedRenderer()) {
        fail(ExitCode::Failure, u"the renderer \"%1\" is not available here"_s.arg(m_options.backend));
        return;
    }
    if (m_pictures.isEmpty() || !writePicture())
        return;
    m_pictures.removeFirst();
    if (m_pictures.isEmpty())
        Q_EMIT finished(ExitCode::Success);
    else
        showPicture();
}

void Application::showPicture()
{
    if (choose(m_configuration, m_pictures.constFirst()) && !rebuildNow())
        return;
    // When it is another language the files come first.
    if (!m_reading)
        pressKeys();
}

bool Application::writePicture()
{
    const QString path = m_pictures.constFirst().path;
    // The folder that was named is there since the arguments were read.
    const bool written = QFileInfo::exists(m_options.screenshotsFolder)
                         && QDir().mkpath(QFileInfo(path).path())
                         && m_view->grabWindow().save(path, "PNG", pictureQuality);
    if (written)
        QTextStream(stdout) << path << Qt::endl;
    else
        fail(ExitCode::Failure, u"cannot write \"%1\""_s.arg(path));
    return written;
}

bool Application::hasWantedRenderer() const
{
    const bool software = m_view->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
    return m_options.backend.isEmpty() || software == (m_options.backend == "software"_L1);
}

void Application::fail(ExitCode code, const QString &message)
{
    printError(message);
    Q_EMIT finished(code);
}

} // namespace gallery
