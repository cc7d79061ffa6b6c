// SPDX-License-Identifier: MIT
#ifndef STBCONFIG_INICONFIGURATIONMANAGER_H
#define STBCONFIG_INICONFIGURATIONMANAGER_H

#include <stbconfig/configurationmanager.h>

#include <QtCore/qhash.h>

#include <memory>

class QSettings;

namespace stbconfig {

/*!
    The reference store: an INI file as QSettings reads it. A group is a section, a key a line in it:

    \code
    [Animations]
    focusingEnabled=false
    \endcode

    Names are case-sensitive. Lines above the first section and those in [General] are the group "General",
    which the empty group name means too. Read values are strings; one that is to hold a comma stands in double
    quotes, and without them its parts are trimmed and joined again with commas (a QStringList when the default
    value is one). The text is UTF-8, with a byte order mark or without.

    A missing file is an empty store. A file that cannot be read or is malformed is an empty store too, with
    one warning that names it; it is never written to.
*/
class STBCONFIG_EXPORT IniConfigurationManager : public ConfigurationManager
{
    Q_DISABLE_COPY_MOVE(IniConfigurationManager)
public:
    /*! Opens \a fileName now. */
    explicit IniConfigurationManager(const QString &fileName);
    ~IniConfigurationManager() override;

    /*! The environment variable STBUI_CONFIG, else stbui/stbui.ini in the user's configuration folder. */
    static QString defaultFileName();

    QString fileName() const;

    QVariant value(const QString &group, const QString &key, const QVariant &defaultValue) const override;

    /*!
        Stores \a value, in memory and at once in the file, which is made with its folders when it is missing.
        Returns whether it is in the file. The first time it is not, one warning says so; the store keeps the
        value as long as it lives and tries again with the next one. Comments in the file and its byte order mark
        are lost.
    */
    bool setValue(const QString &group, const QString &key, const QVariant &value);

private:
    QVariant storedValue(const QString &path) const;
    bool writeUnsaved();

    QString m_fileName;
    std::unique_ptr<QSettings> m_file; // null: the file cannot be used
    QHash<QString, QVariant> m_unsaved;
    bool m_warnedOfWriting = false;
};

} // namespace stbconfig

#endif // STBCONFIG_INICONFIGURATIONMANAGER_H
