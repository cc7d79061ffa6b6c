// SPDX-License-Identifier: MIT
#ifndef GALLERY_GUIDE_P_H
#define GALLERY_GUIDE_P_H

#include "gallery/data/guide.h"
#include "gallery/data/textpool.h"

#include <QtCore/qhash.h>

#include <deque>
#include <limits>
#include <memory>
#include <vector>

namespace gallery {

/*! A programme as it is kept: its texts are in the guide's pool. */
struct ProgrammeRecord
{
    static constexpr qint64 noStop = std::numeric_limits<qint64>::min();

    qint64 start = 0;
    qint64 stop = noStop;
    TextPool::Ref title = nullptr;
    TextPool::Ref subTitle = nullptr;
    TextPool::Ref description = nullptr;
    TextPool::Ref category = nullptr;
    TextPool::Ref picture = nullptr; // the encoded address
    qint32 clumpIndex = 0;
    qint32 length = 0; // seconds, 0 when not known; only used for a last programme without stop
};

/*! The programmes of one channel; guides that show them under different channels share them. */
struct ChannelProgrammes
{
    // A deque, because it grows without ever holding everything twice.
    std::deque<ProgrammeRecord> records;
    qint64 longest = 0; // the longest programme, in seconds: how far back a running one can have begun
    qint64 lastStop = std::numeric_limits<qint64>::min();
};

struct ChannelRecord
{
    Channel channel;
    std::shared_ptr<ChannelProgrammes> programmes; // never null, never changed once the guide is made
    bool declared = false;
};

struct GuideData
{
    /*! Makes the index of the channels' ids and the sums over all channels. */
    void summarize();

    std::shared_ptr<const GuideData> source; // owns the texts of programmes that are shared with it
    std::vector<ChannelRecord> channels;
    QHash<QString, int> channelById;
    TextPool texts;
    TimeSpan time;
    qint64 programmeCount = 0;
};

} // namespace gallery

#endif // GALLERY_GUIDE_P_H
