// SPDX-License-Identifier: MIT
#ifndef GALLERY_GUIDEREADER_H
#define GALLERY_GUIDEREADER_H

#include "gallery/data/guide.h"

#include <QtCore/qlist.h>
#include <QtCore/qstringlist.h>

#include <atomic>
#include <functional>

class QIODevice;

namespace gallery {

/*! Something in a guide file that is not as it should be; reading went on. */
struct GuideProblem
{
    qint64 line = 0; /*!< from 1 */
    qint64 column = 0; /*!< from 1 */
    QString text;
};

/*! What came of reading a guide file. */
struct GuideReport
{
    enum class Outcome {
        Complete, /*!< read to its end */
        Partial, /*!< the guide holds what comes before the error */
        Unreadable, /*!< no guide: there is no such file, or it is none; the guide is empty */
        Cancelled /*!< stopped on request; the guide is empty */
    };

    /*! How many problems are kept with their text. */
    static constexpr int maximumProblems = 20;

    Outcome outcome = Outcome::Complete;
    Guide guide;
    /*!
        For Partial and Unreadable one line that names the file, the line and column where there is one, and
        what is wrong; else empty.
    */
    QString error;
    /*! The first problems, in the order of the file. */
    QList<GuideProblem> problems;
    /*! All problems, also those that are not kept. */
    qint64 problemCount = 0;
    /*! Programmes that are not in the guide because their start is missing or invalid, or their channel missing. */
    qint64 skippedProgrammes = 0;
    /*! Programmes that the file has twice or more, equal in all that is kept; the guide has them once. */
    qint64 duplicateProgrammes = 0;

    /*!
        Everything that is to be told about the file \a fileName, one line each: the problems, how many more there are,
        and the error.
    */
    QStringList messages(const QString &fileName) const;
};

struct GuideReadOptions
{
    /*! The language to choose texts by ("de", "pt-BR"); without a text in it, the first text is taken. */
    QString language;
    /*! Set to true in another thread to stop the reading soon; may be null. */
    const std::atomic<bool> *cancelled = nullptr;
    /*!
        Called in the reading thread for each further hundredth that is read, with how much it is by then, up to
        1; never called for a source whose size is not known. May be empty.
    */
    std::function<void(double)> progress = nullptr;
};

/*! Reads the guide file \a fileName (XMLTV, plain or compressed with gzip). Blocks; for any thread. */
GuideReport readGuide(const QString &fileName, const GuideReadOptions &options = {});

/*!
    Reads a guide from \a device, which is open. \a name stands for it in messages, and pictures with relative
    addresses are looked for in its folder.
*/
GuideReport readGuide(QIODevice *device, const QString &name, const GuideReadOptions &options = {});

} // namespace gallery

#endif // GALLERY_GUIDEREADER_H
