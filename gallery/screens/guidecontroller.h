// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_GUIDECONTROLLER_H
#define GALLERY_SCREENS_GUIDECONTROLLER_H

#include "gallery/data/guide.h"
#include "gallery/data/guideloader.h"
#include "gallery/data/reminders.h"
#include "screens/channelnowmodel.h"
#include "screens/content.h"
#include "screens/daymodel.h"
#include "screens/guideprogrammemodel.h"

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtQml/qqmlregistration.h>

namespace gallery {

class Clock;

/*!
    What the guide screen shows and how remote keys change it: one channel of the guide and one day are chosen, and of
    the channel's programmes of the day one is chosen too. Keys act on the programmes or on the row of days. QML shows
    the properties and hands every key to press().
*/
class GuideController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *channels READ channels CONSTANT)
    Q_PROPERTY(QAbstractItemModel *programmes READ programmes CONSTANT)
    Q_PROPERTY(QAbstractItemModel *days READ days CONSTANT)
    /*! Row of the chosen channel in \c channels; -1 without channels. */
    Q_PROPERTY(int channelRow READ channelRow NOTIFY selectionChanged)
    /*! Row of the chosen programme in \c programmes; -1 when the channel has none on this day. */
    Q_PROPERTY(int programmeRow READ programmeRow NOTIFY selectionChanged)
    /*! Row of the chosen day in \c days; -1 before anything is shown. */
    Q_PROPERTY(int dayRow READ dayRow NOTIFY selectionChanged)
    /*! Whether keys act on the row of days; never without channels. */
    Q_PROPERTY(bool inDays READ isInDays NOTIFY inDaysChanged)
    Q_PROPERTY(QString channelName READ channelName NOTIFY selectionChanged)
    Q_PROPERTY(QString channelNumber READ channelNumber NOTIFY selectionChanged)
    /*! The channels beside the chosen one, as Left and Right reach them; empty at the ends. */
    Q_PROPERTY(QString leftChannelName READ leftChannelName NOTIFY selectionChanged)
    Q_PROPERTY(QString rightChannelName READ rightChannelName NOTIFY selectionChanged)

    /*! The chosen programme; empty without one. */
    Q_PROPERTY(QString title READ title NOTIFY selectionChanged)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY selectionChanged)
    Q_PROPERTY(QString description READ description NOTIFY selectionChanged)
    Q_PROPERTY(QString category READ category NOTIFY selectionChanged)
    /*! "20:00 – 21:30". */
    Q_PROPERTY(QString timeRange READ timeRange NOTIFY selectionChanged)
    Q_PROPERTY(bool live READ isLive NOTIFY nowChanged)
    /*! Whether the chosen programme is to come: OK sets or deletes a reminder then. */
    Q_PROPERTY(bool future READ isFuture NOTIFY nowChanged)
    /*! What Play, and OK in the details, do with the chosen programme; a locked channel refuses it. */
    Q_PROPERTY(PlayAction playAction READ playAction NOTIFY nowChanged)
    /*! How much of the chosen programme is over, 0 to 1. */
    Q_PROPERTY(double progress READ progress NOTIFY nowChanged)

    /*!
        The chosen day and the clock's time as the language writes them; the short day is for narrow screens.
    */
    Q_PROPERTY(QString dayText READ dayText NOTIFY nowChanged)
    Q_PROPERTY(QString shortDayText READ shortDayText NOTIFY nowChanged)
    Q_PROPERTY(QString clockText READ clockText NOTIFY nowChanged)

    Q_PROPERTY(bool detailsOpen READ isDetailsOpen NOTIFY detailsOpenChanged)
    /*!
        How many pages the description of the chosen programme takes in the details, at least 1; the view knows. And
        which one of them is shown, from 0.
    */
    Q_PROPERTY(int detailsPages READ detailsPages WRITE setDetailsPages NOTIFY detailsPageChanged)
    Q_PROPERTY(int detailsPage READ detailsPage NOTIFY detailsPageChanged)
    /*! What Back does. */
    Q_PROPERTY(BackAction backAction READ backAction NOTIFY backActionChanged)
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)
    /*! How much of the guide's file is read, 0 to 1. */
    Q_PROPERTY(double loadProgress READ loadProgress NOTIFY loadProgressChanged)
    /*! What was wrong with the file of the guide or of the reminders; empty when nothing was. */
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)

    /*! What is told until the next key: that the channel is not played because it is locked; else empty. */
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)

    /*! How many rows a page key moves by, at least 1; the view knows how many it shows. */
    Q_PROPERTY(int rowsPerPage READ rowsPerPage WRITE setRowsPerPage NOTIFY rowsPerPageChanged)
    /*! Whether the screen is laid out from right to left: the next channel is on the left then. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY selectionChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The application makes it.")
public:
    enum PlayAction {
        NothingToPlay, /*!< it is to come, or was on more than a week ago */
        PlayLive,
        PlayFromStart /*!< it is over */
    };
    Q_ENUM(PlayAction)
    enum BackAction {
        CloseDetails,
        ShowNow, /*!< returns to what is on now */
        Leave
    };
    Q_ENUM(BackAction)

    /*! \a clock tells the present and must outlive this object. */
    explicit GuideController(Clock *clock, QObject *parent = nullptr);

    /*!
        Reads \a files and shows the guide that they make; see GuideLoader. Without a guide file they are read again when
        a new day begins, since the own guide lies around the present one. The same files in another language are a
        translation, of which the chosen programme is found by its start alone; when they cannot be read any more, the
        guide that is shown stays.
    */
    void load(const GuideFiles &files);
    /*!
        Shows the own guide in \a language, and on each new day the one that lies around it. In another language than
        before it is a translation.
    */
    void showOwnGuide(const QString &language);
    /*!
        Shows \a guide: the first time as start() does. Later the chosen channel stays chosen, found by its id (without
        it the channel that has its place now), and so do the day and the programme, found by start and title, else by
        its title within the hour before or after, else by its time.
    */
    void setGuide(const Guide &guide);
    /*! What the guide that is shown is to the one before it. */
    Content content() const { return m_content; }
    Guide shownGuide() const { return m_channels.guide(); }
    /*! Where reminders are kept; null (the default): none can be set. Not owned. */
    void setReminders(Reminders *reminders);
    /*! As at the start: the first channel that is not locked and has something on now, and the programme that is on. */
    void start();
    /*! Shows what is on now on the channel in \a channelRow; one that does not exist changes nothing. */
    void show(int channelRow);
    /*! What the last reading gave. */
    GuideReport report() const { return m_loader.report(); }
    PlaylistReport playlistReport() const { return m_loader.playlistReport(); }

    QAbstractItemModel *channels() { return &m_channels; }
    QAbstractItemModel *programmes() { return &m_programmes; }
    QAbstractItemModel *days() { return &m_days; }
    int channelRow() const { return m_channelRow; }
    int programmeRow() const { return m_programmeRow; }
    int dayRow() const { return m_days.rowOf(m_programmes.date()); }
    QDate date() const { return m_programmes.date(); }
    bool isInDays() const { return m_inDays; }

    QString channelName() const { return channelNameAt(m_channelRow); }
    QString channelNumber() const;
    QString leftChannelName() const { return channelNameBeside(Qt::Key_Left); }
    QString rightChannelName() const { return channelNameBeside(Qt::Key_Right); }

    QString title() const { return chosen(ProgrammeModel::TitleRole).toString(); }
    QString subtitle() const { return chosen(ProgrammeModel::SubtitleRole).toString(); }
    QString description() const { return chosen(ProgrammeModel::DescriptionRole).toString(); }
    QString category() const { return chosen(ProgrammeModel::CategoryRole).toString(); }
    QString timeRange() const;
    bool isLive() const { return chosen(ProgrammeModel::IsLiveRole).toBool(); }
    bool isFuture() const { return chosen(ProgrammeModel::IsFutureRole).toBool(); }
    PlayAction playAction() const;
    double progress() const { return chosen(ProgrammeModel::ProgressRole).toDouble(); }

    QString dayText() const;
    QString shortDayText() const;
    QString clockText() const;

    bool isDetailsOpen() const { return m_detailsOpen; }
    int detailsPages() const { return m_detailsPages; }
    void setDetailsPages(int pages);
    int detailsPage() const { return m_detailsPage; }
    BackAction backAction() const { return m_backAction; }
    bool isLoading() const { return m_loader.isLoading(); }
    double loadProgress() const { return m_loader.progress(); }
    QString message() const;
    QString notice() const { return m_notice; }

    int rowsPerPage() const { return m_rowsPerPage; }
    void setRowsPerPage(int rows);
    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    /*!
        Handles a remote key; false when it means nothing here.

        Up, Down, Page Up, Page Down, Home and End choose another programme of the channel; Up from the first one
        leads to the row of days, where Left, Right, Home and End choose the day, and Down and Return lead into its
        programmes. On the programmes Left and Right choose the channel beside it. Anywhere the green key leads to
        the days and back, Channel Up and Channel Down choose the next and the previous channel, and the keys that
        skip forward and back the next and the previous day. A change of channel or day chooses what is on at the
        same time there, however many are passed.

        Return sets or deletes the reminder of a programme that is to come and shows the details of any other; there it
        plays the channel of one that is on, and one that is over from its start, and hides the details. Info shows and
        hides the details of any programme; in them Up and Down turn the pages of the description before they choose
        another programme. Play plays as Return in the details does. A channel that is locked is not played: a notice says so, and the
        details stay. Back hides the details, else returns to what is on now, else asks to
        leave.
    */
    Q_INVOKABLE bool press(int key);

Q_SIGNALS:
    void selectionChanged();
    void nowChanged();
    void inDaysChanged();
    void detailsOpenChanged();
    void detailsPageChanged();
    void backActionChanged();
    void loadingChanged();
    void loadProgressChanged();
    void messageChanged();
    void noticeChanged();
    void rowsPerPageChanged();
    /*! A guide is there to be shown, be it an empty one. */
    void guideShown();
    /*! Back was pressed where there is nothing to go back to. */
    void leaveRequested();
    /*! The viewer wants to watch the channel in \a channelRow, live or from an earlier time \a from on. */
    void playRequested(int channelRow, const QDateTime &from);

private:
    // A programme, so that it is found again in another guide.
    struct Kept
    {
        QString channelId;
        QString title;
        QDateTime start;
    };

    Content contentIn(const QString &language, bool same) const;
    void take(const Guide &guide, Content content);
    void renewOwnGuide();
    QVariant chosen(ProgrammeModel::Role role) const;
    QString channelNameAt(int row) const;
    QString channelNameBeside(int key) const;
    bool pressAnywhere(int key);
    bool pressInDays(int key);
    bool pressInProgrammes(int key);
    void chooseChannel(int row);
    void chooseDay(int row);
    void chooseDate(QDate date);
    void chooseProgramme(int row);
    void chooseNow();
    void chooseAtAnchor();
    void moveAnchor(const QDateTime &time);
    void select();
    void play();
    void goUp();
    void goBack();
    void setInDays(bool inDays);
    void setDetailsOpen(bool open);
    bool turnPage(int step);
    void setDetailsPage(int page);
    void setNotice(const QString &notice);
    BackAction nextBackAction() const;
    void updateBackAction();
    Kept kept() const;
    void restore(const Guide &guide, const Kept &kept);
    int rowOf(const Kept &kept) const;
    void takeLoaded();
    void chooseAgain(int row);
    void tellSelection();
    void tick();
    void moveToday(QDate today);

    Clock *m_clock;
    GuideLoader m_loader;
    Content m_loading = Content::Other;
    Content m_content = Content::Other;
    ChannelNowModel m_channels;
    GuideProgrammeModel m_programmes;
    DayModel m_days;
    QPointer<Reminders> m_reminders;
    GuideFiles m_files; // what the guide is made of; of no interest when another one was set
    bool m_showsOwnGuide = false;
    QDateTime m_anchor; // the time that a change of channel keeps
    QTime m_timeOfDay; // of the anchor; a day on which the clocks change does not change it
    QString m_notice;
    int m_channelRow = -1;
    int m_programmeRow = -1;
    int m_rowsPerPage = 1;
    int m_detailsPages = 1;
    int m_detailsPage = 0;
    BackAction m_backAction = Leave;
    bool m_mirrored = false;
    bool m_inDays = false;
    bool m_detailsOpen = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_GUIDECONTROLLER_H
