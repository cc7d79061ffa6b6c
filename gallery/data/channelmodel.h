// SPDX-License-Identifier: MIT
#ifndef GALLERY_CHANNELMODEL_H
#define GALLERY_CHANNELMODEL_H

#include "gallery/data/guide.h"

#include <QtCore/qabstractitemmodel.h>

namespace gallery {

/*! The channels of a guide, one row each; the row is the channel's index in the guide. */
class ChannelModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        ChannelIdRole = Qt::UserRole + 1, /*!< channelId: QString, as in the guide file */
        NameRole, /*!< name: QString, never empty; also Qt::DisplayRole */
        NumberRole, /*!< number: QString such as "7" or "7-1", empty when the guide gives none */
        LogoRole, /*!< logo: QUrl, empty when there is none */
        GroupRole, /*!< group: QString such as "News", empty without a playlist that gives one */
        QualityRole, /*!< quality: QString such as "HD", empty when nothing tells it */
        LockedRole, /*!< locked: bool, false without a playlist that tells it */
        FirstDerivedRole /*!< where the roles of derived models begin */
    };
    Q_ENUM(Role)

    explicit ChannelModel(QObject *parent = nullptr);

    Guide guide() const { return m_guide; }
    /*! Shows the channels of \a guide; resets the model. */
    void setGuide(const Guide &guide);

    int count() const { return m_guide.channelCount(); }

    /*! The row of the channel \a channelId, or -1. */
    Q_INVOKABLE int rowOf(const QString &channelId) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    Guide m_guide;
};

} // namespace gallery

#endif // GALLERY_CHANNELMODEL_H
