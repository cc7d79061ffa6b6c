// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_SERIESCONTROLLER_H
#define GALLERY_SCREENS_SERIESCONTROLLER_H

#include "gallery/data/catalogue.h"
#include "screens/content.h"
#include "screens/episodemodel.h"

#include <QtCore/qobject.h>
#include <QtCore/qstringlist.h>
#include <QtCore/qtimer.h>
#include <QtQml/qqmlregistration.h>

namespace gallery {

class Clock;

/*!
    The episodes of a series, one season at a time. QML shows the properties and hands every key to press(). Where a
    series has several seasons, a row of buttons above the episodes chooses one.
*/
class SeriesController : public QObject
{
    Q_OBJECT
    /*! The title of the series. */
    Q_PROPERTY(QString title READ title NOTIFY seriesChanged)
    /*! The names of its seasons; empty when there is only one to choose. */
    Q_PROPERTY(QStringList seasons READ seasons NOTIFY seriesChanged)
    Q_PROPERTY(int seasonRow READ seasonRow NOTIFY selectionChanged)
    /*! Whether keys act on the seasons. */
    Q_PROPERTY(bool inSeasons READ isInSeasons NOTIFY selectionChanged)
    Q_PROPERTY(QAbstractItemModel *episodes READ episodes CONSTANT)
    /*! The chosen episode, a row of \c episodes; -1 without any. */
    Q_PROPERTY(int episodeRow READ episodeRow NOTIFY selectionChanged)
    /*! What is known of the chosen episode: "Season 1, episode 2 · 51 min · 12+". */
    Q_PROPERTY(QString facts READ facts NOTIFY selectionChanged)
    Q_PROPERTY(QUrl still READ still NOTIFY selectionChanged)
    /*! What comes of the last press of Return; empty when there is nothing to tell. */
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    /*! How many rows a page key moves by, at least 1; the view knows how many it shows. */
    Q_PROPERTY(int rowsPerPage READ rowsPerPage WRITE setRowsPerPage NOTIFY rowsPerPageChanged)
    /*! Whether the screen is laid out from right to left: the next season is on the left then. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The shell has it.")
public:
    /*! How long an episode takes to open, in milliseconds. */
    static constexpr int openingTime = 1500;

    /*! \a clock tells which episodes are still to come, and outlives this object. */
    explicit SeriesController(Clock *clock, QObject *parent = nullptr);

    /*!
        Takes \a catalogue in place of the one before. A series that it has too, by its title, stays, and so do the
        season and the episode that are chosen; without it there are no episodes. In a translated catalogue everything has
        its place, and what comes of the last press of Return stays too.
    */
    void setCatalogue(const Catalogue &catalogue, Content content = Content::Other);
    /*!
        Shows the series with the index \a series in the catalogue, with the keys on the episode \a entry; without
        one, or when it is none of the series, on the first that is not viewed yet. False when there is no such
        series.
    */
    bool show(int series, int entry = -1);
    /*! Shows the first series of the catalogue. */
    bool showFirst();

    QString title() const { return m_title; }
    QStringList seasons() const;
    int seasonRow() const { return m_seasonRow; }
    bool isInSeasons() const { return m_inSeasons; }
    QAbstractItemModel *episodes() { return &m_episodes; }
    int episodeRow() const { return m_episodeRow; }
    /*! The chosen episode; null without any. */
    const MediaItem *episode() const;
    QString facts() const;
    QUrl still() const;
    QString message() const;
    bool isOpening() const { return m_timer.isActive(); }

    int rowsPerPage() const { return m_rowsPerPage; }
    void setRowsPerPage(int rows);
    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    /*!
        Handles a remote key; false when it means nothing here.

        Up, Down, Page Up, Page Down, Home and End choose an episode, Return plays it. From the first episode Up
        leads to the seasons if there are several; there Left, Right, Home and End choose one, Down and Return lead
        to its episodes. Back stops an episode that is being opened, else asks to go back.
    */
    Q_INVOKABLE bool press(int key);

public Q_SLOTS:
    /*! Ends the opening that is under way, as the time does. */
    void finishOpening();

Q_SIGNALS:
    void seriesChanged();
    void selectionChanged();
    void messageChanged();
    void rowsPerPageChanged();
    void mirroredChanged();
    void backRequested();

private:
    /*! What Return has led to. */
    enum class Outcome { None, Opening, Opened, ToCome };

    bool pressInSeasons(int key);
    bool pressInEpisodes(int key);
    int indexOfSeries(Content content) const;
    void read(int series);
    MediaItem firstToWatch() const;
    void choose(const MediaItem &wanted);
    void chooseSeason(int row);
    void showSeason(int row);
    void chooseEpisode(int row);
    void setInSeasons(bool inSeasons);
    void activate();
    void setOutcome(Outcome outcome);
    void tick();

    Clock *m_clock;
    Catalogue m_catalogue;
    QTimer m_timer;
    QString m_title;
    int m_series = -1; // in the catalogue
    QList<MediaItem> m_all; // the episodes of all seasons, in their order
    QList<int> m_seasons; // their numbers
    EpisodeModel m_episodes;
    Outcome m_outcome = Outcome::None;
    int m_seasonRow = -1;
    int m_episodeRow = -1;
    int m_rowsPerPage = 1;
    bool m_inSeasons = false;
    bool m_mirrored = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_SERIESCONTROLLER_H
