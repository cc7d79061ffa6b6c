// SPDX-License-Identifier: MIT
#ifndef GALLERY_CATALOGUEPARSER_H
#define GALLERY_CATALOGUEPARSER_H

#include "gallery/data/cataloguereader.h"

#include <QtCore/qjsonobject.h>

namespace gallery {

/*! Makes the entries of a catalogue of its JSON object. The report gets the problems and the counts. */
class CatalogueParser
{
    Q_DISABLE_COPY_MOVE(CatalogueParser)
public:
    /*! \a fileName is where relative addresses of pictures start; \a report outlives the parser. */
    CatalogueParser(const QString &fileName, const QString &language, CatalogueReport *report);

    QList<CatalogueEntry> read(const QJsonObject &root);

private:
    /*! An object of the file, and the keys that lead to it. */
    struct Node
    {
        QJsonObject object;
        QString path;

        QJsonValue value(const char *key) const { return object.value(QLatin1String(key)); }
        QString pathOf(const QString &key) const { return path.isEmpty() ? key : path + u'.' + key; }
        QString pathOf(const char *key) const { return pathOf(QLatin1String(key)); }
    };
    struct Range
    {
        double least = 0;
        double most = 0;
        const char *what = nullptr;
    };

    /*! What reads one kind of entry, for episodes of the series with this index. */
    using ReadEntry = void (CatalogueParser::*)(const Node &node, int series);

    void readList(const Node &parent, const char *key, int series, ReadEntry readEntry);
    void readFilm(const Node &node, int series);
    void readSeries(const Node &node, int series);
    void readEpisode(const Node &node, int series);
    bool readCommon(const Node &node, CatalogueEntry *entry);
    void readWatched(const Node &node, CatalogueEntry *entry);
    void completePictures(CatalogueEntry *entry) const;
    void checkKeys(const Node &node, const QStringList &known);

    QString text(const Node &node, const char *key, int longest);
    QString text(const QJsonValue &value, const QString &path, int longest);
    QString chosenText(const Node &texts);
    QString genre(const Node &node);
    double number(const Node &node, const char *key, const Range &range);
    int wholeNumber(const Node &node, const char *key, const Range &range);
    QDate date(const Node &node, const char *key);
    bool flag(const Node &node, const char *key);
    QUrl address(const Node &node, const char *key);
    QUrl pathAddress(const QString &path) const;

    void unexpected(const QString &path, const QString &expected, const QJsonValue &found,
                    const char *outcome);
    void problem(const QString &path, const QString &text);

    QString m_folder;
    QString m_language;
    CatalogueReport *m_report = nullptr;
    QJsonObject m_genres;
    QList<CatalogueEntry> m_entries;
};

} // namespace gallery

#endif // GALLERY_CATALOGUEPARSER_H
