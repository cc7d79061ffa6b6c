// SPDX-License-Identifier: MIT
#include "gallery/data/guideloader.h"

#include <mutex>
#include <optional>
#include <thread>

namespace gallery {

namespace {

// How often the loader looks at its thread: often enough for a smooth bar.
constexpr int lookInterval = 40;

} // namespace

// What the loader and the reading thread share. The thread touches nothing else, and the loader looks in from
// time to time, so that neither waits for the other.
struct GuideLoader::Job
{
    std::atomic<bool> cancelled = false;
    std::atomic<double> progress = 0;
    std::mutex mutex;
    std::optional<GuideReport> report;
    std::thread thread;

    std::optional<GuideReport> takeReport()
    {
        const std::lock_guard lock(mutex);
        return std::exchange(report, std::nullopt);
    }
    void run(const QString &fileName, const QString &language)
    {
        GuideReport result = readGuide(fileName, { language, &cancelled, &progress });
        const std::lock_guard lock(mutex);
        report = std::move(result);
    }
};

GuideLoader::GuideLoader(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(lookInterval);
    connect(&m_timer, &QTimer::timeout, this, &GuideLoader::look);
}

GuideLoader::~GuideLoader()
{
    stop();
}

void GuideLoader::load(const QString &fileName, const QString &language)
{
    const bool wasLoading = isLoading();
    stop();
    setProgress(0);
    m_job = std::make_unique<Job>();
    m_job->thread = std::thread(&Job::run, m_job.get(), fileName, language);
    m_timer.start();
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

void GuideLoader::stop()
{
    m_timer.stop();
    if (!m_job)
        return;
    m_job->cancelled = true;
    m_job->thread.join();
    m_job.reset();
}

void GuideLoader::look()
{
    std::optional<GuideReport> report = m_job->takeReport();
    if (!report) {
        setProgress(m_job->progress.load(std::memory_order_relaxed));
        return;
    }
    stop();
    m_report = std::move(*report);
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
