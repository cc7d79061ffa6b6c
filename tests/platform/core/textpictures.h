// SPDX-License-Identifier: MIT
#ifndef TEXTPICTURES_H
#define TEXTPICTURES_H

#include <stbcore/textrenderer.h>

#include <QtCore/qstringlist.h>
#include <QtGui/qimage.h>

/* What the tests of this room share: pictures and their ink, texts laid out and painted by us and by Qt alone. */
namespace textpictures {

using stbcore::TextRenderer;

inline constexpr int unlimited = 2147483647;

QFont font22();

QString operator""_u(const char *text, size_t size);

TextRenderer laidOut(const QString &text, int maxWidth = unlimited, int maxLines = 1,
                     Qt::Alignment alignment = Qt::AlignLeft);

QImage blank(QSize size);

/*! The text with a frame of \a margin empty pixels around its bounding rectangle. */
QImage painted(const TextRenderer &renderer, int margin = 0, const QPen &pen = QPen(Qt::white));

QRect inkOf(const QImage &image);

int heightOfLines(int count);

QRect inkOfLine(const TextRenderer &renderer, int line);

/*! What Qt paints for lines that are known already: no wrapping, no shortening, left-aligned at x = 0. */
QImage paintedByQt(const QStringList &lines, QSize size, Qt::LayoutDirection direction = Qt::LeftToRight);

int naturalWidth(const QString &text);

} // namespace textpictures

#define VERIFY_SHOWS(renderer, ...) \
    QCOMPARE(painted(renderer), paintedByQt(QStringList { __VA_ARGS__ }, (renderer).boundingRect().size()))

#endif // TEXTPICTURES_H
