// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_DETAILCONTROLLER_H
#define GALLERY_SCREENS_DETAILCONTROLLER_H

#include "gallery/data/guide.h"
#include "screens/mediaitem.h"

#include <QtCore/qobject.h>
#include <QtCore/qtimer.h>
#include <QtQml/qqmlregistration.h>

namespace gallery {

class Clock;
class Marks;
class Reminders;

/*!
    What the detail page shows of one item, and what its buttons do. QML shows the properties and hands every key
    to press().
*/
class DetailController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY itemChanged)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY itemChanged)
    Q_PROPERTY(QString facts READ facts NOTIFY itemChanged)
    Q_PROPERTY(QString timeLeft READ timeLeft NOTIFY itemChanged)
    Q_PROPERTY(QString description READ description NOTIFY itemChanged)
    /*! An upright picture; empty when there is none. */
    Q_PROPERTY(QUrl picture READ picture NOTIFY itemChanged)
    Q_PROPERTY(QUrl still READ still NOTIFY itemChanged)
    Q_PROPERTY(double progress READ progress NOTIFY itemChanged)
    Q_PROPERTY(bool programme READ isProgramme NOTIFY itemChanged)
    /*! A series, or an episode of one. */
    Q_PROPERTY(bool ofSeries READ isOfSeries NOTIFY itemChanged)
    /*! Begun and not over: it is continued, not played from its start. */
    Q_PROPERTY(bool started READ isStarted NOTIFY itemChanged)
    /*! A programme that has not begun: the first button sets or deletes its reminder. */
    Q_PROPERTY(bool toCome READ isToCome NOTIFY itemChanged)
    /*! Whether the programme has a reminder. */
    Q_PROPERTY(bool reminder READ hasReminder NOTIFY marksChanged)

    Q_PROPERTY(bool favourite READ isFavourite NOTIFY marksChanged)
    Q_PROPERTY(bool liked READ isLiked NOTIFY marksChanged)
    /*! The button that keys act on. */
    Q_PROPERTY(Button button READ button NOTIFY buttonChanged)
    /*! The button whose action is under way, or NoButton. */
    Q_PROPERTY(Button opening READ opening NOTIFY openingChanged)
    /*! What came of the last action; empty when there is nothing to tell. */
    Q_PROPERTY(QString message READ message NOTIFY openingChanged)
    /*! Whether the screen is laid out from right to left: the next button is on the left then. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The shell has it.")
public:
    /*!
        In reading order. In the place of TrailerButton a programme has GuideButton, a series and its episodes have
        EpisodesButton.
    */
    enum Button {
        NoButton,
        PlayButton,
        FavouriteButton,
        TrailerButton,
        GuideButton,
        EpisodesButton,
        RateButton
    };
    Q_ENUM(Button)

    /*! How long an opening takes, in milliseconds. */
    static constexpr int openingTime = 1500;

    /*! The marks outlive this object. */
    DetailController(Marks *favourites, Marks *likes, QObject *parent = nullptr);

    /*!
        Programmes that start after the time of \a clock can be reminded of; the reminders are kept in \a reminders. Both
        outlive this object. Without them (the default) no programme is to come.
    */
    void setReminders(const Clock *clock, Reminders *reminders);
    /*! The guide that programmes come from. A programme that it does not have cannot be reminded of. */
    void setGuide(const Guide &guide);
    /*! Shows \a item, with the keys on the first button. */
    void show(const MediaItem &item);
    /*! Shows what has become of the item; everything else stays. */
    void update(const MediaItem &item);

    const MediaItem &item() const { return m_item; }
    QString title() const { return m_item.title; }
    QString subtitle() const { return m_item.isProgramme() ? m_item.subtitle : QString(); }
    QString facts() const { return gallery::facts(m_item); }
    QString timeLeft() const { return gallery::timeLeft(m_item); }
    QString description() const { return m_item.description; }
    QUrl picture() const { return m_item.picture; }
    QUrl still() const { return m_item.still; }
    double progress() const { return m_item.progress(); }
    bool isProgramme() const { return m_item.isProgramme(); }
    bool isOfSeries() const { return m_item.series >= 0; }
    bool isStarted() const { return progress() > 0 && progress() < 1; }
    bool isToCome() const;
    bool hasReminder() const;

    bool isFavourite() const;
    bool isLiked() const;
    Button button() const { return m_button; }
    Button opening() const { return m_opening; }
    QString message() const;
    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    /*! Tells why the channel that was to be watched is not: it is locked. Until the next key. */
    void refuse();

    /*! The buttons that there are for the item, in reading order. */
    QList<Button> buttons() const;

    /*!
        Handles a remote key; false when it means nothing here. Left, Right, Home and End choose a button, Return
        presses it: a programme is watched at once, or gets a reminder when it is to come, and anything else takes a
        while to open. The yellow key makes it a
        favourite or none. Back stops what is being
        opened, else asks to go back.
    */
    Q_INVOKABLE bool press(int key);

public Q_SLOTS:
    /*! Ends the opening that is under way, as the time does. */
    void finishOpening();

Q_SIGNALS:
    void itemChanged();
    void marksChanged();
    void buttonChanged();
    void openingChanged();
    void mirroredChanged();
    void guideRequested();
    void episodesRequested();
    /*! The channel of the programme is to be watched. */
    void watchRequested();
    void backRequested();

private:
    void activate();
    void play();
    void choose(int index);
    void setOpening(Button button, bool opened);
    void setRefused(bool refused);
    void toggleReminder();
    void followClock();
    int channelRow() const { return m_guide.channelIndex(m_item.channelId); }
    int programmeRow() const;

    Marks *m_favourites;
    Marks *m_likes;
    const Clock *m_clock = nullptr;
    Reminders *m_reminders = nullptr;
    Guide m_guide;
    MediaItem m_item;
    QTimer m_timer;
    Button m_button = PlayButton;
    Button m_opening = NoButton;
    bool m_opened = false;
    bool m_refused = false;
    bool m_mirrored = false;
    bool m_wasToCome = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_DETAILCONTROLLER_H
