// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_DAYMODEL_H
#define GALLERY_SCREENS_DAYMODEL_H

#include "gallery/data/guide.h"

#include <QtCore/qabstractitemmodel.h>

namespace gallery {

/*! The days that the guide can show: the week before today, today, and the week after it. */
class DayModel : public QAbstractListModel
{
    Q_OBJECT
public:
    static constexpr int daysBefore = 7;
    static constexpr int daysAfter = 7;

    enum Role {
        DayRole = Qt::UserRole + 1, /*!< day: QDateTime, noon of the day, which is on this day in every zone */
        HasProgrammesRole, /*!< hasProgrammes: bool, whether the channel has anything on that day */
        IsTodayRole /*!< isToday: bool */
    };

    using QAbstractListModel::QAbstractListModel;

    /*! Invalid (the default): there are no days. */
    QDate today() const { return m_today; }
    void setToday(QDate today);
    /*! Tells what the channel \a channel of \a guide has; -1 or one that the guide does not have: nothing. */
    void show(const Guide &guide, int channel);

    int count() const { return m_today.isValid() ? daysBefore + 1 + daysAfter : 0; }
    /*! The day in \a row. */
    QDate dateAt(int row) const { return m_today.addDays(row - daysBefore); }
    /*! The row of \a date, or of the nearest day there is; -1 without days. */
    int rowOf(QDate date) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    bool hasProgrammes(QDate date) const;

    Guide m_guide;
    QDate m_today;
    int m_channel = -1;
};

} // namespace gallery

#endif // GALLERY_SCREENS_DAYMODEL_H
