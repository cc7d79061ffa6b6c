// SPDX-License-Identifier: MIT
#include "screens/channelscontroller.h"

#include "gallery/data/clock.h"
#include "screens/remotekey.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qset.h>

#include <algorithm>
#include <iterator>

namespace gallery {

namespace {

// As long as the longest number of a playlist.
constexpr int longestNumber = 9;
constexpr int typingTime = 2000;

// Empty first, for all channels; nothing when a choice between groups would be none.
QStringList groupsOf(const Guide &guide)
{
    QStringList groups { QString() };
    QSet<QString> known;
    bool allInOne = true;
    for (int channel = 0; channel < guide.channelCount(); ++channel) {
        const QString &group = guide.channel(channel).group;
        allInOne = allInOne && group == guide.channel(0).group;
        if (group.isEmpty() || known.contains(group))
            continue;
        known.insert(group);
        groups.append(group);
    }
    return allInOne ? QStringList() : groups;
}

QString withoutLeadingZeros(const QString &number)
{
    qsizetype zeros = 0;
    while (zeros + 1 < number.size() && number[zeros] == u'0')
        ++zeros;
    return number.mid(zeros);
}

// A number as it is typed, without what no key stands for: "71" for "07-1".
QString digitsOf(const QString &number)
{
    QString digits;
    std::copy_if(number.cbegin(), number.cend(), std::back_inserter(digits),
                 [](QChar c) { return c >= u'0' && c <= u'9'; });
    return withoutLeadingZeros(digits);
}

QString noSuchChannel()
{
    return QCoreApplication::translate("ChannelsScreen", "No such channel");
}

bool hasNumber(const Guide &guide)
{
    for (int channel = 0; channel < guide.channelCount(); ++channel) {
        if (!guide.channel(channel).number.isEmpty())
            return true;
    }
    return false;
}

} // namespace

ChannelsController::ChannelsController(Clock *clock, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
    , m_typing(this)
{
    m_typing.setObjectName(QStringLiteral("typing"));
    m_typing.setSingleShot(true);
    m_typing.setInterval(typingTime);
    connect(&m_typing, &QTimer::timeout, this, &ChannelsController::forgetTypedNumber);
    connect(m_clock, &Clock::nowChanged, this, &ChannelsController::tick);
    m_channels.setNow(m_clock->now());
}

void ChannelsController::setGuide(const Guide &guide, Content content)
{
    const QStringList groups = groupsOf(guide);
    if (content == Content::Translated)
        m_group = groups.value(groupIndex());
    const bool otherGroups = groups != m_groups;
    m_groups = groups;
    const int playing = guide.channelIndex(m_playingId);
    if (playing < 0 || guide.channel(playing).locked) {
        const int first = guide.firstChannelOnAir(m_clock->now().toSecsSinceEpoch());
        m_playingId = first < 0 ? QString() : guide.channel(first).id;
    }
    if (m_chosenId.isEmpty())
        m_chosenId = m_playingId;
    if (hasNumber(guide) != m_hasNumbers) {
        m_hasNumbers = !m_hasNumbers;
        Q_EMIT hasNumbersChanged();
    }
    // The names of the groups go first: whoever hears of another choice finds it among them.
    if (otherGroups)
        Q_EMIT groupsChanged();
    const int chosen = guide.channelIndex(m_chosenId);
    const bool leavesGroup = chosen >= 0 && guide.channel(chosen).group != m_group;
    show(guide, groups.contains(m_group) && !leavesGroup ? m_group : QString());
}

void ChannelsController::start()
{
    setTypedNumber({});
    setMessage({});
    m_chosenId = m_playingId;
    show(guide(), {});
}

// Shows other channels; the chosen one stays when it is among them.
void ChannelsController::show(const Guide &guide, const QString &group)
{
    m_group = group;
    m_channels.setNow(m_clock->now());
    m_channels.show(guide, group);
    m_channels.setPlaying(playing());
    const int row = m_channels.rowOf(guide.channelIndex(m_chosenId));
    // Without rows the highest one that there could be is -1.
    chooseRow(row >= 0 ? row : m_row);
}

void ChannelsController::setPlaying(int channel)
{
    if (channel < 0 || channel >= guide().channelCount() || guide().channel(channel).locked)
        return;
    m_playingId = guide().channel(channel).id;
    m_channels.setPlaying(channel);
}

QString ChannelsController::timeRange() const
{
    return m_programme.title.isEmpty() ? QString() : secondLine(m_programme);
}

void ChannelsController::setRowsPerPage(int rows)
{
    rows = std::max(1, rows);
    if (rows == m_rowsPerPage)
        return;
    m_rowsPerPage = rows;
    Q_EMIT rowsPerPageChanged();
}

void ChannelsController::setMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    Q_EMIT mirroredChanged();
}

bool ChannelsController::press(int key)
{
    setMessage({});
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        typeDigit(key - Qt::Key_0);
        return true;
    }
    const bool typed = !m_typedNumber.isEmpty();
    setTypedNumber({});
    if (isBackKey(key)) {
        if (!typed)
            Q_EMIT leaveRequested();
        return true;
    }
    if (isSelectKey(key)) {
        play();
        return true;
    }
    if (const int step = readingStep(key, m_mirrored)) {
        chooseGroup(groupIndex() + step);
        return true;
    }
    return pressInRows(key);
}

bool ChannelsController::pressInRows(int key)
{
    if (const int step = channelStep(key)) {
        chooseRow(m_row + step);
        return true;
    }
    switch (remoteKey(key)) {
    case Qt::Key_Info:
        if (!m_programme.title.isEmpty())
            Q_EMIT detailsRequested();
        return true;
    case Qt::Key_Up:
        chooseRow(m_row - 1);
        return true;
    case Qt::Key_Down:
        chooseRow(m_row + 1);
        return true;
    case Qt::Key_PageUp:
        chooseRow(m_row - m_rowsPerPage);
        return true;
    case Qt::Key_PageDown:
        chooseRow(m_row + m_rowsPerPage);
        return true;
    case Qt::Key_Home:
        chooseRow(0);
        return true;
    case Qt::Key_End:
        chooseRow(m_channels.count() - 1);
        return true;
    default:
        return false;
    }
}

// The nearest row that there is. A reset of the rows counts as another choice, though the row may be the same.
void ChannelsController::chooseRow(int row)
{
    m_row = m_channels.count() == 0 ? -1 : std::clamp(row, 0, m_channels.count() - 1);
    if (m_row >= 0)
        m_chosenId = guide().channel(channel()).id;
    updateProgramme();
    Q_EMIT selectionChanged();
}

void ChannelsController::chooseGroup(int index)
{
    if (index < 0 || index >= m_groups.size())
        return;
    m_row = 0;
    show(guide(), m_groups.at(index));
}

void ChannelsController::typeDigit(int digit)
{
    const bool full = m_typedNumber.size() >= longestNumber;
    setTypedNumber((full ? QString() : m_typedNumber) + QString::number(digit));
    m_typing.start();
    chooseNumber();
}

void ChannelsController::chooseNumber()
{
    int found = channelOfNumber(m_typedNumber, true);
    if (found < 0)
        found = channelOfNumber(m_typedNumber, false);
    m_numberFound = found >= 0;
    if (!m_numberFound) {
        setMessage(isNumberToType(m_typedNumber) ? QString() : noSuchChannel());
        return;
    }
    if (m_channels.rowOf(found) >= 0) {
        chooseRow(m_channels.rowOf(found));
        return;
    }
    const Guide shown = guide();
    m_chosenId = shown.channel(found).id;
    show(shown, {});
}

// The first channel with this number, of those that are shown or else of all; -1 without one.
int ChannelsController::channelOfNumber(const QString &number, bool exactly) const
{
    const auto comparable = [exactly](const QString &text) {
        return exactly ? withoutLeadingZeros(text) : digitsOf(text);
    };
    const QString wanted = comparable(number);
    const Guide shown = guide();
    int found = -1;
    for (int i = 0; i < shown.channelCount(); ++i) {
        const QString &own = shown.channel(i).number;
        if (own.isEmpty() || comparable(own) != wanted)
            continue;
        if (m_channels.rowOf(i) >= 0)
            return i;
        if (found < 0)
            found = i;
    }
    return found;
}

// Whether more digits behind \a beginning can make the number of a channel.
bool ChannelsController::isNumberToType(const QString &beginning) const
{
    const QString digits = withoutLeadingZeros(beginning);
    if (digits == u"0")
        return m_hasNumbers;
    const Guide shown = guide();
    for (int i = 0; i < shown.channelCount(); ++i) {
        const QString own = digitsOf(shown.channel(i).number);
        if (own.size() > digits.size() && own.startsWith(digits))
            return true;
    }
    return false;
}

void ChannelsController::forgetTypedNumber()
{
    const bool failed = !m_typedNumber.isEmpty() && !m_numberFound;
    setTypedNumber({});
    if (failed)
        setMessage(noSuchChannel());
}

void ChannelsController::play()
{
    if (m_row < 0)
        return;
    if (guide().channel(channel()).locked) {
        setMessage(lockedText());
        return;
    }
    setPlaying(channel());
    Q_EMIT playRequested(channel());
}

void ChannelsController::setTypedNumber(const QString &number)
{
    m_typing.stop();
    if (number == m_typedNumber)
        return;
    m_typedNumber = number;
    Q_EMIT typedNumberChanged();
}

void ChannelsController::setMessage(const QString &message)
{
    if (message == m_message)
        return;
    m_message = message;
    Q_EMIT messageChanged();
}

void ChannelsController::updateProgramme()
{
    MediaItem programme;
    MediaItem next;
    if (m_row >= 0) {
        const Guide shown = guide();
        const qint64 now = m_clock->now().toSecsSinceEpoch();
        const int current = shown.programmeAt(channel(), now);
        if (current >= 0) {
            programme = programmeItem(shown, channel(), current, m_clock->now());
            const QUrl picture = shown.programme(channel(), current).picture;
            if (!picture.isEmpty())
                programme.still = picture;
        }
        const int following = shown.nextProgramme(channel(), now);
        if (following >= 0)
            next = programmeItem(shown, channel(), following, m_clock->now());
    }
    if (programme == m_programme && next == m_next)
        return;
    m_programme = programme;
    m_next = next;
    Q_EMIT programmeChanged();
}

void ChannelsController::tick()
{
    m_channels.setNow(m_clock->now());
    updateProgramme();
}

} // namespace gallery
