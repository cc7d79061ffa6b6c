// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_CHANNELROWS_H
#define GALLERY_SCREENS_CHANNELROWS_H

#include "gallery/data/guide.h"

#include <QtCore/qabstractitemmodel.h>

namespace gallery {

/*! The channels of a guide, all or those of one group, in the guide's order, each with the programme that is on. */
class ChannelRows : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        ChannelRole = Qt::UserRole + 1, /*!< channel: int, the channel's index in the guide */
        NameRole, /*!< name: QString, without a quality that QualityRole tells; also Qt::DisplayRole */
        NumberRole, /*!< number: QString such as "7" or "7-1", may be empty */
        LogoRole, /*!< logo: QUrl, empty when there is none */
        QualityRole, /*!< quality: QString such as "HD", may be empty */
        LockedRole, /*!< locked: bool */
        ProgrammeRole, /*!< programme: QString, the title of what is on; empty when nothing is */
        ProgressRole, /*!< progress: double, how much of it is over, 0 to 1; 0 when nothing is on */
        PlayingRole /*!< playing: bool, true for at most one channel */
    };
    Q_ENUM(Role)

    explicit ChannelRows(QObject *parent = nullptr);

    Guide guide() const { return m_guide; }
    /*! Shows the channels of \a guide that are in \a group, or all for an empty one; resets the model. */
    void show(const Guide &guide, const QString &group);
    /*! What is on is told by this time. Invalid (the default): nothing is on. */
    void setNow(const QDateTime &now);
    /*! The channel with this index in the guide plays; -1 (the default, and after show()): none does. */
    void setPlaying(int channel);

    int count() const { return int(m_channels.size()); }
    /*! The index in the guide of the channel in \a row, and the way back; -1 when there is none. */
    int channelAt(int row) const { return m_channels.value(row, -1); }
    int rowOf(int channel) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    QVariant programmeData(int channel, int role) const;
    void tellPlaying(int channel);

    Guide m_guide;
    QList<int> m_channels; // indices in the guide, ascending
    QDateTime m_now;
    int m_playing = -1;
};

} // namespace gallery

#endif // GALLERY_SCREENS_CHANNELROWS_H
