// SPDX-License-Identifier: MIT
#include "gallery/data/xmltvtime.h"

#include <QtCore/qdatetime.h>

#include <algorithm>
#include <array>

namespace gallery {

namespace {

struct NamedZone
{
    const char *name;
    int minutes;
};

// Sorted by name. Names that stand for several zones of different offsets (IST, CST in Asia) have the
// meaning that they have in guide files of Europe and North America, or are left out.
constexpr std::array zones = {
    NamedZone { "ACDT", 630 },  NamedZone { "ACST", 570 }, NamedZone { "ADT", -180 },
    NamedZone { "AEDT", 660 },  NamedZone { "AEST", 600 }, NamedZone { "AKDT", -480 },
    NamedZone { "AKST", -540 }, NamedZone { "AST", -240 }, NamedZone { "AWST", 480 },
    NamedZone { "BRT", -180 },  NamedZone { "BST", 60 },   NamedZone { "CDT", -300 },
    NamedZone { "CEST", 120 },  NamedZone { "CET", 60 },   NamedZone { "CST", -360 },
    NamedZone { "EDT", -240 },  NamedZone { "EEST", 180 }, NamedZone { "EET", 120 },
    NamedZone { "EST", -300 },  NamedZone { "GMT", 0 },    NamedZone { "HKT", 480 },
    NamedZone { "HST", -600 },  NamedZone { "JST", 540 },  NamedZone { "KST", 540 },
    NamedZone { "MDT", -360 },  NamedZone { "MEST", 120 }, NamedZone { "MESZ", 120 },
    NamedZone { "MET", 60 },    NamedZone { "MEZ", 60 },   NamedZone { "MSD", 240 },
    NamedZone { "MSK", 180 },   NamedZone { "MST", -420 }, NamedZone { "NDT", -150 },
    NamedZone { "NST", -210 },  NamedZone { "NZDT", 780 }, NamedZone { "NZST", 720 },
    NamedZone { "PDT", -420 },  NamedZone { "PST", -480 }, NamedZone { "SAST", 120 },
    NamedZone { "TRT", 180 },   NamedZone { "UT", 0 },     NamedZone { "UTC", 0 },
    NamedZone { "WEST", 60 },   NamedZone { "WET", 0 },    NamedZone { "Z", 0 },
};

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

qsizetype leadingDigits(QStringView text)
{
    return std::find_if_not(text.cbegin(), text.cend(), isDigit) - text.cbegin();
}

// The number that the \a length digits from \a from on make, or \a missing when they are not there.
int field(QStringView digits, qsizetype from, qsizetype length, int missing)
{
    if (digits.size() < from + length)
        return missing;
    int value = 0;
    for (const QChar c : digits.mid(from, length))
        value = value * 10 + (c.unicode() - u'0');
    return value;
}

std::optional<qint64> localSeconds(QStringView digits)
{
    if (digits.size() < 4 || digits.size() > 14 || digits.size() % 2 != 0)
        return std::nullopt;
    const QDate date(field(digits, 0, 4, 0), field(digits, 4, 2, 1), field(digits, 6, 2, 1));
    const int hour = field(digits, 8, 2, 0);
    const int minute = field(digits, 10, 2, 0);
    const int second = field(digits, 12, 2, 0);
    const bool endOfDay = hour == 24 && minute == 0 && second == 0;
    if (!date.isValid() || (hour > 23 && !endOfDay) || minute > 59 || second > 60)
        return std::nullopt;
    constexpr qint64 julianDayOf1970 = 2440588;
    return (date.toJulianDay() - julianDayOf1970) * 86400 + hour * 3600 + minute * 60 + second;
}

// "+0100", "+01:00" or "+01" in seconds.
std::optional<int> numericOffset(QStringView text)
{
    const int sign = text.front() == u'-' ? -1 : 1;
    text = text.mid(1);
    const QStringView hours = text.left(2);
    QStringView minutes = text.mid(2);
    if (minutes.isEmpty())
        minutes = u"00";
    else if (minutes.startsWith(u':'))
        minutes = minutes.mid(1);
    if (leadingDigits(hours) != 2 || leadingDigits(minutes) != 2 || minutes.size() != 2)
        return std::nullopt;
    const int h = field(hours, 0, 2, 0);
    const int m = field(minutes, 0, 2, 0);
    if (h > 15 || m > 59)
        return std::nullopt;
    return sign * (h * 60 + m) * 60;
}

std::optional<int> namedOffset(QStringView text)
{
    for (const NamedZone &zone : zones) {
        if (text.compare(QLatin1String(zone.name), Qt::CaseInsensitive) == 0)
            return zone.minutes * 60;
    }
    return std::nullopt;
}

bool isSign(QChar c)
{
    return c == u'+' || c == u'-';
}

} // namespace

std::optional<XmltvTime> parseXmltvTime(QStringView text)
{
    text = text.trimmed();
    const qsizetype digits = leadingDigits(text);
    const std::optional<qint64> local = localSeconds(text.left(digits));
    if (!local)
        return std::nullopt;
    const QStringView zone = text.mid(digits).trimmed();
    if (zone.isEmpty())
        return XmltvTime { *local, true };
    if (isSign(zone.front())) {
        const std::optional<int> offset = numericOffset(zone);
        return offset ? std::optional(XmltvTime { *local - *offset, true }) : std::nullopt;
    }
    if (!std::all_of(zone.cbegin(), zone.cend(), [](QChar c) { return c.isLetter(); }))
        return std::nullopt;
    const std::optional<int> offset = namedOffset(zone);
    return XmltvTime { *local - offset.value_or(0), offset.has_value() };
}

} // namespace gallery
