// SPDX-License-Identifier: MIT
#include "gallery/data/catalogueloader.h"

#include <thread>

namespace gallery {

// A reading and its thread, which touches nothing of the loader but its event queue.
struct CatalogueLoader::Job
{
    Job(CatalogueLoader *loader, const QString &fileName, const QString &language)
        : m_thread([this, loader, number = loader->m_number, fileName, language] {
            m_report = readCatalogue(fileName, language);
            const auto finish = [loader, number] {
                if (loader->m_number == number)
                    loader->finish();
            };
            QMetaObject::invokeMethod(loader, finish, Qt::QueuedConnection);
        })
    {
    }
    Q_DISABLE_COPY_MOVE(Job)
    ~Job()
    {
        if (m_thread.joinable())
            m_thread.join();
    }
    CatalogueReport takeReport()
    {
        m_thread.join();
        return std::move(m_report);
    }

private:
    CatalogueReport m_report; // the thread's until it is joined
    std::thread m_thread; // the last, because it uses the report from its start
};

CatalogueLoader::CatalogueLoader(QObject *parent)
    : QObject(parent)
{
}

CatalogueLoader::~CatalogueLoader() = default;

void CatalogueLoader::load(const QString &fileName, const QString &language)
{
    const bool wasLoading = isLoading();
    m_job.reset();
    ++m_number;
    m_job = std::make_unique<Job>(this, fileName, language);
    if (!wasLoading)
        Q_EMIT loadingChanged();
}

void CatalogueLoader::finish()
{
    m_report = m_job->takeReport();
    m_job.reset();
    Q_EMIT loadingChanged();
    Q_EMIT finished();
}

} // namespace gallery
