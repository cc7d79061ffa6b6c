// SPDX-License-Identifier: MIT
#include "screens/guideprogrammemodel.h"

#include "gallery/data/programmereminders.h"

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
    return gallery::toggleReminder(m_reminders, guide(), channel(), programmeAt(row));
}

QVariant GuideProgrammeModel::data(const QModelIndex &index, int role) const
{
    if (role == IsPlayableRole && isLocked())
        return false;
    if (role != HasReminderRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return ProgrammeModel::data(index, role);
    return m_reminders != nullptr && hasReminder(*m_reminders, guide(), channel(), programmeAt(index.row()));
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

void GuideProgrammeModel::updateReminders()
{
    if (count() > 0)
        Q_EMIT dataChanged(index(0), index(count() - 1), { HasReminderRole });
}

} // namespace gallery
