// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_GUIDEPROGRAMMEMODEL_H
#define GALLERY_SCREENS_GUIDEPROGRAMMEMODEL_H

#include "gallery/data/programmemodel.h"
#include "gallery/data/reminders.h"

#include <QtCore/qpointer.h>

namespace gallery {

/*!
    A channel's programmes of one day, each with whether the viewer wants to be reminded of it. Of a channel that is
    locked nothing is playable.
*/
class GuideProgrammeModel : public ProgrammeModel
{
    Q_OBJECT
public:
    enum Role {
        HasReminderRole = ProgrammeModel::PictureRole + 1 /*!< hasReminder: bool */
    };

    using ProgrammeModel::ProgrammeModel;

    /*! Null (the default): there are no reminders. Not owned. */
    Reminders *reminders() const { return m_reminders; }
    void setReminders(Reminders *reminders);
    /*! Sets a reminder of the programme in \a row, or takes it away; false when neither is possible. */
    bool toggleReminder(int row);
    /*! Whether the channel is locked. */
    bool isLocked() const;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void updateReminders();

    QPointer<Reminders> m_reminders;
};

} // namespace gallery

#endif // GALLERY_SCREENS_GUIDEPROGRAMMEMODEL_H
