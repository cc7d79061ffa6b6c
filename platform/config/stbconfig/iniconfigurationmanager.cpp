// SPDX-License-Identifier: MIT
#include "stbconfig/iniconfigurationmanager.h"

#include <QtCore/qfileinfo.h>
#include <QtCore/qlogging.h>
#include <QtCore/qsettings.h>
#include <QtCore/qstandardpaths.h>

namespace stbconfig {

namespace {

// QSettings reads the section [General] as the keys without a group.
QString keyPath(const QString &group, const QString &key)
{
    const bool general = group.isEmpty() || group == QLatin1String("General");
    return general ? key : group + u'/' + key;
}

// QSettings parses a section when it is first asked for it, and only then tells that it is malformed.
QSettings::Status statusOfWhole(const QSettings &file)
{
    file.allKeys();
    return file.status();
}

} // namespace

IniConfigurationManager::IniConfigurationManager(const QString &fileName)
    : m_fileName(fileName)
    , m_file(std::make_unique<QSettings>(fileName, QSettings::IniFormat))
{
    const QSettings::Status status = statusOfWhole(*m_file);
    if (status == QSettings::NoError && !QFileInfo(fileName).isDir())
        return;
    const bool malformed = status == QSettings::FormatError;
    m_file.reset();
    qWarning("The configuration file \"%s\" %s; every setting has its default value", qPrintable(fileName),
             malformed ? "is malformed" : "cannot be read");
}

IniConfigurationManager::~IniConfigurationManager() = default;

QString IniConfigurationManager::defaultFileName()
{
    const QString named = qEnvironmentVariable("STBUI_CONFIG");
    if (!named.isEmpty())
        return named;
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
           + QLatin1String("/stbui/stbui.ini");
}

QString IniConfigurationManager::fileName() const
{
    return m_fileName;
}

QVariant IniConfigurationManager::value(const QString &group, const QString &key,
                                        const QVariant &defaultValue) const
{
    const QVariant stored = storedValue(keyPath(group, key));
    if (!stored.isValid())
        return defaultValue;
    const bool listWanted = defaultValue.typeId() == QMetaType::QStringList
                            || defaultValue.typeId() == QMetaType::QVariantList;
    if (stored.typeId() == QMetaType::QStringList && !listWanted)
        return stored.toStringList().join(u',');
    return stored;
}

bool IniConfigurationManager::setValue(const QString &group, const QString &key, const QVariant &value)
{
    const QString path = keyPath(group, key);
    if (writeToFile(path, value))
        return true;
    m_unsaved.insert(path, value);
    if (!m_warnedOfWriting)
        qWarning("The configuration file \"%s\" cannot be written; settings are kept until the program ends",
                 qPrintable(m_fileName));
    m_warnedOfWriting = true;
    return false;
}

QVariant IniConfigurationManager::storedValue(const QString &path) const
{
    const auto unsaved = m_unsaved.constFind(path);
    if (unsaved != m_unsaved.cend())
        return *unsaved;
    return m_file ? m_file->value(path) : QVariant();
}

// The status of a QSettings object never becomes good again, so that each attempt has an object of its own.
bool IniConfigurationManager::writeToFile(const QString &path, const QVariant &value)
{
    if (!m_file)
        return false;
    QSettings file(m_fileName, QSettings::IniFormat);
    if (statusOfWhole(file) == QSettings::FormatError) {
        m_file.reset(); // somebody broke the file since it was opened: to write it would lose what is in it
        return false;
    }
    file.setValue(path, value);
    file.sync();
    if (file.status() != QSettings::NoError)
        return false;
    m_unsaved.remove(path);
    return true;
}

} // namespace stbconfig
