// SPDX-License-Identifier: MIT
#ifndef GALLERY_GUIDELOADER_H
#define GALLERY_GUIDELOADER_H

#include "gallery/data/guidereader.h"
#include "gallery/data/playlistreader.h"

#include <QtCore/qobject.h>

#include <memory>

namespace gallery {

/*! What a guide is to be made of. */
struct GuideFiles
{
    /*! XMLTV, plain or compressed with gzip. Empty: the own guide around \c now. */
    QString guide;
    /*! Extended M3U: names, numbers and orders the channels. Empty: the channels are those of the guide. */
    QString playlist;
    /*! Of texts in several languages the one in this language ("de", "pt-BR") is taken, else the first. */
    QString language;
    QDateTime now;
};

/*!
    Reads a guide file, and a playlist that says what channels to show, in a thread of its own and hands the result to
    the thread that the loader lives in. Destroying the loader, or loading another file, stops a reading that is under
    way; both wait for its thread, which takes milliseconds, or as long as a playlist takes to its end.
*/
class GuideLoader : public QObject
{
    Q_OBJECT
    /*! Whether a file is being read. */
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)
    /*! How much of the file is read: 0 to 1, in steps of a hundredth or more while loading. */
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    /*! Why the last file could not be read, or not to its end, as one line; empty when it could. */
    Q_PROPERTY(QString error READ error NOTIFY finished)
public:
    explicit GuideLoader(QObject *parent = nullptr);
    ~GuideLoader() override;

    /*!
        Starts to read \a files. Always ends with finished(), never from within this function, unless cancel() or
        another load() comes first. When the playlist cannot be read, nothing else is, and the guide is empty.
    */
    void load(const GuideFiles &files);
    /*! The same for the guide file \a fileName alone. */
    void load(const QString &fileName, const QString &language) { load({ fileName, {}, language, {} }); }
    /*! Stops reading; finished() is not emitted. */
    void cancel();

    bool isLoading() const { return m_job != nullptr; }
    double progress() const { return m_progress; }
    QString error() const { return m_report.error; }
    /*! What the last finished reading gave. */
    GuideReport report() const { return m_report; }
    /*! The same of the playlist; empty without one. */
    PlaylistReport playlistReport() const { return m_playlistReport; }
    Guide guide() const { return m_report.guide; }

Q_SIGNALS:
    void loadingChanged();
    void progressChanged();
    /*! The file is read, whole or not: see report(). */
    void finished();

private:
    struct Job;
    void finish();
    void stop();
    void setProgress(double progress);

    std::unique_ptr<Job> m_job;
    quint64 m_number = 0; // of the present reading; a stopped one's number does not come again
    GuideReport m_report;
    PlaylistReport m_playlistReport;
    double m_progress = 0;
};

} // namespace gallery

#endif // GALLERY_GUIDELOADER_H
