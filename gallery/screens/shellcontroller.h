// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_SHELLCONTROLLER_H
#define GALLERY_SCREENS_SHELLCONTROLLER_H

#include "gallery/data/clock.h"
#include "gallery/data/reminders.h"
#include "screens/aboutcontroller.h"
#include "screens/channelscontroller.h"
#include "screens/componentscontroller.h"
#include "screens/detailcontroller.h"
#include "screens/guidecontroller.h"
#include "screens/homecontroller.h"
#include "screens/mainmenucontroller.h"
#include "screens/marks.h"
#include "screens/playercontroller.h"
#include "screens/searchcontroller.h"
#include "screens/seriescontroller.h"
#include "screens/settingscontroller.h"

#include <QtCore/qstringlist.h>

namespace gallery {

/*!
    All screens of the gallery, and the way through them: which one is shown, and those below it that Back leads
    to. The home screen is always the lowest.
*/
class ShellController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(gallery::MainMenuController *menu READ menu CONSTANT)
    Q_PROPERTY(gallery::HomeController *home READ home CONSTANT)
    Q_PROPERTY(gallery::DetailController *detail READ detail CONSTANT)
    Q_PROPERTY(gallery::GuideController *guide READ guide CONSTANT)
    Q_PROPERTY(gallery::ChannelsController *channels READ channels CONSTANT)
    Q_PROPERTY(gallery::PlayerController *player READ player CONSTANT)
    Q_PROPERTY(gallery::SeriesController *series READ series CONSTANT)
    Q_PROPERTY(gallery::SearchController *search READ search CONSTANT)
    Q_PROPERTY(gallery::SettingsController *settings READ settings CONSTANT)
    Q_PROPERTY(gallery::ComponentsController *components READ components CONSTANT)
    Q_PROPERTY(gallery::AboutController *about READ about CONSTANT)
    /*! The name of the screen that is shown. */
    Q_PROPERTY(QString screen READ screen NOTIFY screenChanged)
    /*! The names of the screens that are open, the one that is shown last. */
    Q_PROPERTY(QStringList openScreens READ openScreens NOTIFY screenChanged)
    /*! Whether the screens are laid out from right to left. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The application makes it.")
public:
    /*! \a remindersFile keeps the reminders; empty: they are kept for this run only. */
    explicit ShellController(const QString &remindersFile = {}, QObject *parent = nullptr);

    /*!
        The names of the screens: "home", "detail", "series", "guide", "channels", "player", "search",
        "settings", "components", "about".
    */
    static QStringList screenNames();

    Clock *clock() { return &m_clock; }
    MainMenuController *menu() { return &m_menu; }
    HomeController *home() { return &m_home; }
    DetailController *detail() { return &m_detail; }
    GuideController *guide() { return &m_guide; }
    ChannelsController *channels() { return &m_channels; }
    PlayerController *player() { return &m_player; }
    SeriesController *series() { return &m_series; }
    SearchController *search() { return &m_search; }
    SettingsController *settings() { return &m_settings; }
    ComponentsController *components() { return &m_components; }
    AboutController *about() { return &m_about; }

    QString screen() const { return m_open.constLast(); }
    QStringList openScreens() const { return m_open; }
    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    /*!
        Starts anew on \a screen, as if no key had been pressed. The detail page shows the first item of the
        catalogue, or of what is on TV, the episodes are those of the first series, and the player plays the channel
        that the guide starts with; without any of them, or when that is locked, the home screen is shown in its place.
    */
    void start(const QString &screen);
    /*! Shows the films and series of \a catalogue. */
    void setCatalogue(const Catalogue &catalogue, Content content = Content::Other);
    /*!
        Handles a remote key that the screen that is shown does not know; false when it means nothing here either. The
        menu keys lay the main menu over the screen, other keys lead to a screen at once.
    */
    Q_INVOKABLE bool press(int key);
    /*! Leaves the screen for the one below it; on the lowest one nothing happens. */
    void goBack();

public Q_SLOTS:
    /*!
        Plays the channel \a channelRow of the guide that is shown, live or from the time \a from on, if there is such a
        channel and it is not locked.
    */
    void openPlayer(int channelRow, const QDateTime &from = {});

Q_SIGNALS:
    void screenChanged();
    void mirroredChanged();
    /*! The user wants to leave the program. */
    void leaveRequested();

private:
    void connectScreens();
    void open(const QString &screen);
    void openEntry(const QString &screen);
    void setOpenScreens(const QStringList &screens);
    void openItem();
    void openDetails(const MediaItem &item);
    void updateDetails();
    void openEpisodes();
    void watchItem();
    /*! Plays the channel of \a item, a programme, from its start when it is over; false when the channel is locked. */
    bool watch(const MediaItem &item);

    Clock m_clock;
    Marks m_favourites;
    Marks m_likes;
    Reminders m_reminders;
    MainMenuController m_menu;
    HomeController m_home;
    DetailController m_detail;
    GuideController m_guide;
    ChannelsController m_channels;
    PlayerController m_player;
    SeriesController m_series;
    SearchController m_search;
    SettingsController m_settings;
    ComponentsController m_components;
    AboutController m_about;
    QStringList m_open;
    bool m_detailGoesOn = false;
    bool m_mirrored = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_SHELLCONTROLLER_H
