// SPDX-License-Identifier: MIT
#include "gallery/data/catalogueparser.h"

#include <QtCore/qdir.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qjsonarray.h>

#include <algorithm>
#include <cmath>

namespace gallery {

namespace {

constexpr int longestLine = 300; // characters of a title and of other texts of one line
constexpr int longestDescription = 4000;
constexpr int longestRating = 12;
constexpr int shownOfValue = 40; // characters of a wrong value in a message

constexpr auto ignored = "it is ignored";
constexpr auto entryLeftOut = "the entry is left out";

QString describe(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QJsonValue::String:
        return u'"' + value.toString().left(shownOfValue) + u'"';
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("nothing");
}

QStringList keysOf(std::initializer_list<const char *> more)
{
    QStringList keys = { QStringLiteral("title"),       QStringLiteral("subtitle"), QStringLiteral("status"),
                         QStringLiteral("description"), QStringLiteral("rating"),   QStringLiteral("year"),
                         QStringLiteral("genre"),       QStringLiteral("picture"),  QStringLiteral("still"),
                         QStringLiteral("logo"),        QStringLiteral("favourite") };
    for (const char *key : more)
        keys.append(QLatin1String(key));
    return keys;
}

QString subtitleOf(const CatalogueEntry &entry)
{
    QStringList parts;
    if (entry.year > 0)
        parts.append(QString::number(entry.year));
    if (!entry.genre.isEmpty())
        parts.append(entry.genre);
    return parts.join(QStringLiteral(" · "));
}

} // namespace

CatalogueParser::CatalogueParser(const QString &fileName, const QString &language, CatalogueReport *report)
    : m_folder(QFileInfo(fileName).absolutePath())
    , m_language(language.toLower().replace(u'_', u'-'))
    , m_report(report)
{
}

QList<CatalogueEntry> CatalogueParser::read(const QJsonObject &root)
{
    const Node node { root, QString() };
    checkKeys(node, { QStringLiteral("films"), QStringLiteral("series"), QStringLiteral("genres") });
    const QJsonValue genres = node.value("genres");
    if (genres.isObject())
        m_genres = genres.toObject();
    else if (!genres.isUndefined())
        unexpected(QStringLiteral("genres"), QStringLiteral("an object of texts"), genres, ignored);
    readList(node, "films", -1, &CatalogueParser::readFilm);
    readList(node, "series", -1, &CatalogueParser::readSeries);
    return m_entries;
}

void CatalogueParser::readList(const Node &parent, const char *key, int series, ReadEntry readEntry)
{
    const QJsonValue list = parent.value(key);
    const QString path = parent.pathOf(key);
    if (list.isUndefined())
        return;
    if (!list.isArray()) {
        unexpected(path, QStringLiteral("a list"), list, ignored);
        return;
    }
    const QJsonArray array = list.toArray();
    for (int i = 0; i < array.size(); ++i) {
        const QString entryPath = QStringLiteral("%1[%2]").arg(path).arg(i);
        if (m_entries.size() >= CatalogueReport::maximumEntries) {
            problem(entryPath, QStringLiteral("a catalogue has at most %1 entries; this and those after it "
                                              "are left out")
                                       .arg(CatalogueReport::maximumEntries));
            m_report->skippedEntries += array.size() - i;
            return;
        }
        if (array.at(i).isObject()) {
            (this->*readEntry)({ array.at(i).toObject(), entryPath }, series);
        } else {
            unexpected(entryPath, QStringLiteral("an object"), array.at(i), entryLeftOut);
            ++m_report->skippedEntries;
        }
    }
}

void CatalogueParser::readFilm(const Node &node, int /*series*/)
{
    static const QStringList known = keysOf({ "duration", "position" });
    checkKeys(node, known);
    CatalogueEntry entry;
    if (!readCommon(node, &entry))
        return;
    readWatched(node, &entry);
    if (entry.subtitle.isEmpty())
        entry.subtitle = subtitleOf(entry);
    completePictures(&entry);
    m_entries.append(entry);
}

void CatalogueParser::readSeries(const Node &node, int /*series*/)
{
    static const QStringList known = keysOf({ "episodes" });
    checkKeys(node, known);
    CatalogueEntry entry;
    entry.kind = CatalogueEntry::Kind::Series;
    if (!readCommon(node, &entry))
        return;
    if (entry.subtitle.isEmpty())
        entry.subtitle = subtitleOf(entry);
    completePictures(&entry);
    m_entries.append(entry);
    readList(node, "episodes", int(m_entries.size()) - 1, &CatalogueParser::readEpisode);
}

// What an episode does not say about itself is as its series has it.
void CatalogueParser::readEpisode(const Node &node, int series)
{
    static const QStringList known = keysOf({ "duration", "position", "season", "episode", "release" });
    checkKeys(node, known);
    const CatalogueEntry whole = m_entries.at(series);
    CatalogueEntry entry;
    entry.kind = CatalogueEntry::Kind::Episode;
    entry.series = series;
    entry.rating = whole.rating;
    entry.genre = whole.genre;
    entry.year = whole.year;
    entry.logo = whole.logo;
    if (!readCommon(node, &entry))
        return;
    readWatched(node, &entry);
    entry.season = wholeNumber(node, "season", { 1, 999, "a whole number from 1 to 999" });
    entry.episode = wholeNumber(node, "episode", { 1, 9999, "a whole number from 1 to 9999" });
    entry.release = date(node, "release");
    if (entry.subtitle.isEmpty())
        entry.subtitle = whole.title;
    if (entry.still.isEmpty())
        entry.still = entry.picture.isEmpty() ? whole.still : entry.picture;
    if (entry.picture.isEmpty())
        entry.picture = whole.picture;
    completePictures(&entry);
    m_entries.append(entry);
}

// False when there is no title, without which an entry cannot be shown.
bool CatalogueParser::readCommon(const Node &node, CatalogueEntry *entry)
{
    const qint64 before = m_report->problemCount;
    entry->title = text(node, "title", longestLine).simplified();
    if (entry->title.isEmpty()) {
        if (m_report->problemCount == before)
            unexpected(node.pathOf("title"), QStringLiteral("a text"), node.value("title"), entryLeftOut);
        ++m_report->skippedEntries;
        return false;
    }
    const auto takeOver = [](auto *member, const auto &value) {
        if (value != std::decay_t<decltype(value)>())
            *member = value;
    };
    entry->subtitle = text(node, "subtitle", longestLine).simplified();
    entry->status = text(node, "status", longestLine).simplified();
    entry->description = text(node, "description", longestDescription).trimmed();
    takeOver(&entry->rating, text(node, "rating", longestRating).simplified());
    takeOver(&entry->genre, genre(node));
    takeOver(&entry->year, wholeNumber(node, "year", { 1800, 2200, "a year from 1800 to 2200" }));
    takeOver(&entry->logo, address(node, "logo"));
    entry->picture = address(node, "picture");
    entry->still = address(node, "still");
    entry->favourite = flag(node, "favourite");
    return true;
}

void CatalogueParser::readWatched(const Node &node, CatalogueEntry *entry)
{
    const Range seconds { 0, 604800, "seconds from 0 to 604800" };
    entry->duration = number(node, "duration", seconds);
    entry->position = number(node, "position", seconds);
}

void CatalogueParser::completePictures(CatalogueEntry *entry) const
{
    if (entry->picture.isEmpty())
        entry->picture = entry->still;
    if (entry->still.isEmpty())
        entry->still = entry->picture;
}

void CatalogueParser::checkKeys(const Node &node, const QStringList &known)
{
    for (auto value = node.object.constBegin(); value != node.object.constEnd(); ++value) {
        if (!known.contains(value.key()))
            problem(node.pathOf(value.key().left(shownOfValue)),
                    QStringLiteral("this key is not known, expected one of %1; it is ignored")
                            .arg(known.join(QLatin1String(", "))));
    }
}

QString CatalogueParser::text(const Node &node, const char *key, int longest)
{
    return text(node.value(key), node.pathOf(key), longest);
}

// A text is a string, or an object with one string for each language.
QString CatalogueParser::text(const QJsonValue &value, const QString &path, int longest)
{
    if (value.isUndefined())
        return {};
    if (!value.isString() && !value.isObject()) {
        unexpected(path, QStringLiteral("a text, or texts by language"), value, ignored);
        return {};
    }
    const QString found = value.isString() ? value.toString() : chosenText({ value.toObject(), path });
    if (found.size() <= longest)
        return found;
    problem(path, QStringLiteral("expected at most %1 characters, found %2; the rest is left out")
                          .arg(longest)
                          .arg(found.size()));
    return found.left(longest);
}

QString CatalogueParser::chosenText(const Node &texts)
{
    QString best;
    int bestRank = -1;
    for (auto value = texts.object.constBegin(); value != texts.object.constEnd(); ++value) {
        if (!value.value().isString()) {
            unexpected(texts.pathOf(value.key().left(shownOfValue)), QStringLiteral("a text"), value.value(),
                       ignored);
            continue;
        }
        const QString language = value.key().toLower().replace(u'_', u'-');
        const int rank = language == m_language                                           ? 3
                         : language.section(u'-', 0, 0) == m_language.section(u'-', 0, 0) ? 2
                         : language == QLatin1String("en")                                ? 1
                                                                                          : 0;
        const QString candidate = value.value().toString();
        if (rank <= bestRank || candidate.trimmed().isEmpty())
            continue;
        best = candidate;
        bestRank = rank;
    }
    return best;
}

// A word of "genres" stands for its text there; any other is shown as it is.
QString CatalogueParser::genre(const Node &node)
{
    const QJsonValue value = node.value("genre");
    const QString word = value.toString();
    if (!value.isString() || !m_genres.contains(word))
        return text(node, "genre", longestLine).simplified();
    return text(m_genres.value(word), QLatin1String("genres.") + word, longestLine).simplified();
}

double CatalogueParser::number(const Node &node, const char *key, const Range &range)
{
    const QJsonValue value = node.value(key);
    if (value.isUndefined())
        return 0;
    const double number = value.toDouble(-1);
    if (value.isDouble() && number >= range.least && number <= range.most)
        return number;
    unexpected(node.pathOf(key), QLatin1String(range.what), value, ignored);
    return 0;
}

int CatalogueParser::wholeNumber(const Node &node, const char *key, const Range &range)
{
    const double value = number(node, key, range);
    const int whole = int(value);
    if (value == whole)
        return whole;
    unexpected(node.pathOf(key), QLatin1String(range.what), node.value(key), ignored);
    return 0;
}

QDate CatalogueParser::date(const Node &node, const char *key)
{
    const QJsonValue value = node.value(key);
    if (value.isUndefined())
        return {};
    // Qt takes any text for a day that begins as one.
    const QString text = value.toString();
    const QDate date = text.size() == 10 ? QDate::fromString(text, Qt::ISODate) : QDate();
    if (!date.isValid())
        unexpected(node.pathOf(key), QStringLiteral("a day such as \"2026-03-31\""), value, ignored);
    return date;
}

bool CatalogueParser::flag(const Node &node, const char *key)
{
    const QJsonValue value = node.value(key);
    if (!value.isUndefined() && !value.isBool())
        unexpected(node.pathOf(key), QStringLiteral("true or false"), value, ignored);
    return value.toBool();
}

QUrl CatalogueParser::address(const Node &node, const char *key)
{
    const QJsonValue value = node.value(key);
    if (value.isUndefined())
        return {};
    static const QStringList schemes = { QStringLiteral("http"), QStringLiteral("https"),
                                         QStringLiteral("file"), QStringLiteral("qrc"),
                                         QStringLiteral("data") };
    const QString text = value.toString().trimmed();
    if (!text.isEmpty()) {
        const QUrl url(text);
        if (schemes.contains(url.scheme()))
            return url;
        if (url.scheme().isEmpty())
            return pathAddress(text);
    }
    unexpected(node.pathOf(key),
               QStringLiteral("a path, or an address that begins with http, https, file, qrc or data"), value,
               ignored);
    return {};
}

// Relative paths start at the catalogue's folder, which may be in the program's resources.
QUrl CatalogueParser::pathAddress(const QString &path) const
{
    const QString whole = QDir::cleanPath(QFileInfo(path).isAbsolute() ? path : m_folder + u'/' + path);
    if (!whole.startsWith(u':'))
        return QUrl::fromLocalFile(whole);
    QUrl url;
    url.setScheme(QStringLiteral("qrc"));
    url.setPath(whole.mid(1));
    return url;
}

void CatalogueParser::unexpected(const QString &path, const QString &expected, const QJsonValue &found,
                                 const char *outcome)
{
    problem(path, QStringLiteral("expected %1, found %2; %3")
                          .arg(expected, describe(found), QLatin1String(outcome)));
}

void CatalogueParser::problem(const QString &path, const QString &text)
{
    ++m_report->problemCount;
    if (m_report->problems.size() < CatalogueReport::maximumProblems)
        m_report->problems.append({ path, text });
}

} // namespace gallery
