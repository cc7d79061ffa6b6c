// SPDX-License-Identifier: MIT
#include "gallery/data/playlistparser.h"

#include "gallery/data/pictureaddress.h"

#include <QtCore/qregularexpression.h>
#include <QtCore/qstringconverter.h>

#include <algorithm>
#include <utility>

namespace gallery {

namespace {

constexpr qsizetype longestText = 300;
constexpr qsizetype longestAddress = 8192;
constexpr qsizetype longestNumber = 9; // "12345-678"

// Each line on its own, since playlists are put together from others: UTF-8 where it is valid, else Latin-1.
QString decoded(const QByteArray &bytes, bool *isUtf8)
{
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8(bytes);
    *isUtf8 = !utf8.hasError();
    return *isUtf8 ? text : QString::fromLatin1(bytes);
}

bool hasScheme(const QString &line)
{
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*://"));
    return scheme.match(line).hasMatch();
}

// A file or a station may do without a scheme, but has some sign that it is no plain text.
bool isAddress(const QString &line)
{
    static const QRegularExpression sign(QStringLiteral("[/\\\\.:@]"));
    return line.contains(sign);
}

// The file as UTF-8, or as whatever it is if that is no UTF-16.
QByteArray withoutUtf16(const QByteArray &file)
{
    QStringConverter::Encoding encoding = QStringConverter::Utf8;
    if (file.startsWith("\xff\xfe") || file.startsWith(QByteArray("#\0", 2)))
        encoding = QStringConverter::Utf16LE;
    else if (file.startsWith("\xfe\xff") || file.startsWith(QByteArray("\0#", 2)))
        encoding = QStringConverter::Utf16BE;
    else
        return file.startsWith("\xef\xbb\xbf") ? file.mid(3) : file;
    QStringDecoder decoder(encoding);
    const QString text = decoder(file);
    return text.toUtf8();
}

// What an address that has no name is called: its last part.
QString nameOfAddress(const QString &address)
{
    QString path = address.section(u'?', 0, 0);
    while (path.endsWith(u'/'))
        path.chop(1);
    const QString last = path.section(u'/', -1).simplified();
    return (last.isEmpty() ? address : last).left(longestText);
}

QString takeText(PlaylistEntry *entry, const char *key)
{
    const QString text = entry->attributes.value(QLatin1String(key)).simplified();
    if (text.size() > longestText)
        entry->problems.append(QStringLiteral("%1 has %2 characters; the rest is left out")
                                       .arg(QLatin1String(key))
                                       .arg(text.size()));
    return text.left(longestText);
}

QString withoutLeadingZeros(const QString &number)
{
    qsizetype zeros = 0;
    while (zeros + 1 < number.size() && number[zeros] == u'0' && number[zeros + 1].isDigit())
        ++zeros;
    return number.mid(zeros);
}

QString takeNumber(PlaylistEntry *entry)
{
    const QString number = entry->attributes.value(QStringLiteral("tvg-chno"));
    const QString bare = withoutLeadingZeros(number);
    if (number.isEmpty() || (isChannelNumber(bare) && bare.size() <= longestNumber))
        return bare;
    entry->problems.append(
            QStringLiteral("tvg-chno \"%1\" is no channel number of up to %2 characters; it is ignored")
                    .arg(shownInMessage(number))
                    .arg(longestNumber));
    return {};
}

QString takeName(PlaylistEntry *entry, const PlaylistChannel &channel)
{
    if (entry->name.size() > longestText)
        entry->problems.append(
                QStringLiteral("the name has %1 characters; the rest is left out").arg(entry->name.size()));
    for (const QString &name : { entry->name.left(longestText), channel.guideName }) {
        if (!name.isEmpty())
            return name;
    }
    const QString name = channel.id.isEmpty() ? nameOfAddress(channel.address) : channel.id;
    entry->problems.append(
            QStringLiteral("there is no name; the channel is called \"%1\"").arg(shownInMessage(name)));
    return name;
}

} // namespace

PlaylistParser::PlaylistParser(const QString &folder, PlaylistReport *report)
    : m_folder(folder)
    , m_report(report)
{
}

void PlaylistParser::read(const QByteArray &file)
{
    const bool tooLarge = file.size() > PlaylistReport::maximumFileSize;
    readLines(withoutUtf16(tooLarge ? file.left(PlaylistReport::maximumFileSize) : file));
    dropEntry();
    if (tooLarge && !m_full)
        problem(m_line, QStringLiteral("the file is larger than %1 MB; the rest is left out")
                                .arg(PlaylistReport::maximumFileSize / (1024 * 1024)));
    finish();
}

// A line ends with a line feed, a carriage return or both.
void PlaylistParser::readLines(const QByteArray &text)
{
    const auto isEnd = [](char c) { return c == '\n' || c == '\r'; };
    qsizetype begin = 0;
    while (begin < text.size() && !m_full) {
        const qsizetype end = std::find_if(text.cbegin() + begin, text.cend(), isEnd) - text.cbegin();
        ++m_line;
        readLine(text.mid(begin, end - begin));
        const bool both = end + 1 < text.size() && text[end] == '\r' && text[end + 1] == '\n';
        begin = end + (both ? 2 : 1);
    }
}

void PlaylistParser::readLine(const QByteArray &bytes)
{
    bool isUtf8 = true;
    const QString line = decoded(bytes, &isUtf8).trimmed();
    if (line.isEmpty())
        return;
    const bool header = line.startsWith(QLatin1String("#EXTM3U"), Qt::CaseInsensitive);
    const bool entry = isPlaylistEntry(line);
    const bool skipped = line.startsWith(u'#') && !entry;
    m_foundPlaylist = m_foundPlaylist || header || entry || hasScheme(line);
    if (!std::exchange(m_hasContent, true) && !header)
        problem(m_line, QStringLiteral("expected #EXTM3U before anything else"));
    if (!isUtf8 && !skipped)
        problem(m_line, QStringLiteral("the line is no UTF-8; it is read as Latin-1"));
    if (entry) {
        dropEntry();
        m_waiting = Waiting { readPlaylistEntry(line), m_line };
    } else if (!skipped) {
        readAddress(line);
    }
    tellProblems(m_waiting ? m_waiting->line : m_line + 1);
}

void PlaylistParser::readAddress(const QString &address)
{
    const bool known = m_waiting.has_value();
    if (known ? !isAddress(address) : !hasScheme(address)) {
        problem(m_line, QStringLiteral("expected #EXTINF or an address, found \"%1\"; the line is left out")
                                .arg(shownInMessage(address)));
        // An entry waits on, but not for ever: what is wrong meanwhile is kept.
        if (m_untold.size() > PlaylistReport::maximumProblems)
            dropEntry();
        return;
    }
    if (m_report->playlist.size() >= PlaylistReport::maximumChannels) {
        problem(m_line, QStringLiteral("there are more than %1 channels; the rest is left out")
                                .arg(PlaylistReport::maximumChannels));
        m_full = true;
    } else if (address.size() > longestAddress) {
        problem(m_line,
                QStringLiteral("the address has %1 characters; its channel is left out").arg(address.size()));
    } else if (known) {
        addChannel(&m_waiting->entry, address);
    } else {
        PlaylistEntry entry;
        entry.problems.append(QStringLiteral("there is no #EXTINF before the address"));
        addChannel(&entry, address);
    }
    m_waiting.reset();
}

void PlaylistParser::addChannel(PlaylistEntry *entry, const QString &address)
{
    const qint64 line = m_waiting ? m_waiting->line : m_line;
    PlaylistChannel channel = channelOf(entry, address);
    if (isRepetition(channel)) {
        entry->problems.append(
                QStringLiteral("the channel is there with the same address before; it is left out"));
    } else {
        checkIdAndNumber(&channel, line, &entry->problems);
        m_report->playlist.append(channel);
    }
    if (!entry->problems.isEmpty())
        problem(line, entry->problems.join(QLatin1String("; ")));
}

PlaylistChannel PlaylistParser::channelOf(PlaylistEntry *entry, const QString &address) const
{
    PlaylistChannel channel;
    channel.id = takeText(entry, "tvg-id");
    channel.guideName = takeText(entry, "tvg-name");
    channel.group = takeText(entry, "group-title");
    channel.number = takeNumber(entry);
    channel.locked = !entry->attributes.value(QStringLiteral("parent-code")).isEmpty();
    channel.address = address;
    channel.name = takeName(entry, channel);
    channel.quality = channelQuality(channel.name, channel.group);
    const QString logo = entry->attributes.value(QStringLiteral("tvg-logo"));
    if (logo.size() <= longestAddress)
        channel.logo = pictureAddress(logo, m_folder);
    if (!logo.isEmpty() && channel.logo.isEmpty())
        entry->problems.append(
                QStringLiteral("tvg-logo \"%1\" is neither a web address nor a file; it is ignored")
                        .arg(shownInMessage(logo)));
    return channel;
}

bool PlaylistParser::isRepetition(const PlaylistChannel &channel)
{
    const QString identity = channel.id + u'\n' + channel.name + u'\n' + channel.address;
    const bool known = m_known.contains(identity);
    m_known.insert(identity);
    return known;
}

void PlaylistParser::checkIdAndNumber(PlaylistChannel *channel, qint64 line, QStringList *problems)
{
    if (!channel->id.isEmpty() && m_lineOfId.contains(channel->id))
        problems->append(QStringLiteral("tvg-id \"%1\" is that of line %2 too; both show the same programmes")
                                 .arg(shownInMessage(channel->id))
                                 .arg(m_lineOfId.value(channel->id)));
    else if (!channel->id.isEmpty())
        m_lineOfId.insert(channel->id, line);
    if (channel->number.isEmpty())
        return;
    if (m_lineOfNumber.contains(channel->number)) {
        problems->append(QStringLiteral("tvg-chno \"%1\" is that of line %2 already; it is ignored")
                                 .arg(channel->number)
                                 .arg(m_lineOfNumber.value(channel->number)));
        channel->number.clear();
    } else {
        m_lineOfNumber.insert(channel->number, line);
    }
}

// An entry whose address does not come.
void PlaylistParser::dropEntry()
{
    if (!m_waiting)
        return;
    m_waiting->entry.problems.append(QStringLiteral("no address follows; the channel is left out"));
    problem(m_waiting->line, m_waiting->entry.problems.join(QLatin1String("; ")));
    m_waiting.reset();
}

// Channels of which none has a number are numbered by their places.
void PlaylistParser::finish()
{
    Playlist &playlist = m_report->playlist;
    if (m_lineOfNumber.isEmpty()) {
        for (qsizetype i = 0; i < playlist.size(); ++i)
            playlist[i].number = QString::number(i + 1);
    }
    if (playlist.isEmpty())
        problem(m_line, QStringLiteral("there is no channel in the playlist"));
    tellProblems(m_line + 1);
}

// Notes what is wrong with \a line; what is found later about the same line is added to it.
void PlaylistParser::problem(qint64 line, const QString &text)
{
    const auto isBefore = [](const PlaylistProblem &known, qint64 other) { return known.line < other; };
    const auto place = std::lower_bound(m_untold.begin(), m_untold.end(), line, isBefore);
    if (place != m_untold.end() && place->line == line)
        place->text += QLatin1String("; ") + text;
    else
        m_untold.insert(place, { line, text });
}

// Reports what is noted about the lines up to \a before.
void PlaylistParser::tellProblems(qint64 before)
{
    while (!m_untold.isEmpty() && m_untold.constFirst().line < before) {
        ++m_report->problemCount;
        if (m_report->problems.size() < PlaylistReport::maximumProblems)
            m_report->problems.append(m_untold.constFirst());
        m_untold.removeFirst();
    }
}

} // namespace gallery
