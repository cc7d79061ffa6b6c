// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_PLAYERPROGRAMMES_H
#define GALLERY_SCREENS_PLAYERPROGRAMMES_H

#include "gallery/data/guide.h"

#include <QtCore/qabstractitemmodel.h>
#include <QtCore/qdatetime.h>

namespace gallery {

/*!
    All programmes of one channel, of every day that the guide has: the row is the programme's index in the guide. A
    changed time changes rows in place and names only those that differ; another channel or guide resets the model.
*/
class PlayerProgrammes : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        TitleRole = Qt::UserRole + 1, /*!< title: QString, never empty; also Qt::DisplayRole */
        ExactDateRole, /*!< exactDate: QString, day and times: "Today, 20:00 – 20:30" */
        DescriptionRole, /*!< description: QString, else the subtitle */
        PictureRole, /*!< picture: QUrl, a wide picture: the guide's, or one drawn for the category */
        LiveRole, /*!< live: bool, on now */
        PastRole, /*!< past: bool, over */
        ProgressRole /*!< progress: double, 0 before the start to 1 from the stop on */
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    /*! Shows the programmes of \a channel, or none when the guide does not have it. */
    void select(const Guide &guide, int channel);
    void setNow(const QDateTime &now);

    const Guide &guide() const { return m_guide; }
    int count() const { return m_count; }
    TimeSpan timeSpan(int row) const { return m_guide.timeSpan(m_channel, row); }
    /*! The row that is on at \a time, in seconds since 1970; -1 when none is. */
    int rowAt(qint64 time) const { return m_count > 0 ? m_guide.programmeAt(m_channel, time) : -1; }
    /*! The row that is on at \a time, else the last one that began before, else the first; -1 only without rows. */
    int nearestRow(qint64 time) const;
    /*!
        The row of this title that starts at \a start, or up to an hour before or after; else the first one that starts at
        \a start; -1 when none does.
    */
    int rowOf(qint64 start, const QString &title) const;

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : m_count; }
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QVariant textData(int row, int role) const;
    QString exactDate(const TimeSpan &time) const;

    Guide m_guide;
    QDateTime m_now;
    int m_channel = -1;
    int m_count = 0;
};

} // namespace gallery

#endif // GALLERY_SCREENS_PLAYERPROGRAMMES_H
