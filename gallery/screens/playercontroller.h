// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_PLAYERCONTROLLER_H
#define GALLERY_SCREENS_PLAYERCONTROLLER_H

#include "screens/playerprogrammes.h"

#include <QtCore/qobject.h>
#include <QtCore/qtimer.h>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace gallery {

class Clock;
class Marks;

/*!
    The player: the channel that is watched, at which moment of it, and what lies over the picture. QML shows the
    properties and hands every key to press(). Nothing can really be played here: a programme's picture stands for
    it, and the moment that is watched goes on with the clock.

    The overlay has two parts that keys can act on, the channel's programmes and the buttons. It hides by itself
    when no key is pressed for a while, but not while the playing pauses.
*/
class PlayerController : public QObject
{
    Q_OBJECT
    /*! Empty without a channel. */
    Q_PROPERTY(QString channelName READ channelName NOTIFY channelChanged)
    Q_PROPERTY(QString channelNumber READ channelNumber NOTIFY channelChanged)
    /*!
        Only of a channel that got locked while it was watched, or when all are: its programmes can be looked at, but
        there is no picture.
    */
    Q_PROPERTY(bool locked READ isLocked NOTIFY channelChanged)
    /*! Whether there is another channel to watch. */
    Q_PROPERTY(bool canZap READ canZap NOTIFY channelChanged)

    /*! The programme that is watched; empty when the channel has none at that moment. */
    Q_PROPERTY(QString title READ title NOTIFY playingChanged)
    Q_PROPERTY(QString facts READ facts NOTIFY playingChanged)
    /*! Empty as well while the channel is locked. */
    Q_PROPERTY(QUrl picture READ picture NOTIFY playingChanged)
    Q_PROPERTY(QString startText READ startText NOTIFY playingChanged)
    Q_PROPERTY(QString stopText READ stopText NOTIFY playingChanged)
    /*! How much of it was watched, 0 to 1. */
    Q_PROPERTY(double progress READ progress NOTIFY playingChanged)
    Q_PROPERTY(bool paused READ isPaused NOTIFY playingChanged)
    /*! Neither paused nor behind what the channel sends. */
    Q_PROPERTY(bool live READ isLive NOTIFY playingChanged)
    Q_PROPERTY(QString clockText READ clockText NOTIFY playingChanged)
    Q_PROPERTY(bool favourite READ isFavourite NOTIFY marksChanged)

    /*! What keys act on. */
    Q_PROPERTY(Area area READ area NOTIFY selectionChanged)
    Q_PROPERTY(QAbstractItemModel *programmes READ programmes CONSTANT)
    /*! The chosen programme, a row of \c programmes; -1 when the channel has none. */
    Q_PROPERTY(int programmeRow READ programmeRow NOTIFY selectionChanged)
    /*! The button that keys act on, or would if they acted on the buttons. */
    Q_PROPERTY(Button button READ button NOTIFY selectionChanged)
    /*! Whether the chosen programme has begun, no more than a week ago, and so can be watched from its start. */
    Q_PROPERTY(bool canStartOver READ canStartOver NOTIFY selectionChanged)

    /*! Whether the screen is laid out from right to left: the next programme is on the left then. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The shell has it.")
public:
    enum Area {
        Picture, /*!< nothing lies over the picture */
        Programmes,
        Buttons
    };
    Q_ENUM(Area)
    /*! In reading order. */
    enum Button { PauseButton, StartOverButton, LiveButton, FavouriteButton, GuideButton };
    Q_ENUM(Button)

    /*! After how many milliseconds without a key the overlay hides. */
    static constexpr int idleTime = 8000;

    /*! \a clock and \a favourites outlive this object. */
    PlayerController(Clock *clock, Marks *favourites, QObject *parent = nullptr);

    /*!
        Takes \a guide in place of the one before. The channel that is watched stays if the guide still has it, at
        the moment that is watched, and so does the chosen programme; what is gone is replaced by its neighbour, a
        channel by the next one that is not locked.
    */
    void setGuide(const Guide &guide);
    /*!
        Watches the channel \a channelRow live, or from the time \a from in the past week on, and shows the overlay. False, and nothing changes, when the guide has no
        such channel or it is locked.
    */
    bool play(int channelRow, const QDateTime &from = {});
    int channelRow() const { return m_channelRow; }
    QString channelName() const { return channel().name; }
    QString channelNumber() const { return channel().number; }
    bool isLocked() const { return channel().locked; }
    bool canZap() const;

    QString title() const { return watched(PlayerProgrammes::TitleRole).toString(); }
    QString facts() const;
    QUrl picture() const { return isLocked() ? QUrl() : watched(PlayerProgrammes::PictureRole).toUrl(); }
    QString startText() const;
    QString stopText() const;
    double progress() const;
    bool isPaused() const { return m_paused; }
    bool isLive() const { return !m_paused && m_behind == 0; }
    QString clockText() const;
    bool isFavourite() const;

    Area area() const { return m_area; }
    QAbstractItemModel *programmes() { return &m_programmes; }
    int programmeRow() const { return m_programmeRow; }
    Button button() const { return m_button; }
    /*! The buttons that there are, in reading order. */
    QList<Button> buttons() const;
    bool canStartOver() const;
    /*! Whether the overlay is shown and hides when no key is pressed. */
    bool hidesWhenIdle() const { return m_idle.isActive(); }

    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    /*!
        Handles a remote key; false when it means nothing here.

        The keys for channels, and Page Up and Page Down where a remote has none, watch the next or the previous
        channel that is not locked; after the last comes the first. Back hides the overlay, else asks to leave.

        While only the picture is seen, Return shows the buttons and any arrow the programmes; Up and Down go to
        another channel as well. On the programmes, Left, Right, Home and End choose one, Up and Down go to another
        channel and choose there what is on at the same time, however many channels are passed, and Return leads to
        the buttons. On the buttons, Left, Right, Home and End choose one, Return presses it, and Up leads back.

        Anywhere Play and Pause do what they say, the key for both does one after the other, the yellow key makes the
        channel a favourite or none, and Info shows the programmes and hides them.
    */
    Q_INVOKABLE bool press(int key);

public Q_SLOTS:
    /*! Only the picture is seen then. */
    void hideOverlay();

Q_SIGNALS:
    void channelChanged();
    void playingChanged();
    void marksChanged();
    void selectionChanged();
    void mirroredChanged();
    void guideRequested();
    /*! Back was pressed where there is nothing to go back to. */
    void leaveRequested();

private:
    Channel channel() const;
    QVariant watched(PlayerProgrammes::Role role) const;
    QString timeText(qint64 TimeSpan::*end) const;
    qint64 now() const;
    qint64 moment() const { return now() - m_behind; }
    int watchedRow() const { return m_programmes.rowAt(moment()); }

    bool pressShortcut(int key);
    bool pressOnPicture(int key);
    bool pressOnProgrammes(int key);
    bool pressOnButtons(int key);
    void activate(Button button);
    void zap(int step);
    int unlockedFrom(int channelRow, int step) const;
    void watch(int channelRow);
    void watchLive();
    void setPlaying(qint64 behind, bool paused);
    void show(Area area);
    void chooseProgramme(int row);
    void chooseButton(int index);
    void chooseAnew();
    void findChannelAgain();
    void finishSelection();
    void waitForIdle();
    void tick();

    Clock *m_clock;
    Marks *m_favourites;
    QTimer m_idle { this };
    Guide m_guide;
    PlayerProgrammes m_programmes;
    QString m_channelId; // kept while a guide does not have the channel
    qint64 m_now = 0; // seconds, as last told
    qint64 m_behind = 0; // seconds
    std::optional<qint64> m_anchor; // the time that a change of channel keeps; none: the present
    Area m_area = Picture;
    Button m_button = PauseButton;
    int m_channelRow = -1;
    int m_programmeRow = -1;
    bool m_paused = false;
    bool m_mirrored = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_PLAYERCONTROLLER_H
