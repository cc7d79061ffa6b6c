// SPDX-License-Identifier: MIT
#include "screens/episodemodel.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qlocale.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

enum class State { Begun, New, Viewed, ToCome };

State stateOf(const MediaItem &episode, QDate today)
{
    if (isToCome(episode, today))
        return State::ToCome;
    if (isViewed(episode))
        return State::Viewed;
    return episode.position > 0 && episode.duration > 0 ? State::Begun : State::New;
}

QString cellType(State state)
{
    switch (state) {
    case State::Begun:
        return u"defaultTile"_s;
    case State::New:
        return u"unViewedTile"_s;
    case State::Viewed:
        return u"viewedTile"_s;
    case State::ToCome:
        break;
    }
    return u"comingSoonTile"_s;
}

// Two words for the two lines of a cell: a blank within one would make more of them.
QString releaseWords(QDate day)
{
    const auto word = [day](const char *format) {
        return QLocale()
                .toString(day, QCoreApplication::translate("SeriesScreen", format))
                .replace(u' ', QChar::Nbsp);
    };
    //: Day of the month, alone in a line above the month, in the form that QLocale::toString() takes
    const QString dayWord = word(QT_TRANSLATE_NOOP("SeriesScreen", "d"));
    //: The month below the day, in the form that QLocale::toString() takes
    const QString monthWord = word(QT_TRANSLATE_NOOP("SeriesScreen", "MMMM"));
    return dayWord + u' ' + monthWord;
}

QString statusText(const MediaItem &episode, State state)
{
    switch (state) {
    case State::Begun:
        return timeLeft(episode);
    case State::New:
        return episode.note.isEmpty() && episode.duration > 0 ? lengthText(episode.duration) : episode.note;
    case State::Viewed:
        return QCoreApplication::translate("SeriesScreen", "Viewed");
    case State::ToCome:
        break;
    }
    return releaseWords(episode.release);
}

QString numberedTitle(const MediaItem &episode)
{
    return episode.episode > 0 ? u"%1. %2"_s.arg(QString::number(episode.episode), episode.title)
                               : episode.title;
}

} // namespace

void EpisodeModel::setEpisodes(const QList<MediaItem> &episodes, QDate today)
{
    const auto sameState = [this, today](const MediaItem &episode) {
        return stateOf(episode, today) == stateOf(episode, m_today);
    };
    const bool same = episodes == m_episodes && std::all_of(episodes.cbegin(), episodes.cend(), sameState);
    if (!same)
        beginResetModel();
    m_episodes = episodes;
    m_today = today;
    if (!same)
        endResetModel();
}

bool EpisodeModel::isToCome(int row) const
{
    return gallery::isToCome(m_episodes.at(row), m_today);
}

QVariant EpisodeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= count())
        return {};
    const MediaItem &episode = m_episodes.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return numberedTitle(episode);
    case DescriptionRole:
        return episode.description;
    case CellTypeRole:
        return cellType(stateOf(episode, m_today));
    case StatusRole:
        return statusText(episode, stateOf(episode, m_today));
    case StillRole:
        return episode.still;
    case PositionRole:
        return episode.position;
    case DurationRole:
        return episode.duration;
    default:
        return {};
    }
}

QHash<int, QByteArray> EpisodeModel::roleNames() const
{
    return { { TitleRole, "title" },       { DescriptionRole, "description" },
             { CellTypeRole, "cellType" }, { StatusRole, "status" },
             { StillRole, "still" },       { PositionRole, "position" },
             { DurationRole, "duration" } };
}

} // namespace gallery
