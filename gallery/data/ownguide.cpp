// SPDX-License-Identifier: MIT
#include "gallery/data/ownguide.h"

#include "gallery/data/guidebuilder.h"

#include <QtCore/qfile.h>
#include <QtCore/qhash.h>
#include <QtCore/qjsonarray.h>
#include <QtCore/qjsondocument.h>
#include <QtCore/qjsonobject.h>

#include <algorithm>
#include <vector>

namespace gallery {

namespace {

QString localized(const QJsonValue &texts, const QString &language)
{
    const QString text = texts[language].toString();
    return text.isEmpty() ? texts[QLatin1String("en")].toString() : text;
}

/*! Writes one channel's day, which the template gives as start times and programmes, on any date. */
class Writer
{
public:
    Writer(const QJsonObject &pattern, const QString &language, const TimeSpan &wanted, GuideBuilder *guide)
        : m_programmes(pattern[QLatin1String("programmes")].toObject())
        , m_categories(pattern[QLatin1String("categories")].toObject())
        , m_language(language)
        , m_wanted(wanted)
        , m_guide(guide)
    {
    }

    void writeChannel(const QJsonValue &channel)
    {
        const QString id = channel[QLatin1String("id")].toString();
        Channel shown;
        shown.id = id;
        shown.name = localized(channel[QLatin1String("name")], m_language);
        shown.number = channel[QLatin1String("number")].toString();
        shown.group = localized(channel[QLatin1String("group")], m_language);
        shown.quality = channel[QLatin1String("quality")].toString();
        shown.locked = channel[QLatin1String("locked")].toBool();
        const QString logo = channel[QLatin1String("logo")].toString();
        if (!logo.isEmpty())
            shown.icon = QUrl(QStringLiteral("qrc:/resources/pictures/%1.png").arg(logo));
        m_guide->addChannel(shown);
        const std::vector<Start> starts = startsOf(entriesOf(channel[QLatin1String("day")].toArray()));
        for (size_t i = 0; i + 1 < starts.size(); ++i) {
            const TimeSpan time { starts[i].time, starts[i + 1].time };
            if (time.stop > m_wanted.start && time.start < m_wanted.stop)
                writeProgramme(id, time, starts[i]);
        }
    }

private:
    struct Start
    {
        qint64 time;
        QString programme;
        qint64 episode;
    };

    /*! What is on at a time of each day. */
    struct Entry
    {
        QTime time;
        QString programme;
    };

    static std::vector<Entry> entriesOf(const QJsonArray &day)
    {
        std::vector<Entry> entries;
        entries.reserve(size_t(day.size()));
        for (const QJsonValue &entry : day)
            entries.push_back({ QTime::fromString(entry[0].toString(), Qt::ISODate), entry[1].toString() });
        return entries;
    }

    // Two days more than wanted, because a programme of the day before may run over midnight, and the last
    // one ends where the next day's first one starts.
    std::vector<Start> startsOf(const std::vector<Entry> &day) const
    {
        std::vector<Start> starts;
        const QDate last = QDateTime::fromSecsSinceEpoch(m_wanted.stop).date();
        for (QDate date = QDateTime::fromSecsSinceEpoch(m_wanted.start).date().addDays(-1); date <= last;
             date = date.addDays(1)) {
            // The same date has the same episodes in a guide that begins on another day.
            qint64 episode = date.toJulianDay() * (qint64(day.size()) + 1);
            for (const Entry &entry : day)
                starts.push_back(
                        { QDateTime(date, entry.time).toSecsSinceEpoch(), entry.programme, episode++ });
        }
        // When the clocks go forward, times that the day does not have come to lie after later ones.
        std::stable_sort(starts.begin(), starts.end(),
                         [](const Start &a, const Start &b) { return a.time < b.time; });
        return starts;
    }

    struct Texts
    {
        QString title;
        QStringList subtitles;
        QString description;
        QString category;
    };

    // A programme is on many times; its texts are looked for once.
    const Texts &textsOf(const QString &programme)
    {
        const auto known = m_texts.constFind(programme);
        if (known != m_texts.constEnd())
            return *known;
        const QJsonValue json = m_programmes[programme];
        Texts texts;
        texts.title = localized(json[QLatin1String("title")], m_language);
        const QJsonArray subtitles = json[QLatin1String("subtitles")].toArray();
        for (const QJsonValue &subtitle : subtitles)
            texts.subtitles.append(localized(subtitle, m_language));
        texts.description = localized(json[QLatin1String("description")], m_language);
        texts.category = localized(m_categories[json[QLatin1String("category")].toString()], m_language);
        return *m_texts.insert(programme, texts);
    }

    void writeProgramme(const QString &channelId, const TimeSpan &time, const Start &start)
    {
        const Texts &texts = textsOf(start.programme);
        NewProgramme programme;
        programme.channelId = channelId;
        programme.start = time.start;
        programme.stop = time.stop;
        programme.title = texts.title;
        if (!texts.subtitles.isEmpty())
            programme.subTitle = texts.subtitles.at(start.episode % texts.subtitles.size());
        programme.description = texts.description;
        programme.category = texts.category;
        m_guide->addProgramme(programme);
    }

    QJsonObject m_programmes;
    QJsonObject m_categories;
    QHash<QString, Texts> m_texts;
    QString m_language;
    TimeSpan m_wanted;
    GuideBuilder *m_guide = nullptr;
};

} // namespace

Guide ownGuide(const QDateTime &now, const QString &language)
{
    QFile file(QStringLiteral(":/gallery/data/ownguide.json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject pattern = QJsonDocument::fromJson(file.readAll()).object();
    const QDate today = now.toLocalTime().date();
    const TimeSpan wanted { localDay(today.addDays(-ownGuideDays)).start,
                            localDay(today.addDays(ownGuideDays)).stop };
    GuideBuilder builder;
    Writer writer(pattern, language.left(2).toLower(), wanted, &builder);
    const QJsonArray channels = pattern[QLatin1String("channels")].toArray();
    for (const QJsonValue &channel : channels)
        writer.writeChannel(channel);
    return builder.take();
}

} // namespace gallery
