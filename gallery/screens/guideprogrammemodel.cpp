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
    const QModelIndex programme = index(row);
    const QDateTime start = data(programme, StartRole).toDateTime();
    const QString title = data(programme, TitleRole).toString();
    return m_reminders->remove(channelId(), start, title) || m_reminders->add(channelId(), start, title);
}

QVariant GuideProgrammeModel::data(const QModelIndex &index, int role) const
{
    if (role != HasReminderRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return ProgrammeModel::data(index, role);
    return m_reminders != nullptr
           && m_reminders->contains(channelId(), data(index, StartRole).toDateTime(),
                                    data(index, TitleRole).toString());
}

QHash<int, QByteArray> GuideProgrammeModel::roleNames() const
{
    QHash<int, QByteArray> names = ProgrammeModel::roleNames();
    names.insert(HasReminderRole, "hasReminder");
    return names;
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
