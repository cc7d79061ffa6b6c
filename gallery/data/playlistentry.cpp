// SPDX-License-Identifier: MIT
#include "gallery/data/playlistentry.h"

#include <algorithm>

namespace gallery {

namespace {

constexpr QStringView directive = u"#EXTINF";
// Keys are a few letters; a longer word is none. The limit keeps looking ahead cheap.
constexpr qsizetype longestKey = 40;

bool isBlank(QChar c)
{
    return c.isSpace();
}

bool isKeyCharacter(QChar c)
{
    return c == u'-' || c == u'_' || (c.unicode() < 128 && c.isLetterOrNumber());
}

bool isNumber(QStringView text)
{
    bool valid = false;
    [[maybe_unused]] const double number = text.toDouble(&valid);
    return valid;
}

/*! Reads one line from its left to its right. */
class EntryLine
{
public:
    explicit EntryLine(QStringView line)
        : m_line(line)
    {
    }
    PlaylistEntry read();

private:
    QChar at(qsizetype i) const { return i < m_line.size() ? m_line[i] : QChar(); }
    bool atEnd() const { return m_at >= m_line.size(); }
    qsizetype blanksFrom(qsizetype i) const;
    qsizetype keyLength(qsizetype i) const;
    bool isQuotedAttribute(qsizetype i) const;
    bool closesValue(qsizetype quote) const;

    void readDuration();
    void readAttributes();
    void readName();
    void readAttribute(qsizetype keySize);
    void readWord();
    QString readValue(const QString &key);
    QString readQuoted(const QString &key);
    QString readUntil(qsizetype begin, qsizetype end);
    void problem(const QString &text) { m_entry.problems.append(text); }

    QStringView m_line;
    qsizetype m_at = directive.size();
    qsizetype m_firstWord = -1; // of the words that are no attributes
    PlaylistEntry m_entry;
};

// Where the first character that is no blank stands, from \a i on.
qsizetype EntryLine::blanksFrom(qsizetype i) const
{
    while (i < m_line.size() && isBlank(m_line[i]))
        ++i;
    return i;
}

// The length of the key of the attribute that begins at \a i, or 0.
qsizetype EntryLine::keyLength(qsizetype i) const
{
    qsizetype size = 0;
    while (size < longestKey && i + size < m_line.size() && isKeyCharacter(m_line[i + size]))
        ++size;
    return at(i + size) == u'=' ? size : 0;
}

bool EntryLine::isQuotedAttribute(qsizetype i) const
{
    const qsizetype size = keyLength(i);
    const QChar first = at(i + size + 1);
    return size > 0 && (first == u'"' || first == u'\'');
}

bool EntryLine::closesValue(qsizetype quote) const
{
    if (m_line[quote - 1] == u'\\')
        return false;
    if (quote + 1 >= m_line.size() || at(quote + 1) == u',')
        return true;
    // Only so many blanks are looked over, which keeps a line of quotes and blanks cheap.
    const qsizetype next = std::min(blanksFrom(quote + 1), quote + 1 + longestKey);
    return next >= m_line.size() || at(next) == u',' || keyLength(next) > 0;
}

PlaylistEntry EntryLine::read()
{
    readDuration();
    readAttributes();
    if (!atEnd()) {
        readName();
        if (m_firstWord >= 0)
            problem(QStringLiteral("\"%1\" is no attribute").arg(shownInMessage(m_line.mid(m_firstWord))));
    } else if (m_firstWord >= 0) {
        m_entry.name = m_line.mid(m_firstWord).toString().simplified();
        problem(QStringLiteral("there is no comma before the name"));
    }
    return m_entry;
}

void EntryLine::readAttributes()
{
    while (!atEnd() && at(m_at) != u',') {
        const qsizetype size = keyLength(m_at);
        if (size > 0)
            readAttribute(size);
        else
            readWord();
        m_at = blanksFrom(m_at);
    }
}

// What stands behind the comma, without the attributes that may have come to stand there.
void EntryLine::readName()
{
    const qsizetype begin = m_at + 1;
    const auto isMisplaced = [&](qsizetype i) {
        return (i == begin || isBlank(m_line[i - 1])) && isQuotedAttribute(i);
    };
    qsizetype end = begin;
    while (end < m_line.size() && !isMisplaced(end))
        ++end;
    m_entry.name = m_line.mid(begin, end - begin).toString().simplified();
    if (end >= m_line.size())
        return;
    problem(QStringLiteral("attributes stand behind the comma"));
    m_at = end;
    readAttributes();
    if (m_entry.name.isEmpty() && !atEnd())
        m_entry.name = m_line.mid(m_at + 1).toString().simplified();
}

void EntryLine::readDuration()
{
    if (at(m_at) == u':')
        ++m_at;
    m_at = blanksFrom(m_at);
    const qsizetype begin = m_at;
    while (!atEnd() && at(m_at) != u',' && !isBlank(at(m_at)))
        ++m_at;
    if (!isNumber(m_line.mid(begin, m_at - begin))) {
        problem(QStringLiteral("expected a duration, found \"%1\"").arg(shownInMessage(m_line.mid(begin))));
        m_at = begin; // what stands in its place may be an attribute
    }
    m_at = blanksFrom(m_at);
}

void EntryLine::readAttribute(qsizetype keySize)
{
    const QString key = m_line.mid(m_at, keySize).toString().toLower();
    m_at += keySize + 1;
    const QString value = readValue(key).trimmed();
    if (m_entry.attributes.contains(key))
        problem(QStringLiteral("%1 is there twice; the first counts").arg(key));
    else
        m_entry.attributes.insert(key, value);
}

void EntryLine::readWord()
{
    if (m_firstWord < 0)
        m_firstWord = m_at;
    while (!atEnd() && at(m_at) != u',' && !isBlank(at(m_at)))
        ++m_at;
}

QString EntryLine::readValue(const QString &key)
{
    if (at(m_at) == u'"' || at(m_at) == u'\'')
        return readQuoted(key);
    const qsizetype begin = m_at;
    while (!atEnd() && at(m_at) != u',' && !isBlank(at(m_at)))
        ++m_at;
    return m_line.mid(begin, m_at - begin).toString();
}

QString EntryLine::readQuoted(const QString &key)
{
    const QChar quote = at(m_at);
    const qsizetype begin = m_at + 1;
    qsizetype beforeBlank = -1;
    for (qsizetype i = begin; i < m_line.size(); ++i) {
        // Another attribute begins inside the value: this one was never closed.
        if (isBlank(m_line[i - 1]) && isQuotedAttribute(i)) {
            m_at = i;
            break;
        }
        if (m_line[i] != quote)
            continue;
        if (closesValue(i))
            return readUntil(begin, i);
        if (beforeBlank < 0 && isBlank(at(i + 1)))
            beforeBlank = i;
    }
    if (beforeBlank >= 0) // words that are no attributes follow
        return readUntil(begin, beforeBlank);
    problem(QStringLiteral("the value of %1 has no closing quote").arg(key));
    if (m_at < begin) {
        const qsizetype comma = m_line.indexOf(u',', begin);
        m_at = comma >= 0 ? comma : m_line.size();
    }
    return m_line.mid(begin, m_at - begin).toString();
}

// The value from \a begin to its closing quote at \a end; goes on behind the quote.
QString EntryLine::readUntil(qsizetype begin, qsizetype end)
{
    const QChar quote = at(end);
    m_at = end + 1;
    return m_line.mid(begin, end - begin).toString().replace(QString(u'\\') + quote, QString(quote));
}

} // namespace

bool isPlaylistEntry(QStringView line)
{
    return line.startsWith(directive, Qt::CaseInsensitive);
}

PlaylistEntry readPlaylistEntry(QStringView line)
{
    return EntryLine(line).read();
}

QString shownInMessage(QStringView text)
{
    constexpr qsizetype longest = 40;
    QString shown = text.left(longest).toString();
    for (QChar &c : shown) {
        if (!c.isPrint() && !c.isSurrogate())
            c = QChar::ReplacementCharacter;
    }
    return shown;
}

} // namespace gallery
