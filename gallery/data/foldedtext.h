// SPDX-License-Identifier: MIT
#ifndef GALLERY_FOLDEDTEXT_H
#define GALLERY_FOLDEDTEXT_H

#include <QtCore/qstring.h>
#include <QtCore/qstringlist.h>

namespace gallery {

/*!
    \a text as it is compared when somebody searches: without case, accents, Arabic vowel signs and the bars that
    stretch Arabic words. "Ё" is "е" and "ß" is "ss"; "й" is a letter of its own.
*/
QString foldedText(const QString &text);

/*! What somebody searches for: the folded words of a text. */
QStringList searchWords(const QString &text);

/*! How a title fits what is searched for, the best last. */
enum class TextMatch {
    None,
    Inside, /*!< every word is there, at least one of them only inside another word */
    WordStart /*!< every word is the beginning of a word */
};

/*! How the folded text \a text fits \a words; without words it does not. */
TextMatch matchOf(const QString &text, const QStringList &words);

} // namespace gallery

#endif // GALLERY_FOLDEDTEXT_H
