// SPDX-License-Identifier: MIT
#include "gallery/data/reminders.h"

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qjsonarray.h>
#include <QtCore/qjsondocument.h>
#include <QtCore/qjsonobject.h>
#include <QtCore/qsavefile.h>

#include <algorithm>
#include <optional>
#include <tuple>

namespace gallery {

namespace {

// More than all reminders take with the longest texts.
constexpr qint64 maximumFileSize = 16 * 1024 * 1024;

bool isBefore(const Reminder &a, const Reminder &b)
{
    return std::tie(a.start, a.channelId, a.title) < std::tie(b.start, b.channelId, b.title);
}

std::optional<Reminder> made(const QString &channelId, const QDateTime &start, const QString &title)
{
    const int year = start.toUTC().date().year();
    if (!start.isValid() || year < 1 || year > 9999)
        return std::nullopt;
    if (channelId.isEmpty() || channelId.size() > Reminders::longestText)
        return std::nullopt;
    return Reminder { channelId, start.toSecsSinceEpoch(), title.left(Reminders::longestText) };
}

bool insert(QList<Reminder> *reminders, const Reminder &reminder)
{
    const auto place = std::lower_bound(reminders->cbegin(), reminders->cend(), reminder, isBefore);
    if (place != reminders->cend() && *place == reminder)
        return false;
    reminders->insert(place, reminder);
    return true;
}

std::optional<Reminder> fromJson(const QJsonValue &value)
{
    const QJsonValue channel = value[QLatin1String("channel")];
    const QJsonValue start = value[QLatin1String("start")];
    const QJsonValue title = value[QLatin1String("title")];
    const QString time = start.toString();
    // A time without zone would mean another one wherever the box is.
    if (!channel.isString() || !title.isString() || !time.endsWith(u'Z'))
        return std::nullopt;
    return made(channel.toString(), QDateTime::fromString(time, Qt::ISODate), title.toString());
}

QJsonObject toJson(const Reminder &reminder)
{
    const QDateTime start = QDateTime::fromSecsSinceEpoch(reminder.start).toUTC();
    return { { QStringLiteral("channel"), reminder.channelId },
             { QStringLiteral("start"), start.toString(Qt::ISODate) },
             { QStringLiteral("title"), reminder.title } };
}

// Fills in \a reminders and returns an empty string, or says what is wrong.
QString parse(const QByteArray &json, QList<Reminder> *reminders)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return error.errorString();
    const QJsonValue list = document.object().value(QLatin1String("reminders"));
    if (!list.isArray())
        return QStringLiteral("there is no list \"reminders\"");
    const QJsonArray array = list.toArray();
    if (array.size() > Reminders::maximumReminders)
        return QStringLiteral("there are more than %1 reminders").arg(Reminders::maximumReminders);
    for (qsizetype i = 0; i < array.size(); ++i) {
        const std::optional<Reminder> reminder = fromJson(array[i]);
        if (!reminder)
            return QStringLiteral("reminders[%1] has no channel, start in UTC and title").arg(i);
        insert(reminders, *reminder);
    }
    return {};
}

} // namespace

Reminders::Reminders(const QString &fileName, QObject *parent)
    : QObject(parent)
    , m_fileName(fileName)
{
    load();
}

void Reminders::load()
{
    const QFileInfo info(m_fileName);
    // A name that is taken by something else must not be written to either; a link to nothing is no file yet.
    m_writable = !m_fileName.isEmpty() && (info.isFile() || !info.exists());
    if (m_fileName.isEmpty() || (!info.exists() && m_writable))
        return;
    const QString problem = m_writable ? read()
                                       : QStringLiteral("is no ordinary file; reminders are not stored");
    if (problem.isEmpty())
        return;
    m_reminders.clear();
    m_error = m_fileName + QLatin1String(": ") + problem;
}

// Reads the file and returns an empty string, or says what is wrong and what became of the file.
QString Reminders::read()
{
    QFile file(m_fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        m_writable = false;
        return file.errorString() + QLatin1String("; reminders are not stored");
    }
    const QByteArray json = file.read(maximumFileSize + 1);
    file.close();
    const QString problem = json.size() > maximumFileSize ? QStringLiteral("is too large")
                                                          : parse(json, &m_reminders);
    return problem.isEmpty() ? problem : problem + QLatin1String("; ") + keepAside();
}

// Renames the file and says where it is now.
QString Reminders::keepAside()
{
    constexpr int attempts = 100;
    for (int i = 1; i <= attempts; ++i) {
        const QString aside = m_fileName + QLatin1String(".broken")
                              + (i > 1 ? QString::number(i) : QString());
        if (!QFileInfo::exists(aside) && QFile::rename(m_fileName, aside))
            return QStringLiteral("it is kept as %1").arg(aside);
    }
    m_writable = false;
    return QStringLiteral("it cannot be renamed, and reminders are not stored");
}

QStringList Reminders::titlesAt(const QString &channelId, const QDateTime &start) const
{
    QStringList titles;
    const std::optional<Reminder> first = made(channelId, start, {});
    if (!first)
        return titles;
    auto place = std::lower_bound(m_reminders.cbegin(), m_reminders.cend(), *first, isBefore);
    for (; place != m_reminders.cend() && place->start == first->start && place->channelId == channelId;
         ++place)
        titles.append(place->title);
    return titles;
}

bool Reminders::contains(const QString &channelId, const QDateTime &start, const QString &title) const
{
    const std::optional<Reminder> reminder = made(channelId, start, title);
    return reminder && std::binary_search(m_reminders.cbegin(), m_reminders.cend(), *reminder, isBefore);
}

bool Reminders::add(const QString &channelId, const QDateTime &start, const QString &title)
{
    const std::optional<Reminder> reminder = made(channelId, start, title);
    if (!reminder || count() >= maximumReminders || !insert(&m_reminders, *reminder))
        return false;
    store();
    return true;
}

bool Reminders::remove(const QString &channelId, const QDateTime &start, const QString &title)
{
    const std::optional<Reminder> reminder = made(channelId, start, title);
    if (!reminder || !m_reminders.removeOne(*reminder))
        return false;
    store();
    return true;
}

void Reminders::dropExpired(const QDateTime &now)
{
    if (!now.isValid())
        return;
    const qint64 time = now.toSecsSinceEpoch();
    const auto isExpired = [time](const Reminder &reminder) { return reminder.start <= time; };
    if (m_reminders.removeIf(isExpired) > 0)
        store();
}

// Writes the file, if that is possible, and tells the change.
void Reminders::store()
{
    if (m_writable)
        setError(write());
    Q_EMIT changed();
}

QString Reminders::write() const
{
    QJsonArray list;
    for (const Reminder &reminder : m_reminders)
        list.append(toJson(reminder));
    const QJsonObject root { { QStringLiteral("reminders"), list } };
    // Looked at again, because a device may have been put there since.
    const QFileInfo info(m_fileName);
    if (info.exists() && !info.isFile())
        return m_fileName + QLatin1String(": is no ordinary file; reminders are not stored");
    QDir().mkpath(info.absolutePath());
    QSaveFile file(m_fileName);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(root).toJson());
        if (file.commit())
            return {};
    }
    return m_fileName + QLatin1String(": ") + file.errorString();
}

void Reminders::setError(const QString &error)
{
    if (m_error == error)
        return;
    m_error = error;
    Q_EMIT errorChanged();
}

} // namespace gallery
