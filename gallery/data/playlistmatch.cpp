// SPDX-License-Identifier: MIT
#include "gallery/data/playlistmatch.h"

#include <QtCore/qhash.h>
#include <QtCore/qset.h>

#include <algorithm>

namespace gallery {

namespace {

constexpr int ambiguous = -2;

// What two names that are the same for a viewer have in common.
QString comparable(const QString &name)
{
    const QString folded = name.normalized(QString::NormalizationForm_KC).toCaseFolded();
    return folded.normalized(QString::NormalizationForm_KC).simplified();
}

/*! Finds the channels of a guide. */
class GuideChannels
{
public:
    explicit GuideChannels(const Guide &guide)
    {
        for (int i = 0; i < guide.channelCount(); ++i) {
            const QString name = comparable(guide.channel(i).name);
            m_byName.insert(name, m_byName.contains(name) ? ambiguous : i);
        }
    }
    // The channel with one of the names of \a channel, or -1.
    int find(const PlaylistChannel &channel) const
    {
        const int found = named(channel.guideName);
        return found >= 0 ? found : named(channel.name);
    }

private:
    int named(const QString &name) const
    {
        const QString wanted = comparable(name);
        return wanted.isEmpty() ? -1 : std::max(m_byName.value(wanted, -1), -1);
    }

    QHash<QString, int> m_byName;
};

/*! Gives each channel an id of its own. */
class Ids
{
public:
    QString take(const QString &wanted)
    {
        QString id = wanted;
        int &count = m_counts[wanted]; // goes on where it was, so that many of one id stay cheap
        for (count = std::max(count, 1); m_taken.contains(id); ++count)
            id = QStringLiteral("%1 (%2)").arg(wanted).arg(count + 1);
        m_taken.insert(id);
        return id;
    }

private:
    QSet<QString> m_taken;
    QHash<QString, int> m_counts;
};

Channel shownAs(const PlaylistChannel &channel, const Guide &guide, int source)
{
    Channel shown;
    shown.name = channel.name;
    shown.number = channel.number;
    shown.icon = channel.logo.isEmpty() && source >= 0 ? guide.channel(source).icon : channel.logo;
    shown.group = channel.group;
    shown.quality = channel.quality;
    shown.locked = channel.locked;
    return shown;
}

// The guide's ids are given first, so that no other channel takes one.
void giveIds(const Playlist &playlist, const Guide &guide, QList<ShownChannel> *channels)
{
    Ids ids;
    for (ShownChannel &shown : *channels) {
        if (shown.source >= 0)
            shown.channel.id = ids.take(guide.channel(shown.source).id);
    }
    for (qsizetype i = 0; i < channels->size(); ++i) {
        const PlaylistChannel &channel = playlist[i];
        if ((*channels)[i].source < 0)
            (*channels)[i].channel.id = ids.take(channel.id.isEmpty() ? channel.name : channel.id);
    }
}

} // namespace

QString PlaylistMatch::summary() const
{
    return QStringLiteral(
                   "%1 channels: %2 found in the guide by id, %3 by name, %4 not; %5 channels of the guide are "
                   "not in the playlist and are left out")
            .arg(guide.channelCount())
            .arg(foundById)
            .arg(foundByName)
            .arg(notInGuide)
            .arg(notInPlaylist);
}

PlaylistMatch matchedGuide(const Playlist &playlist, const Guide &guide)
{
    const GuideChannels names(guide);
    PlaylistMatch match;
    QList<ShownChannel> channels;
    QSet<int> sources;
    channels.reserve(playlist.size());
    for (const PlaylistChannel &channel : playlist) {
        const int byId = guide.channelIndex(channel.id);
        const int source = byId >= 0 ? byId : names.find(channel);
        ++(byId >= 0 ? match.foundById : source >= 0 ? match.foundByName : match.notInGuide);
        if (source >= 0)
            sources.insert(source);
        channels.append({ shownAs(channel, guide, source), source });
    }
    giveIds(playlist, guide, &channels);
    match.notInPlaylist = guide.channelCount() - int(sources.size());
    match.guide = guide.withChannels(channels);
    return match;
}

} // namespace gallery
