// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_THEMEFILE_H
#define DESIGN_SYSTEM_THEMEFILE_H

#include <QtCore/qjsonobject.h>
#include <QtCore/qstring.h>

namespace design_system {

/*!
    Prints what is wrong in a theme file, a line each. Beyond the first twenty it only counts, and says how
    many more there were when it goes.
*/
class ThemeWarnings
{
public:
    explicit ThemeWarnings(const QString &fileName);
    ~ThemeWarnings();
    Q_DISABLE_COPY_MOVE(ThemeWarnings)

    /*! The file as a whole is no use. */
    void add(const QString &problem);
    /*! The value at \a path is \a actual, which is not what was \a expected. */
    void add(const QString &path, const QString &expected, const QJsonValue &actual);

private:
    QString m_fileName;
    int m_count = 0;
};

/*! A theme file as JSON: the values for every screen, and those for one resolution. */
class ThemeFile
{
public:
    explicit ThemeFile(const QString &path);

    /*! Reads the file; false, with a warning, if it is not a JSON object of at most four MiB. */
    bool read(const QString &resolution);

    const QJsonObject &base() const { return m_base; }
    const QJsonObject &variant() const { return m_variant; }
    QString variantPath() const { return m_variantPath; }
    ThemeWarnings &warnings() { return m_warnings; }

private:
    QByteArray contents();
    void takeVariant(const QString &resolution);

    QString m_path;
    QJsonObject m_base;
    QJsonObject m_variant;
    QString m_variantPath;
    ThemeWarnings m_warnings;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_THEMEFILE_H
