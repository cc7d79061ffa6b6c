// SPDX-License-Identifier: MIT
#ifndef GALLERY_XMLTVTIME_H
#define GALLERY_XMLTVTIME_H

#include <QtCore/qstringview.h>

#include <optional>

namespace gallery {

/*! A point in time as a guide file writes it. */
struct XmltvTime
{
    /*! Seconds since 1970-01-01 00:00 UTC. */
    qint64 seconds = 0;
    /*! False when the zone is a name that is not in the table; the time is then taken as UTC. */
    bool zoneKnown = true;
};

/*!
    Reads "YYYYMMDDhhmmss ZONE". The digits may stop after any field from the year on; the missing fields are
    the earliest possible (January, 1st, 00:00:00). The zone may be missing (UTC), an offset ("+0100", "+01:00",
    "+01", with or without a space before it), or a common name ("BST", "CET", "PDT", ...; upper or lower case).
    Hour 24 with nothing after it is the end of the day, second 60 the next minute.
    Nothing when \a text is not such a time.
*/
std::optional<XmltvTime> parseXmltvTime(QStringView text);

} // namespace gallery

#endif // GALLERY_XMLTVTIME_H
