// SPDX-License-Identifier: MIT
#include "screens/shellcontroller.h"

#include "screens/remotekey.h"

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

constexpr QLatin1StringView homeScreen = "home"_L1;
constexpr QLatin1StringView detailScreen = "detail"_L1;
constexpr QLatin1StringView seriesScreen = "series"_L1;
constexpr QLatin1StringView guideScreen = "guide"_L1;
constexpr QLatin1StringView channelsScreen = "channels"_L1;
constexpr QLatin1StringView playerScreen = "player"_L1;
constexpr QLatin1StringView searchScreen = "search"_L1;
constexpr QLatin1StringView settingsScreen = "settings"_L1;
constexpr QLatin1StringView componentsScreen = "components"_L1;
constexpr QLatin1StringView aboutScreen = "about"_L1;

} // namespace

ShellController::ShellController(const QString &remindersFile, QObject *parent)
    : QObject(parent)
    , m_reminders(remindersFile)
    , m_menu(screenNames())
    , m_home(&m_clock, &m_favourites, &m_menu)
    , m_detail(&m_favourites, &m_likes)
    , m_guide(&m_clock)
    , m_channels(&m_clock)
    , m_player(&m_clock, &m_favourites)
    , m_series(&m_clock)
    , m_search(&m_clock, &m_favourites)
    , m_about(&m_settings)
    , m_open({ homeScreen })
{
    m_guide.setReminders(&m_reminders);
    m_detail.setReminders(&m_clock, &m_reminders);
    m_menu.setOpenScreens(m_open);
    connectScreens();
}

void ShellController::connectScreens()
{
    connect(&m_menu, &MainMenuController::activated, this, &ShellController::openEntry);
    const auto openGuide = [this] { open(guideScreen); };
    connect(&m_home, &HomeController::itemOpened, this, &ShellController::openItem);
    connect(&m_home, &HomeController::leaveRequested, this, &ShellController::leaveRequested);
    connect(&m_home, &HomeController::itemsChanged, this, &ShellController::updateDetails);
    connect(&m_detail, &DetailController::guideRequested, this, openGuide);
    connect(&m_detail, &DetailController::episodesRequested, this, &ShellController::openEpisodes);
    connect(&m_detail, &DetailController::watchRequested, this, &ShellController::watchItem);
    connect(&m_detail, &DetailController::backRequested, this, &ShellController::goBack);
    connect(&m_guide, &GuideController::guideShown, this, [this] {
        m_detail.setGuide(m_guide.shownGuide());
        m_home.setGuide(m_guide.shownGuide());
        m_channels.setGuide(m_guide.shownGuide(), m_guide.content());
        m_player.setGuide(m_guide.shownGuide());
        m_search.setGuide(m_guide.shownGuide());
    });
    connect(&m_guide, &GuideController::leaveRequested, this, &ShellController::goBack);
    connect(&m_guide, &GuideController::playRequested, this, &ShellController::openPlayer);
    connect(&m_channels, &ChannelsController::playRequested, this,
            [this](int channelRow) { openPlayer(channelRow); });
    connect(&m_channels, &ChannelsController::detailsRequested, this,
            [this] { openDetails(m_channels.programme()); });
    connect(&m_channels, &ChannelsController::leaveRequested, this, &ShellController::goBack);
    connect(&m_player, &PlayerController::channelChanged, this,
            [this] { m_channels.setPlaying(m_player.channelRow()); });
    connect(&m_player, &PlayerController::guideRequested, this, [this] {
        m_guide.show(m_player.channelRow());
        open(guideScreen);
    });
    connect(&m_player, &PlayerController::leaveRequested, this, &ShellController::goBack);
    connect(&m_series, &SeriesController::backRequested, this, &ShellController::goBack);
    connect(&m_search, &SearchController::itemOpened, this, [this] { openDetails(*m_search.item()); });
    connect(&m_search, &SearchController::watchRequested, this, [this] {
        if (!watch(*m_search.item()))
            m_search.refuse();
    });
    connect(&m_search, &SearchController::leaveRequested, this, &ShellController::goBack);
    connect(&m_settings, &SettingsController::leaveRequested, this, &ShellController::goBack);
    connect(&m_components, &ComponentsController::leaveRequested, this, &ShellController::goBack);
    connect(&m_about, &AboutController::leaveRequested, this, &ShellController::goBack);
}

QStringList ShellController::screenNames()
{
    return { homeScreen,   detailScreen, seriesScreen,   guideScreen,      channelsScreen,
             playerScreen, searchScreen, settingsScreen, componentsScreen, aboutScreen };
}

void ShellController::setMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    m_menu.setMirrored(mirrored);
    m_home.setMirrored(mirrored);
    m_detail.setMirrored(mirrored);
    m_guide.setMirrored(mirrored);
    m_channels.setMirrored(mirrored);
    m_player.setMirrored(mirrored);
    m_series.setMirrored(mirrored);
    m_search.setMirrored(mirrored);
    m_settings.setMirrored(mirrored);
    m_components.setMirrored(mirrored);
    Q_EMIT mirroredChanged();
}

void ShellController::start(const QString &screen)
{
    m_home.start();
    m_guide.start();
    m_channels.start();
    m_search.start();
    m_settings.start();
    m_components.start();
    m_about.start();
    setOpenScreens({ homeScreen });
    if (screen == detailScreen) {
        m_home.chooseFirstVideo();
        openItem();
    } else if (screen == seriesScreen) {
        if (m_series.showFirst())
            open(seriesScreen);
    } else if (screen == playerScreen) {
        openPlayer(m_guide.channelRow());
    } else if (screen != homeScreen && screenNames().contains(screen)) {
        open(screen);
    }
}

void ShellController::setCatalogue(const Catalogue &catalogue, Content content)
{
    m_home.setCatalogue(catalogue, content);
    m_series.setCatalogue(catalogue, content);
    m_search.setCatalogue(catalogue);
}

void ShellController::openItem()
{
    if (m_home.item() != nullptr)
        openDetails(*m_home.item());
}

void ShellController::openDetails(const MediaItem &item)
{
    m_detail.show(item);
    m_detailGoesOn = !item.isProgramme();
    updateDetails();
    open(detailScreen);
}

// The page of what is on goes on with its channel; that of another programme does so once it is on.
void ShellController::updateDetails()
{
    const MediaItem *item = m_home.find(m_detail.item().id);
    if (item == nullptr)
        return;
    m_detailGoesOn = m_detailGoesOn || item->start == m_detail.item().start;
    if (m_detailGoesOn)
        m_detail.update(*item);
}

bool ShellController::press(int key)
{
    const int meant = remoteKey(key);
    if (isMenuKey(key))
        m_menu.open();
    else if (meant == Qt::Key_HomePage)
        openEntry(homeScreen);
    else if (meant == Qt::Key_Guide)
        openEntry(guideScreen);
    else if (meant == Qt::Key_Blue || meant == Qt::Key_Search)
        openEntry(searchScreen);
    else
        return false;
    return true;
}

void ShellController::open(const QString &screen)
{
    // A screen is open once: from the guide on the detail page Back leads to the page again.
    QStringList screens = m_open;
    screens.removeAll(screen);
    screens.append(screen);
    setOpenScreens(screens);
}

void ShellController::openEntry(const QString &screen)
{
    if (screen == homeScreen) {
        m_home.leaveMenu();
        setOpenScreens({ homeScreen });
    } else if (screen == m_open.constLast()) {
        m_menu.close();
    } else {
        // Where Back leads to the search it is as it was left.
        if (screen == searchScreen && !m_open.contains(screen))
            m_search.start();
        open(screen);
    }
}

void ShellController::setOpenScreens(const QStringList &screens)
{
    m_open = screens;
    m_menu.close();
    m_menu.setOpenScreens(m_open);
    Q_EMIT screenChanged();
}

void ShellController::goBack()
{
    if (m_open.size() > 1)
        setOpenScreens(m_open.first(m_open.size() - 1));
}

void ShellController::openPlayer(int channelRow, const QDateTime &from)
{
    if (m_player.play(channelRow, from))
        open(playerScreen);
}

void ShellController::openEpisodes()
{
    if (m_series.show(m_detail.item().series, m_detail.item().entry))
        open(seriesScreen);
}

void ShellController::watchItem()
{
    if (!watch(m_detail.item()))
        m_detail.refuse();
}

bool ShellController::watch(const MediaItem &item)
{
    const int channel = m_guide.shownGuide().channelIndex(item.channelId);
    if (channel >= 0 && m_guide.shownGuide().channel(channel).locked)
        return false;
    const bool isOver = item.start.addSecs(qint64(item.duration)) <= m_clock.now();
    openPlayer(channel, isOver ? item.start : QDateTime());
    return true;
}

} // namespace gallery
