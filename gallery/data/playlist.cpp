// SPDX-License-Identifier: MIT
#include "gallery/data/playlist.h"

#include <QtCore/qstringlist.h>

#include <algorithm>

namespace gallery {

namespace {

QString qualityOfWord(const QString &word)
{
    static const QStringList known = { QStringLiteral("8K"),  QStringLiteral("UHD"), QStringLiteral("4K"),
                                       QStringLiteral("FHD"), QStringLiteral("HD"),  QStringLiteral("SD") };
    QStringView bare = word;
    if (bare.size() > 2
        && ((bare.startsWith(u'(') && bare.endsWith(u')')) || (bare.startsWith(u'[') && bare.endsWith(u']'))))
        bare = bare.mid(1, bare.size() - 2);
    const QString upper = bare.toString().toUpper();
    return known.contains(upper) ? upper : QString();
}

} // namespace

QString channelQuality(const QString &name, const QString &group)
{
    const QStringList words = name.simplified().split(u' ');
    const QString told = words.size() > 1 ? qualityOfWord(words.last()) : QString();
    if (!told.isEmpty())
        return told;
    const QStringList groupWords = group.simplified().split(u' ');
    const auto found = std::find_if(groupWords.cbegin(), groupWords.cend(),
                                    [](const QString &word) { return !qualityOfWord(word).isEmpty(); });
    return found != groupWords.cend() ? qualityOfWord(*found) : QString();
}

QString withoutQuality(const QString &name)
{
    const bool told = !channelQuality(name, {}).isEmpty();
    return told ? name.simplified().section(u' ', 0, -2) : name;
}

bool isChannelNumber(QStringView text)
{
    int separators = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool separator = (c == u'-' || c == u'.') && i > 0 && i < text.size() - 1;
        if (separator)
            ++separators;
        else if (c < u'0' || c > u'9')
            return false;
    }
    return !text.isEmpty() && separators <= 1;
}

} // namespace gallery
