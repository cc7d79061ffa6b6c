// SPDX-License-Identifier: MIT
#include "screens/guideprogrammemodel.h"

namespace gallery {

void GuideProgrammeModel::setReminders(Reminders *reminders)
{
    if (reminders == m_reminders)
        return;
    if (m_reminders != nullptr)
        m_reminders->disconnect(this);
    m_reminders = reminders;
    if (m_reminders != nullptr)
        connect(m_reminders, &Reminders::changed, this, &GuideProgrammeModel::updateReminders);
    updateReminders();
}

bool GuideProgrammeModel::toggleReminder(int row)
{
    if (m_reminders == nullptr || row < 0 || row >= count())
        return false;
    const QDateTime start = data(index(row), StartRole).toDateTime();
    const QStringList titles = remindersOf(row);
    if (titles.isEmpty())
        return m_reminders->add(channelId(), start, data(index(row), TitleRole).toString());
    for (const QString &title : titles)
        m_reminders->remove(channelId(), start, title);
    return true;
}

// The titles under which there are reminders of the programme in \a row.
QStringList GuideProgrammeModel::remindersOf(int row) const
{
    if (m_reminders == nullptr)
        return {};
    QStringList titles = m_reminders->titlesAt(channelId(), data(index(row), StartRole).toDateTime());
    if (titles.isEmpty())
        return titles;
    const int programme = programmeAt(row);
    const QStringList together = titlesTogetherWith(programme);
    const QString own = shownTitle(programme);
    const qint64 start = guide().timeSpan(channel(), programme).start;
    const bool first = guide().previousProgramme(channel(), start) + 1 == programme;
    titles.removeIf(
            [&](const QString &title) { return title != own && (!first || together.contains(title)); });
    return titles;
}

// The titles of all programmes that start with \a programme.
QStringList GuideProgrammeModel::titlesTogetherWith(int programme) const
{
    const qint64 start = guide().timeSpan(channel(), programme).start;
    QStringList titles;
    for (int other = guide().previousProgramme(channel(), start) + 1;
         other < guide().programmeCount(channel()) && guide().timeSpan(channel(), other).start == start;
         ++other)
        titles.append(shownTitle(other));
    return titles;
}

QString GuideProgrammeModel::shownTitle(int programme) const
{
    return guide().programme(channel(), programme).shownTitle().left(Reminders::longestText);
}

QVariant GuideProgrammeModel::data(const QModelIndex &index, int role) const
{
    if (role == IsPlayableRole && isLocked())
        return false;
    if (role != HasReminderRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return ProgrammeModel::data(index, role);
    return !remindersOf(index.row()).isEmpty();
}

QHash<int, QByteArray> GuideProgrammeModel::roleNames() const
{
    QHash<int, QByteArray> names = ProgrammeModel::roleNames();
    names.insert(HasReminderRole, "hasReminder");
    return names;
}

bool GuideProgrammeModel::isLocked() const
{
    return channel() >= 0 && channel() < guide().channelCount() && guide().channel(channel()).locked;
}

QString GuideProgrammeModel::channelId() const
{
    return guide().channel(channel()).id;
}

void GuideProgrammeModel::updateReminders()
{
    if (count() > 0)
        Q_EMIT dataChanged(index(0), index(count() - 1), { HasReminderRole });
}

} // namespace gallery
