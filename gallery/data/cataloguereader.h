// SPDX-License-Identifier: MIT
#ifndef GALLERY_CATALOGUEREADER_H
#define GALLERY_CATALOGUEREADER_H

#include "gallery/data/catalogue.h"

namespace gallery {

/*! Something in a catalogue file that is not as it should be; the rest was read. */
struct CatalogueProblem
{
    /*! Where, as the keys that lead there: "films[3].duration". */
    QString path;
    /*! What was expected, what is there, and what was done about it. */
    QString text;
};

/*! What came of reading a catalogue file. The file's format is told in docs/catalogue.md. */
struct CatalogueReport
{
    enum class Outcome {
        Complete, /*!< read, although there may be problems */
        Unreadable /*!< no catalogue: there is no such file, or it is none; the catalogue is empty */
    };

    /*! How many problems are kept with their text. */
    static constexpr int maximumProblems = 20;
    /*! The largest file that is read, in bytes. */
    static constexpr qint64 maximumFileSize = 8 * 1024 * 1024;
    /*! The most films, series and episodes that are kept, together. */
    static constexpr int maximumEntries = 5000;

    Outcome outcome = Outcome::Complete;
    Catalogue catalogue;
    /*! For Unreadable one line that names the file and what is wrong; else empty. */
    QString error;
    /*! The first problems, in the order in which they were found. */
    QList<CatalogueProblem> problems;
    /*! All problems, also those that are not kept. */
    qint64 problemCount = 0;
    /*! Entries that are not in the catalogue because they cannot be used or because there are too many. */
    qint64 skippedEntries = 0;

    /*!
        Everything that is to be told about the file \a fileName, one line each: the error, or the problems and
        how many more there are.
    */
    QStringList messages(const QString &fileName) const;
};

/*!
    Reads the catalogue file \a fileName. Of texts in several languages the one in \a language ("de", "pt-BR") is
    taken, else the English one, else any. Blocks; for any thread.
*/
CatalogueReport readCatalogue(const QString &fileName, const QString &language);

/*! Reads a catalogue from the bytes \a json. \a name stands for the file in messages and addresses of pictures. */
CatalogueReport readCatalogue(const QByteArray &json, const QString &name, const QString &language);

/*!
    The catalogue that is shown when no file is given, in \a language ("en", "de", "ru" or "ar"), else in English.
    Whatever day \a today is, the same episodes are still to come: the file's days are counted from 2026-01-01.
*/
Catalogue ownCatalogue(const QString &language, QDate today);

} // namespace gallery

#endif // GALLERY_CATALOGUEREADER_H
