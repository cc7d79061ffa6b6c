// SPDX-License-Identifier: MIT
#ifndef GALLERY_CATALOGUE_H
#define GALLERY_CATALOGUE_H

#include <QtCore/qdatetime.h>
#include <QtCore/qlist.h>
#include <QtCore/qmetatype.h>
#include <QtCore/qstring.h>
#include <QtCore/qurl.h>

#include <memory>

namespace gallery {

/*! A film, a series or an episode of one, with its texts in the language that was asked for. */
struct CatalogueEntry
{
    enum class Kind { Film, Series, Episode };

    Kind kind = Kind::Film;
    /*! Never empty. */
    QString title;
    /*! What the file gives; else the series' title for an episode, year and genre ("2021 · Drama") for others. */
    QString subtitle;
    /*! A short note such as "New", or empty. */
    QString status;
    QString description;
    /*! The age that it is made for, as it is shown ("12+"), or empty. */
    QString rating;
    QString genre;
    /*! 0 when not known. */
    int year = 0;
    /*! Seconds; 0 when not known, as for a series. */
    double duration = 0;
    /*! How far it was watched, in seconds; may be more than the duration. */
    double position = 0;
    bool favourite = false;
    /*! An upright picture, or whatever picture there is. http, https, file, qrc or data; empty when there is none. */
    QUrl picture;
    /*! A wide picture; the same as \c picture when there is no other. */
    QUrl still;
    /*! The right holder's mark, or empty. */
    QUrl logo;
    /*! For episodes: from 1, 0 when not known. */
    int season = 0;
    int episode = 0;
    /*! For episodes: the day on which it comes out; invalid when that is not told. */
    QDate release;
    /*! For episodes: the index of their series in the catalogue; else -1. */
    int series = -1;

    /*! Begun and not watched to the end. */
    bool isStarted() const { return position > 0 && position < duration; }

    friend bool operator==(const CatalogueEntry &, const CatalogueEntry &) = default;
};

/*!
    Films, series and episodes in the order of their file: the films, then each series followed by its episodes.
    A value that never changes; copies share the data and may be read in any thread.
*/
class Catalogue
{
public:
    Catalogue();
    explicit Catalogue(QList<CatalogueEntry> entries);

    /*! True when both share their data, as copies do. */
    bool isSameAs(const Catalogue &other) const { return m_entries == other.m_entries; }

    bool isEmpty() const { return count() == 0; }
    int count() const { return int(m_entries->size()); }
    /*! Entries are addressed by index, from 0; asking for one that does not exist is an error (asserted). */
    const CatalogueEntry &entry(int index) const;

private:
    std::shared_ptr<const QList<CatalogueEntry>> m_entries;
};

} // namespace gallery

Q_DECLARE_METATYPE(gallery::Catalogue)

#endif // GALLERY_CATALOGUE_H
