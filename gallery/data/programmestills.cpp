// SPDX-License-Identifier: MIT
#include "gallery/data/programmestills.h"

#include <QtCore/qfile.h>
#include <QtCore/qhash.h>
#include <QtCore/qjsondocument.h>
#include <QtCore/qjsonobject.h>

#include <array>
#include <numeric>
#include <utility>

namespace gallery {

namespace {

QUrl still(QStringView name)
{
    return QUrl(QStringLiteral("qrc:/resources/pictures/still_%1.jpg").arg(name));
}

// The categories of our own guide in all its languages, in small letters.
QHash<QString, QString> ownCategories()
{
    QHash<QString, QString> names;
    QFile file(QStringLiteral(":/gallery/data/ownguide.json"));
    if (!file.open(QIODevice::ReadOnly))
        return names;
    const QJsonObject categories =
            QJsonDocument::fromJson(file.readAll()).object().value(QLatin1String("categories")).toObject();
    for (auto category = categories.constBegin(); category != categories.constEnd(); ++category) {
        const QJsonObject texts = category.value().toObject();
        for (const QJsonValue &text : texts)
            names.insert(text.toString().toLower(), category.key());
    }
    return names;
}

// Parts of the words that guides use. Earlier ones win: "sports news" is sport, "children's film" for children.
QStringView nameByWord(const QString &category)
{
    static constexpr auto words = std::to_array<std::pair<QStringView, QStringView>>({
            { u"sport", u"sport" },         { u"football", u"sport" },     { u"fußball", u"sport" },
            { u"футбол", u"sport" },        { u"спорт", u"sport" },        { u"tennis", u"sport" },
            { u"child", u"children" },      { u"kids", u"children" },      { u"kinder", u"children" },
            { u"cartoon", u"children" },    { u"дет", u"children" },       { u"мульт", u"children" },
            { u"أطفال", u"children" },      { u"weather", u"weather" },    { u"wetter", u"weather" },
            { u"погод", u"weather" },       { u"business", u"business" },  { u"wirtschaft", u"business" },
            { u"финанс", u"business" },     { u"news", u"news" },          { u"nachricht", u"news" },
            { u"новост", u"news" },         { u"أخبار", u"news" },         { u"quiz", u"quiz" },
            { u"game", u"quiz" },           { u"викторин", u"quiz" },      { u"music", u"music" },
            { u"musik", u"music" },         { u"concert", u"music" },      { u"konzert", u"music" },
            { u"музык", u"music" },         { u"cook", u"food" },          { u"food", u"food" },
            { u"koch", u"food" },           { u"кулин", u"food" },         { u"travel", u"travel" },
            { u"reise", u"travel" },        { u"путешеств", u"travel" },   { u"nature", u"nature" },
            { u"natur", u"nature" },        { u"tier", u"nature" },        { u"природ", u"nature" },
            { u"history", u"history" },     { u"geschichte", u"history" }, { u"истор", u"history" },
            { u"science", u"science" },     { u"wissen", u"science" },     { u"наук", u"science" },
            { u"documentary", u"science" }, { u"doku", u"science" },       { u"series", u"series" },
            { u"serie", u"series" },        { u"сериал", u"series" },      { u"talk", u"talk" },
            { u"movie", u"film" },          { u"film", u"film" },          { u"фильм", u"film" },
            { u"кино", u"film" },
    });
    for (const auto &[word, name] : words) {
        if (category.contains(word))
            return name;
    }
    return {};
}

} // namespace

QUrl programmeStill(const QString &category, const QString &title)
{
    static const QHash<QString, QString> own = ownCategories();
    const QString small = category.simplified().toLower();
    const auto known = own.constFind(small);
    if (known != own.constEnd())
        return still(*known);
    const QStringView name = nameByWord(small);
    if (!name.isEmpty())
        return still(name);
    static constexpr std::array<QStringView, 4> neutral { u"nature", u"travel", u"series", u"music" };
    // qHash() differs between processors; pictures of a screen shall not.
    const uint sum = std::accumulate(title.cbegin(), title.cend(), 0U,
                                     [](uint before, QChar c) { return before + c.unicode(); });
    return still(neutral[sum % neutral.size()]);
}

} // namespace gallery
