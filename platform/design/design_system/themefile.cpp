// SPDX-License-Identifier: MIT
#include "design_system/themefile.h"

#include "design_system/themereader.h"

#include <QtCore/qdebug.h>
#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qjsondocument.h>

namespace design_system {

namespace {

constexpr int printedWarnings = 20;
constexpr qint64 largestFile = qint64(4) * 1024 * 1024;
constexpr int longestQuote = 60;

// A key or a text of the file, fit for one line of a log.
QString quoted(QString text, int longest = longestQuote)
{
    if (text.size() > longest)
        text = text.left(longest) + QStringLiteral("…");
    for (QChar &c : text) {
        if (!c.isPrint())
            c = u'?';
    }
    return text;
}

QString described(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', 12);
    case QJsonValue::String:
        return u'"' + quoted(value.toString()) + u'"';
    case QJsonValue::Array:
        return QStringLiteral("an array");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("null");
}

QString position(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(offset);
    const qsizetype line = before.count('\n') + 1;
    const qsizetype column = before.size() - before.lastIndexOf('\n');
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

} // namespace

ThemeWarnings::ThemeWarnings(const QString &fileName)
    : m_fileName(fileName)
{
}

ThemeWarnings::~ThemeWarnings()
{
    if (m_count > printedWarnings)
        qWarning("Theme %s: %d more problems", qUtf8Printable(m_fileName), m_count - printedWarnings);
}

void ThemeWarnings::add(const QString &problem)
{
    if (++m_count <= printedWarnings)
        qWarning("Theme %s: %s", qUtf8Printable(m_fileName), qUtf8Printable(problem));
}

void ThemeWarnings::add(const QString &path, const QString &expected, const QJsonValue &actual)
{
    constexpr int longestPath = 3 * longestQuote;
    const QString where = quoted(path, longestPath);
    add(QStringLiteral("%1: expected %2, got %3").arg(where, expected, described(actual)));
}

ThemeFile::ThemeFile(const QString &path)
    : m_path(path)
    , m_warnings(path)
{
}

bool ThemeFile::read(const QString &resolution)
{
    const QByteArray text = contents();
    if (text.isNull())
        return false;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        m_warnings.add(QStringLiteral("expected JSON; %1 at %2")
                               .arg(error.errorString(), position(text, error.offset)));
        return false;
    }
    if (!document.isObject()) {
        m_warnings.add(QStringLiteral("expected an object, got an array"));
        return false;
    }
    m_base = document.object();
    takeVariant(resolution);
    return true;
}

// Null when there is nothing to parse. A device or a pipe might never end and is refused unopened.
QByteArray ThemeFile::contents()
{
    QFile file(m_path);
    if (!QFileInfo(m_path).isFile() || !file.open(QIODevice::ReadOnly)) {
        m_warnings.add(QStringLiteral("expected a readable file"));
        return {};
    }
    const QByteArray text = file.read(largestFile + 1);
    if (text.size() > largestFile) {
        m_warnings.add(QStringLiteral("expected at most %1 bytes").arg(largestFile));
        return {};
    }
    return text.isNull() ? QByteArray("") : text;
}

void ThemeFile::takeVariant(const QString &resolution)
{
    const QString section = QStringLiteral("variants");
    const QJsonValue variants = m_base.take(section);
    if (!variants.isUndefined() && !variants.isObject())
        m_warnings.add(section, QStringLiteral("an object"), variants);
    const QJsonObject variantObjects = variants.toObject();
    for (auto it = variantObjects.begin(); it != variantObjects.end(); ++it) {
        const QString path = section + u'.' + it.key();
        if (!ThemeReader::scaleOf(it.key()))
            m_warnings.add(path, QStringLiteral("one of hd, fullhd, sd as the key"), it.value());
        else if (!it->isObject())
            m_warnings.add(path, QStringLiteral("an object"), it.value());
        else if (it.key() == resolution)
            m_variant = it->toObject();
    }
    m_variantPath = section + u'.' + resolution + u'.';
}

} // namespace design_system
