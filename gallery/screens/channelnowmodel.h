// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_CHANNELNOWMODEL_H
#define GALLERY_SCREENS_CHANNELNOWMODEL_H

#include "gallery/data/channelmodel.h"

#include <QtCore/qdatetime.h>

namespace gallery {

/*! The channels of a guide, each with the programme that is on. */
class ChannelNowModel : public ChannelModel
{
    Q_OBJECT
public:
    enum Role {
        NowTitleRole = ChannelModel::FirstDerivedRole /*!< nowTitle: QString, empty when nothing is on */
    };

    using ChannelModel::ChannelModel;

    /*! Invalid (the default): nothing is on. */
    QDateTime now() const { return m_now; }
    void setNow(const QDateTime &now);

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QDateTime m_now;
};

} // namespace gallery

#endif // GALLERY_SCREENS_CHANNELNOWMODEL_H
