// SPDX-License-Identifier: MIT
#include "gallery/data/programmereminders.h"

#include <QtCore/qdatetime.h>

namespace gallery {

namespace {

QString keptTitle(const Guide &guide, int channel, int programme)
{
    return guide.programme(channel, programme).shownTitle().left(Reminders::longestText);
}

QDateTime startOf(const Guide &guide, int channel, int programme)
{
    return QDateTime::fromSecsSinceEpoch(guide.timeSpan(channel, programme).start);
}

// The titles of all programmes that start with \a programme.
QStringList titlesTogetherWith(const Guide &guide, int channel, int programme)
{
    const qint64 start = guide.timeSpan(channel, programme).start;
    QStringList titles;
    for (int other = guide.previousProgramme(channel, start) + 1;
         other < guide.programmeCount(channel) && guide.timeSpan(channel, other).start == start; ++other)
        titles.append(keptTitle(guide, channel, other));
    return titles;
}

// The titles under which there are reminders of the programme.
QStringList remindersOf(const Reminders &reminders, const Guide &guide, int channel, int programme)
{
    QStringList titles = reminders.titlesAt(guide.channel(channel).id, startOf(guide, channel, programme));
    if (titles.isEmpty())
        return titles;
    const QStringList together = titlesTogetherWith(guide, channel, programme);
    const QString own = keptTitle(guide, channel, programme);
    const qint64 start = guide.timeSpan(channel, programme).start;
    const bool first = guide.previousProgramme(channel, start) + 1 == programme;
    titles.removeIf(
            [&](const QString &title) { return title != own && (!first || together.contains(title)); });
    return titles;
}

} // namespace

bool hasReminder(const Reminders &reminders, const Guide &guide, int channel, int programme)
{
    return !remindersOf(reminders, guide, channel, programme).isEmpty();
}

bool toggleReminder(Reminders *reminders, const Guide &guide, int channel, int programme)
{
    const QString channelId = guide.channel(channel).id;
    const QDateTime start = startOf(guide, channel, programme);
    const QStringList titles = remindersOf(*reminders, guide, channel, programme);
    if (titles.isEmpty())
        return reminders->add(channelId, start, guide.programme(channel, programme).shownTitle());
    for (const QString &title : titles)
        reminders->remove(channelId, start, title);
    return true;
}

} // namespace gallery
