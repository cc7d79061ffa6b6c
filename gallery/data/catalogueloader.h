// SPDX-License-Identifier: MIT
#ifndef GALLERY_CATALOGUELOADER_H
#define GALLERY_CATALOGUELOADER_H

#include "gallery/data/cataloguereader.h"

#include <QtCore/qobject.h>

#include <memory>

namespace gallery {

/*!
    Reads a catalogue file in a thread of its own and hands the result to the thread that the loader lives in.
    Destroying the loader, or loading another file, waits for a reading that is under way, which the limits of a
    catalogue keep short.
*/
class CatalogueLoader : public QObject
{
    Q_OBJECT
    /*! Whether a file is being read. */
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)
public:
    explicit CatalogueLoader(QObject *parent = nullptr);
    ~CatalogueLoader() override;

    /*!
        Starts to read \a fileName with the texts in \a language, as readCatalogue() does. Always ends with
        finished(), never from within this function, unless another load() comes first.
    */
    void load(const QString &fileName, const QString &language);

    bool isLoading() const { return m_job != nullptr; }
    /*! What the last finished reading gave. */
    CatalogueReport report() const { return m_report; }
    Catalogue catalogue() const { return m_report.catalogue; }

Q_SIGNALS:
    void loadingChanged();
    /*! The file is read, or cannot be: see report(). */
    void finished();

private:
    struct Job;
    void finish();

    std::unique_ptr<Job> m_job;
    quint64 m_number = 0; // of the present reading; a replaced one's number does not come again
    CatalogueReport m_report;
};

} // namespace gallery

#endif // GALLERY_CATALOGUELOADER_H
