// SPDX-License-Identifier: MIT
#include "stbconfig/iniconfigurationmanager.h"

#include <QtCore/qfileinfo.h>
#include <QtCore/qlogging.h>
#include <QtCore/qsavefile.h>
#include <QtCore/qsettings.h>
#include <QtCore/qstandardpaths.h>
#include <QtCore/qtemporaryfile.h>

#include <filesystem>
#include <optional>

namespace stbconfig {

namespace {

// QSettings reads the section [General] as the keys without a group.
QString keyPath(const QString &group, const QString &key)
{
    const bool general = group.isEmpty() || group == QLatin1String("General");
    return general ? key : group + u'/' + key;
}

// Whether there is a file to read, or none at all. Not so with a folder, a link that leads to itself or a pipe,
// which would keep its reader waiting.
bool canBeRead(const QString &fileName)
{
    std::error_code error;
    const auto type = std::filesystem::status(QFileInfo(fileName).filesystemFilePath(), error).type();
    return type == std::filesystem::file_type::regular || type == std::filesystem::file_type::character
           || type == std::filesystem::file_type::not_found;
}

// What stands behind a byte order mark, which editors put in front of UTF-8 and QSettings takes for a part of the
// first line. Nothing when the file has none.
std::optional<QByteArray> contentBehindMark(const QString &fileName)
{
    const QByteArray mark("\xEF\xBB\xBF");
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.read(mark.size()) != mark)
        return std::nullopt;
    return file.readAll();
}

// Whether this is the null device, or one like it, that people name when they want no settings: some versions of
// QSettings find it malformed.
bool isDevice(const QString &fileName)
{
    std::error_code error;
    return std::filesystem::is_character_file(QFileInfo(fileName).filesystemFilePath(), error);
}

// The file's settings, all read by now: QSettings parses a section when it is first asked for it, and only then
// tells that it is malformed. Null when there is no place for the copy that a marked file or a
// device needs.
std::unique_ptr<QSettings> settingsOf(const QString &fileName)
{
    const std::optional<QByteArray> content = isDevice(fileName) ? QByteArray() : contentBehindMark(fileName);
    QTemporaryFile copy;
    if (content && !(copy.open() && copy.write(*content) == content->size() && copy.flush()))
        return nullptr;
    auto settings = std::make_unique<QSettings>(content ? copy.fileName() : fileName, QSettings::IniFormat);
    settings->allKeys();
    return settings;
}

// False when the file has a mark that cannot be taken away.
bool removeMark(const QString &fileName)
{
    const std::optional<QByteArray> content = contentBehindMark(fileName);
    if (!content)
        return true;
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(*content) == content->size() && file.commit();
}

} // namespace

IniConfigurationManager::IniConfigurationManager(const QString &fileName)
    : m_fileName(fileName)
    , m_file(canBeRead(fileName) ? settingsOf(fileName) : nullptr)
{
    const QSettings::Status status = m_file ? m_file->status() : QSettings::AccessError;
    if (status == QSettings::NoError)
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
    m_unsaved.insert(keyPath(group, key), value);
    if (writeUnsaved())
        return true;
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
bool IniConfigurationManager::writeUnsaved()
{
    // Writing would put an ordinary file in the place of a device.
    if (!m_file || isDevice(m_fileName) || !removeMark(m_fileName))
        return false;
    auto file = std::make_unique<QSettings>(m_fileName, QSettings::IniFormat);
    file->allKeys();
    if (file->status() == QSettings::FormatError) {
        m_file.reset(); // somebody broke the file since it was opened: to write it would lose what is in it
        return false;
    }
    for (auto value = m_unsaved.cbegin(); value != m_unsaved.cend(); ++value)
        file->setValue(value.key(), value.value());
    file->sync();
    if (file->status() != QSettings::NoError)
        return false;
    m_unsaved.clear();
    m_file = std::move(file); // what was read may have been a copy
    return true;
}

} // namespace stbconfig
