// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_THEMEVALUES_H
#define DESIGN_SYSTEM_THEMEVALUES_H

#include <QtCore/qhash.h>
#include <QtCore/qjsonvalue.h>
#include <QtCore/qmath.h>
#include <QtCore/qmetatype.h>
#include <QtCore/qobject.h>
#include <QtCore/qstringlist.h>
#include <QtCore/qvariant.h>
#include <QtGui/qcolor.h>
#include <QtGui/qfont.h>

namespace design_system {

/*! A font's height, which unlike other lengths cannot be 0. */
struct PixelSize
{
    int value = 0;
    bool operator==(const PixelSize &) const = default;
};

/*! A font's height with the user's text scale; never nothing. */
inline int scaledPixelSize(int pixelSize, double textScale)
{
    return qMax(1, qRound(pixelSize * textScale));
}

/*! The keys of a font in a theme file. */
struct FontKeys
{
    Q_GADGET
    Q_PROPERTY(QString role MEMBER role)
    Q_PROPERTY(QStringList family MEMBER family)
    Q_PROPERTY(design_system::PixelSize pixelSize MEMBER pixelSize)
    Q_PROPERTY(QFont::Weight weight MEMBER weight)
    Q_PROPERTY(bool italic MEMBER italic)
    Q_PROPERTY(int letterSpacing MEMBER letterSpacing)
public:
    QString role;
    QStringList family;
    PixelSize pixelSize;
    QFont::Weight weight = QFont::Normal;
    bool italic = false;
    int letterSpacing = 0;

    static FontKeys of(const QFont &font);
    QFont toFont() const;
};

/*! The keys of a pen in a theme file. */
struct PenKeys
{
    Q_GADGET
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(int width MEMBER width)
public:
    QColor color;
    int width = 0;
};

/*! What a value of a theme file may refer to, and what its lengths are multiplied with. */
struct ValueContext
{
    const QHash<QString, QColor> &tokens;
    const QHash<QString, QFont> &fonts;
    double scale = 1;
    double textScale = 1;
};

/*! How the fields of one type are written in a theme file. */
struct ValueKind
{
    QMetaType type;
    const char *expected; //!< what to write, for the warning about something else
    QVariant (*read)(const QJsonValue &json, const ValueContext &context); //!< invalid if it is no such value
};

/*! The kind of the fields of \a type; null if it has fields of its own. */
const ValueKind *valueKind(QMetaType type);
/*! Whole numbers that are no lengths: lines, milliseconds. */
const ValueKind *countKind();
/*! A colour written out, as it defines a token. */
const ValueKind *literalColorKind();

} // namespace design_system

Q_DECLARE_METATYPE(design_system::PixelSize)

#endif // DESIGN_SYSTEM_THEMEVALUES_H
