// SPDX-License-Identifier: MIT
#ifndef GALLERY_GUIDEBUILDER_H
#define GALLERY_GUIDEBUILDER_H

#include "gallery/data/guide.h"

#include <atomic>
#include <memory>
#include <optional>

namespace gallery {

/*! A programme on its way into a guide. */
struct NewProgramme
{
    QString channelId;
    /*! Seconds since 1970-01-01 00:00 UTC. */
    qint64 start = 0;
    /*! Not known, or before the start: the programme ends where the next one of its channel starts. */
    std::optional<qint64> stop;
    QString title;
    QString subTitle;
    QString description;
    QString category;
    QUrl picture;
    /*! Programmes that share one time are shown in this order. */
    int clumpIndex = 0;
    /*! Length in seconds, 0 when not known; ends the last programme of a channel that has no stop. */
    int length = 0;
};

/*! Makes a Guide of channels and programmes that come in any order. */
class GuideBuilder
{
    Q_DISABLE_COPY_MOVE(GuideBuilder)
public:
    /*! What the last programme of a channel gets when neither stop nor length is known: an hour, in seconds. */
    static constexpr int defaultLength = 3600;

    GuideBuilder();
    ~GuideBuilder();

    /*! A second channel with the same id only fills in what the first one lacks. */
    void addChannel(const Channel &channel);
    /*! A channel that was not added before is made of the programme's channel id. */
    void addProgramme(const NewProgramme &programme);

    /*!
        The guide of everything that was added; the builder is empty afterwards. Programmes that are equal in
        channel, times and all texts are there once. When \a cancelled becomes true the work stops soon and
        the guide is empty.
    */
    Guide take(const std::atomic<bool> *cancelled = nullptr);

    /*! How many equal programmes the last take() left out. */
    qint64 duplicates() const { return m_duplicates; }

private:
    size_t channelIndex(const QString &id);

    std::unique_ptr<GuideData> m_data;
    qint64 m_duplicates = 0;
};

} // namespace gallery

#endif // GALLERY_GUIDEBUILDER_H
