// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_LANGUAGES_H
#define GALLERY_APP_LANGUAGES_H

#include <QtCore/qlocale.h>
#include <QtCore/qstringlist.h>

namespace gallery {

/*! The codes of the languages that the gallery is translated to; English is the first. */
QStringList languageCodes();

/*!
    The code of the first of \a wanted that the gallery is translated to ("de" for "de-AT" or "de_AT"), or
    English when there is none.
*/
QString bestLanguage(const QStringList &wanted);

/*!
    How dates and times are written in the language \a code: as the user's own \a system locale writes them when
    it is of that language, else as in one country of the language.
*/
QLocale localeOf(const QString &code, const QLocale &system);

/*!
    Switches the application to the language \a code: texts, default locale and reading direction. Whatever
    language was set before is removed. False, and nothing changed, when the catalogue cannot be loaded.
*/
bool installLanguage(const QString &code);

} // namespace gallery

#endif // GALLERY_APP_LANGUAGES_H
