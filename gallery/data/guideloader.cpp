// SPDX-License-Identifier: MIT
#include "gallery/data/guideloader.h"

#include "gallery/data/ownguide.h"
#include "gallery/data/playlistmatch.h"

#include <atomic>
#include <thread>

namespace gallery {

// A reading and its thread. The thread touches nothing of the loader: what it has to say waits in the event queue
// of the loader's thread. It is joined before the loader goes, and the loader's queued calls go with the loader.
struct GuideLoader::Job
{
    Job(GuideLoader *loader, const GuideFiles &files)
        : m_loader(loader)
        , m_number(loader->m_number)
        , m_thread([this, files] { run(files); })
    {
    }
    ~Job()
    {
        if (!m_thread.joinable())
            return;
        m_cancelled = true;
        m_thread.join();
    }
    void takeReports(GuideReport *guide, PlaylistReport *playlist)
    {
        m_thread.join();
        *guide = std::move(m_report);
        *playlist = std::move(m_playlistReport);
    }

private:
    void run(const GuideFiles &files)
    {
        if (!files.playlist.isEmpty())
            m_playlistReport = readPlaylist(files.playlist);
        if (m_playlistReport.outcome == PlaylistReport::Outcome::Complete)
            read(files);
        post([loader = m_loader] { loader->finish(); });
    }
    void read(const GuideFiles &files)
    {
        const auto tell = [this](double progress) {
            post([loader = m_loader, progress] { loader->setProgress(progress); });
        };
        if (files.guide.isEmpty())
            m_report.guide = ownGuide(files.now, files.language);
        else
            m_report = readGuide(files.guide, { files.language, &m_cancelled, tell });
        const bool readable = m_report.outcome == GuideReport::Outcome::Complete
                              || m_report.outcome == GuideReport::Outcome::Partial;
        if (readable && !files.playlist.isEmpty())
            m_report.guide = matchedGuide(m_playlistReport.playlist, m_report.guide).guide;
    }
    // A call that comes up after its reading was stopped is dropped.
    template <typename Call>
    void post(const Call &call)
    {
        const auto checked = [loader = m_loader, number = m_number, call] {
            if (loader->m_number == number)
                call();
        };
        QMetaObject::invokeMethod(m_loader, checked, Qt::QueuedConnection);
    }

    GuideLoader *m_loader = nullptr;
    quint64 m_number = 0;
    std::atomic<bool> m_cancelled = false;
    GuideReport m_report; // this and the next are the thread's until it is joined
    PlaylistReport m_playlistReport;
    std::thread m_thread; // the last, because it uses the others from its start
};

GuideLoader::GuideLoader(QObject *parent)
    : QObject(parent)
{
}

GuideLoader::~GuideLoader()
{
    stop();
}

void GuideLoader::load(const GuideFiles &files)
{
    const bool wasLoading = isLoading();
    stop();
    setProgress(0);
    m_job = std::make_unique<Job>(this, files);
    if (!wasLoading)
        Q_EMIT loadingChanged();
}

void GuideLoader::cancel()
{
    if (!isLoading())
        return;
    stop();
    Q_EMIT loadingChanged();
}

// Ends the reading, if there is one, without a word about it.
void GuideLoader::stop()
{
    m_job.reset();
    ++m_number;
}

void GuideLoader::finish()
{
    m_job->takeReports(&m_report, &m_playlistReport);
    stop();
    setProgress(1);
    Q_EMIT loadingChanged();
    Q_EMIT finished();
}

void GuideLoader::setProgress(double progress)
{
    if (m_progress == progress)
        return;
    m_progress = progress;
    Q_EMIT progressChanged();
}

} // namespace gallery
