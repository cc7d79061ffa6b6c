// SPDX-License-Identifier: MIT
#include "gallery/data/cataloguereader.h"

#include "gallery/data/catalogueparser.h"

#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qjsondocument.h>

namespace gallery {

namespace {

CatalogueReport unreadable(const QString &name, const QString &reason)
{
    CatalogueReport report;
    report.outcome = CatalogueReport::Outcome::Unreadable;
    report.error = name + QLatin1String(": ") + reason
                   + QLatin1String("; expected a catalogue in JSON format with \"films\" or \"series\"");
    return report;
}

QString tooLarge()
{
    return QStringLiteral("is larger than %1 MB").arg(CatalogueReport::maximumFileSize / (1024 * 1024));
}

QString place(const QByteArray &text, qsizetype offset)
{
    const QByteArray before = text.left(std::max<qsizetype>(offset, 0));
    const qsizetype column = before.size() - (before.lastIndexOf('\n') + 1) + 1;
    return QStringLiteral("line %1, column %2: ").arg(before.count('\n') + 1).arg(column);
}

} // namespace

QStringList CatalogueReport::messages(const QString &fileName) const
{
    if (outcome == Outcome::Unreadable)
        return { error };
    QStringList lines;
    for (const CatalogueProblem &found : problems)
        lines.append(fileName + QLatin1String(": ") + found.path + QLatin1String(": ") + found.text);
    if (problemCount > problems.size())
        lines.append(
                QStringLiteral("%1: and %2 more problems").arg(fileName).arg(problemCount - problems.size()));
    return lines;
}

CatalogueReport readCatalogue(const QString &fileName, const QString &language)
{
    const QFileInfo info(fileName);
    if (!info.exists())
        return unreadable(fileName, QStringLiteral("no such file"));
    if (info.isDir())
        return unreadable(fileName, QStringLiteral("is a folder"));
    // Reading a pipe or a device might never end.
    if (!info.isFile())
        return unreadable(fileName, QStringLiteral("is no ordinary file"));
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(fileName, file.errorString());
    const QByteArray json = file.read(CatalogueReport::maximumFileSize + 1);
    return readCatalogue(json, fileName, language);
}

CatalogueReport readCatalogue(const QByteArray &json, const QString &name, const QString &language)
{
    if (json.size() > CatalogueReport::maximumFileSize)
        return unreadable(name, tooLarge());
    if (json.trimmed().isEmpty())
        return unreadable(name, QStringLiteral("the file is empty"));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return unreadable(name, place(json, error.offset) + error.errorString());
    const QJsonObject root = document.object();
    if (!root.contains(QLatin1String("films")) && !root.contains(QLatin1String("series")))
        return unreadable(name, QStringLiteral("is no catalogue"));
    CatalogueReport report;
    CatalogueParser parser(name, language, &report);
    report.catalogue = Catalogue(parser.read(root));
    return report;
}

Catalogue ownCatalogue(const QString &language, QDate today)
{
    const Catalogue written = readCatalogue(QStringLiteral(":/gallery/data/owncatalogue.json"), language)
                                      .catalogue;
    const qint64 days = QDate(2026, 1, 1).daysTo(today);
    QList<CatalogueEntry> entries;
    for (int i = 0; i < written.count(); ++i) {
        entries.append(written.entry(i));
        QDate &release = entries.last().release;
        if (release.isValid())
            release = release.addDays(days);
    }
    return Catalogue(entries);
}

} // namespace gallery
