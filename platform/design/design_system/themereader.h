// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_THEMEREADER_H
#define DESIGN_SYSTEM_THEMEREADER_H

#include "design_system/themefile.h"

#include <QtCore/qhash.h>
#include <QtCore/qobject.h>
#include <QtGui/qcolor.h>
#include <QtGui/qfont.h>

#include <memory>
#include <optional>
#include <vector>

namespace design_system {

/*! The name of a role in a theme's "fonts": "Body" for FontHd::Body, "SdH4" for FontSd::H4; else empty. */
QString hdRoleName(int role);
QString sdRoleName(int role);

/*!
    Reads theme files into the properties of objects and gadgets, by name. Files are laid over each other in
    the order in which they were added: what a file does not say, or says wrongly, stays as the files before
    it have it.
*/
class ThemeReader
{
public:
    /*! For the screen \a resolution, with texts \a textScale times as large as the theme says. */
    ThemeReader(const QString &resolution, double textScale);
    ~ThemeReader();

    /*! What the pixels of a theme's base part are multiplied with for \a resolution; nothing if unknown. */
    static std::optional<double> scaleOf(const QString &resolution);

    /*! Adds the theme file \a path and its tokens and fonts; false, with a warning, if it is no theme. */
    bool addFile(const QString &path);

    /*! Writes the sections of all files to the properties of \a root that have their names. */
    void apply(QObject *root);

    const QHash<QString, QColor> &tokens() const { return m_tokens; }
    const QHash<QString, QFont> &fonts() const { return m_fonts; }

private:
    void readTables(const QJsonObject &part, const QString &path, double scale, ThemeWarnings &warnings);
    void setFamilies(const QStringList &families);
    void readColors(const QJsonValue &colors, const QString &path, ThemeWarnings &warnings);
    void readFonts(const QJsonValue &fonts, const QString &path, double scale, ThemeWarnings &warnings);

    QString m_resolution;
    double m_scale;
    double m_textScale;
    QHash<QString, QColor> m_tokens;
    QHash<QString, QFont> m_fonts;
    QFont m_plainFont; // what a role starts from
    std::vector<std::unique_ptr<ThemeFile>> m_files;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_THEMEREADER_H
