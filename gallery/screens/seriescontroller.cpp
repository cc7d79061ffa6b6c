// SPDX-License-Identifier: MIT
#include "screens/seriescontroller.h"

#include "gallery/data/clock.h"
#include "screens/remotekey.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qlocale.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

bool isSeries(const Catalogue &catalogue, int index)
{
    return index >= 0 && index < catalogue.count()
           && catalogue.entry(index).kind == CatalogueEntry::Kind::Series;
}

} // namespace

SeriesController::SeriesController(Clock *clock, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(openingTime);
    connect(&m_timer, &QTimer::timeout, this, &SeriesController::finishOpening);
    connect(m_clock, &Clock::nowChanged, this, &SeriesController::tick);
}

void SeriesController::setCatalogue(const Catalogue &catalogue, Content content)
{
    const MediaItem chosen = episode() == nullptr ? MediaItem() : *episode();
    const int chosenRow = m_episodeRow;
    const Outcome outcome = m_outcome;
    m_catalogue = catalogue;
    if (m_title.isEmpty())
        return;
    read(indexOfSeries(content));
    choose(chosen);
    if (content == Content::Other || chosenRow >= m_episodes.count())
        return;
    // Neither number nor title tells episodes from each other that have the same one.
    chooseEpisode(chosenRow);
    setOutcome(outcome);
}

// Of the series that is shown, in a catalogue that is new; the number of entries without it.
int SeriesController::indexOfSeries(Content content) const
{
    if (content == Content::Translated && isSeries(m_catalogue, m_series))
        return m_series;
    int series = 0;
    while (series < m_catalogue.count()
           && !(isSeries(m_catalogue, series) && m_catalogue.entry(series).title == m_title))
        ++series;
    return series;
}

bool SeriesController::show(int series, int entry)
{
    if (!isSeries(m_catalogue, series))
        return false;
    m_inSeasons = false;
    m_seasonRow = 0;
    m_episodeRow = 0;
    read(series);
    const auto wanted = std::find_if(m_all.cbegin(), m_all.cend(),
                                     [entry](const MediaItem &episode) { return episode.entry == entry; });
    choose(wanted == m_all.cend() ? firstToWatch() : *wanted);
    return true;
}

bool SeriesController::showFirst()
{
    for (int i = 0; i < m_catalogue.count(); ++i) {
        if (show(i))
            return true;
    }
    return false;
}

void SeriesController::read(int series)
{
    m_series = series;
    if (isSeries(m_catalogue, series))
        m_title = m_catalogue.entry(series).title;
    m_all.clear();
    m_seasons.clear();
    for (int i = 0; i < m_catalogue.count(); ++i) {
        const MediaItem item = catalogueItem(m_catalogue, i);
        if (item.kind != MediaItem::Kind::Episode || item.series != series)
            continue;
        m_all.append(item);
        if (!m_seasons.contains(item.season))
            m_seasons.append(item.season);
    }
    std::sort(m_seasons.begin(), m_seasons.end());
    std::stable_sort(m_all.begin(), m_all.end(), [](const MediaItem &left, const MediaItem &right) {
        return left.season < right.season;
    });
    m_inSeasons = m_inSeasons && m_seasons.size() > 1;
    setOutcome(Outcome::None);
    Q_EMIT seriesChanged();
}

MediaItem SeriesController::firstToWatch() const
{
    const QDate today = m_clock->now().date();
    const auto first = std::find_if(m_all.cbegin(), m_all.cend(), [today](const MediaItem &episode) {
        return !isViewed(episode) && !isToCome(episode, today);
    });
    return first == m_all.cend() ? m_all.value(0) : *first;
}

// The very episode if it is there, else its neighbour.
void SeriesController::choose(const MediaItem &wanted)
{
    const int last = int(m_seasons.size()) - 1;
    const int season = int(m_seasons.indexOf(wanted.season));
    showSeason(season >= 0 ? season : std::min(std::max(0, m_seasonRow), last));
    const QList<MediaItem> &shown = m_episodes.episodes();
    const auto rowWhere = [&shown](const auto &isIt) {
        const auto found = std::find_if(shown.cbegin(), shown.cend(), isIt);
        return found == shown.cend() ? -1 : int(found - shown.cbegin());
    };
    int row = rowWhere([&wanted](const MediaItem &episode) {
        return episode.episode > 0 && episode.episode == wanted.episode;
    });
    if (row < 0)
        row = rowWhere([&wanted](const MediaItem &episode) { return episode.title == wanted.title; });
    chooseEpisode(row >= 0 ? row : m_episodeRow);
}

QStringList SeriesController::seasons() const
{
    QStringList names;
    if (m_seasons.size() < 2)
        return names;
    for (const int number : m_seasons) {
        names.append(number > 0 ? QCoreApplication::translate("SeriesScreen", "Season %1").arg(number)
                                : QCoreApplication::translate("SeriesScreen", "Specials"));
    }
    return names;
}

const MediaItem *SeriesController::episode() const
{
    return m_episodeRow < 0 ? nullptr : &m_episodes.episodes().at(m_episodeRow);
}

QString SeriesController::facts() const
{
    if (episode() == nullptr)
        return {};
    MediaItem shown = *episode();
    shown.subtitle.clear(); // the title of the series
    return gallery::facts(shown);
}

QUrl SeriesController::still() const
{
    return episode() == nullptr ? QUrl() : episode()->still;
}

QString SeriesController::message() const
{
    switch (m_outcome) {
    case Outcome::None:
        return {};
    case Outcome::Opening:
        //: %1 is an episode's title
        return QCoreApplication::translate("SeriesScreen", "Opening “%1”…").arg(episode()->title);
    case Outcome::Opened:
        return noPlayerText();
    case Outcome::ToCome:
        break;
    }
    //: Day, month and year, in the form that QLocale::toString() takes
    const QString format = QCoreApplication::translate("SeriesScreen", "d MMMM yyyy");
    //: %1 is a date
    return QCoreApplication::translate("SeriesScreen", "This episode comes out on %1")
            .arg(QLocale().toString(episode()->release, format));
}

void SeriesController::setRowsPerPage(int rows)
{
    rows = std::max(1, rows);
    if (rows == m_rowsPerPage)
        return;
    m_rowsPerPage = rows;
    Q_EMIT rowsPerPageChanged();
}

void SeriesController::setMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    Q_EMIT mirroredChanged();
}

bool SeriesController::press(int key)
{
    if (isBackKey(key)) {
        if (m_outcome == Outcome::Opening)
            setOutcome(Outcome::None);
        else
            Q_EMIT backRequested();
        return true;
    }
    return m_inSeasons ? pressInSeasons(key) : pressInEpisodes(key);
}

bool SeriesController::pressInSeasons(int key)
{
    if (const int step = readingStep(key, m_mirrored)) {
        chooseSeason(m_seasonRow + step);
        return true;
    }
    switch (key) {
    case Qt::Key_Home:
        chooseSeason(0);
        return true;
    case Qt::Key_End:
        chooseSeason(int(m_seasons.size()) - 1);
        return true;
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        return true;
    default:
        break;
    }
    if (!isSelectKey(key) && key != Qt::Key_Down && key != Qt::Key_PageDown)
        return false;
    setInSeasons(false);
    return true;
}

bool SeriesController::pressInEpisodes(int key)
{
    if (isSelectKey(key)) {
        activate();
        return true;
    }
    switch (key) {
    case Qt::Key_Up:
        if (m_episodeRow <= 0)
            setInSeasons(true);
        else
            chooseEpisode(m_episodeRow - 1);
        return true;
    case Qt::Key_Down:
        chooseEpisode(m_episodeRow + 1);
        return true;
    case Qt::Key_PageUp:
        chooseEpisode(m_episodeRow - m_rowsPerPage);
        return true;
    case Qt::Key_PageDown:
        chooseEpisode(m_episodeRow + m_rowsPerPage);
        return true;
    case Qt::Key_Home:
        chooseEpisode(0);
        return true;
    case Qt::Key_End:
        chooseEpisode(m_episodes.count() - 1);
        return true;
    default:
        return key == Qt::Key_Left || key == Qt::Key_Right;
    }
}

void SeriesController::chooseSeason(int row)
{
    row = std::clamp(row, 0, int(m_seasons.size()) - 1);
    if (row == m_seasonRow)
        return;
    showSeason(row);
    chooseEpisode(0);
}

void SeriesController::showSeason(int row)
{
    m_seasonRow = row;
    QList<MediaItem> shown;
    std::copy_if(m_all.cbegin(), m_all.cend(), std::back_inserter(shown),
                 [this](const MediaItem &episode) { return episode.season == m_seasons.at(m_seasonRow); });
    m_episodes.setEpisodes(shown, m_clock->now().date());
}

void SeriesController::chooseEpisode(int row)
{
    m_episodeRow = std::min(std::max(0, row), m_episodes.count() - 1);
    setOutcome(Outcome::None);
    Q_EMIT selectionChanged();
}

void SeriesController::setInSeasons(bool inSeasons)
{
    m_inSeasons = inSeasons && m_seasons.size() > 1;
    setOutcome(Outcome::None);
    Q_EMIT selectionChanged();
}

void SeriesController::activate()
{
    if (episode() == nullptr || m_outcome == Outcome::Opening)
        return;
    setOutcome(m_episodes.isToCome(m_episodeRow) ? Outcome::ToCome : Outcome::Opening);
}

void SeriesController::finishOpening()
{
    if (m_outcome == Outcome::Opening)
        setOutcome(Outcome::Opened);
}

void SeriesController::setOutcome(Outcome outcome)
{
    if (outcome == Outcome::Opening)
        m_timer.start();
    else
        m_timer.stop();
    m_outcome = outcome;
    Q_EMIT messageChanged();
}

// An episode to come may be there on another day.
void SeriesController::tick()
{
    m_episodes.setEpisodes(m_episodes.episodes(), m_clock->now().date());
}

} // namespace gallery
