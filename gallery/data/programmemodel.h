// SPDX-License-Identifier: MIT
#ifndef GALLERY_PROGRAMMEMODEL_H
#define GALLERY_PROGRAMMEMODEL_H

#include "gallery/data/guide.h"

#include <QtCore/qabstractitemmodel.h>

namespace gallery {

/*!
    The programmes of one channel on one local calendar day, sorted by start: those that run or start between the
    day's first instant and the next day's first instant, the one that runs over midnight included. A day has 23
    or 25 hours when the clocks change.

    A changed time changes rows in place: dataChanged names only the rows and roles whose values are different.
    A changed channel, day or guide resets the model, unless the rows are the same.
*/
class ProgrammeModel : public QAbstractListModel
{
    Q_OBJECT
    /*! Index of the channel in the guide. -1 (the default) or one that the guide does not have: no rows. */
    Q_PROPERTY(int channel READ channel WRITE setChannel NOTIFY channelChanged)
    /*! The day in local time. An invalid date (the default): no rows. */
    Q_PROPERTY(QDate date READ date WRITE setDate NOTIFY dateChanged)
    /*! The time that past, live and future are told by. Invalid (the default): all programmes are future. */
    Q_PROPERTY(QDateTime now READ now WRITE setNow NOTIFY nowChanged)
    /*! How many hours a programme can be played after its start; 168 (a week) by default, never below 0. */
    Q_PROPERTY(int catchUpHours READ catchUpHours WRITE setCatchUpHours NOTIFY catchUpHoursChanged)
    /*! The row that is on now, or -1: of several the one that started last. */
    Q_PROPERTY(int liveRow READ liveRow NOTIFY liveRowChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        TitleRole = Qt::UserRole + 1, /*!< title: QString, never empty; also Qt::DisplayRole */
        SubtitleRole, /*!< subtitle: QString, may be empty */
        StartTimeTextRole, /*!< startTimeText: QString, local time in 24 hours, "09:05" */
        StopTimeTextRole, /*!< stopTimeText: QString, as above */
        IsLiveRole, /*!< isLive: bool, start <= now < stop; several rows when programmes overlap */
        IsFutureRole, /*!< isFuture: bool, now < start */
        IsPastRole, /*!< isPast: bool, started and not live */
        IsPlayableRole, /*!< isPlayable: bool, live, or past and started at most catchUpHours ago */
        StartRole, /*!< start: QDateTime, local time */
        StopRole, /*!< stop: QDateTime, local time */
        ProgressRole, /*!< progress: double, 0 before the start to 1 from the stop on */
        DescriptionRole, /*!< description: QString, may be empty */
        CategoryRole, /*!< category: QString, may be empty */
        PictureRole /*!< picture: QUrl, a wide picture: the guide's, or one drawn for the category */
    };
    Q_ENUM(Role)

    explicit ProgrammeModel(QObject *parent = nullptr);

    Guide guide() const { return m_guide; }
    void setGuide(const Guide &guide);

    int channel() const { return m_channel; }
    void setChannel(int channel);
    QDate date() const { return m_date; }
    void setDate(QDate date);
    /*! Sets channel and day with one reset. */
    Q_INVOKABLE void select(int channel, QDate date);
    /*! Sets guide, channel and day with one reset. */
    void select(const Guide &guide, int channel, QDate date);

    QDateTime now() const { return m_now; }
    void setNow(const QDateTime &now);
    int catchUpHours() const { return m_catchUpHours; }
    void setCatchUpHours(int hours);

    int liveRow() const { return m_liveRow; }
    int count() const { return int(m_rows.size()); }

    /*! The row that is on at \a time (of several the one that started last), or -1. */
    Q_INVOKABLE int indexAt(const QDateTime &time) const;
    /*!
        The row to show for \a time: the one that is on, else the last one that started before, else the first;
        -1 only without rows.
    */
    Q_INVOKABLE int nearestRow(const QDateTime &time) const;

    /*! The row of the programme with this index in the guide, or -1. */
    int rowOf(int programme) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

protected:
    /*! The index in the guide of the programme in \a row. */
    int programmeAt(int row) const { return m_rows.at(row); }

Q_SIGNALS:
    void channelChanged();
    void dateChanged();
    void nowChanged();
    void catchUpHoursChanged();
    void liveRowChanged();
    void countChanged();

private:
    struct State
    {
        bool live = false;
        bool future = true;
        bool playable = false;
        double progress = 0;
    };

    TimeSpan timeOf(int row) const;
    int rowAt(qint64 time) const;
    State stateAt(const TimeSpan &time) const;
    void show(const Guide &guide, int channel, QDate date);
    void updateLiveRow();
    void updateStates();
    QVariant textData(int row, int role) const;

    Guide m_guide;
    QList<int> m_rows; // indices of the channel's programmes
    QList<State> m_states; // of each row, as last told
    QDateTime m_now;
    QDate m_date;
    int m_channel = -1;
    int m_catchUpHours = 168;
    int m_liveRow = -1;
};

} // namespace gallery

#endif // GALLERY_PROGRAMMEMODEL_H
