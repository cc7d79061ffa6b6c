// SPDX-License-Identifier: MIT
#include "screens/guidecontroller.h"

#include "gallery/data/clock.h"
#include "screens/remotekey.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qlocale.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gallery {

GuideController::GuideController(Clock *clock, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
{
    connect(m_clock, &Clock::nowChanged, this, &GuideController::tick);
    connect(&m_loader, &GuideLoader::loadingChanged, this, &GuideController::loadingChanged);
    connect(&m_loader, &GuideLoader::progressChanged, this, &GuideController::loadProgressChanged);
    connect(&m_loader, &GuideLoader::finished, this, [this] {
        Q_EMIT messageChanged();
        setGuide(m_loader.guide());
    });
}

void GuideController::setGuide(const Guide &guide)
{
    m_channels.setGuide(guide);
    m_programmes.setGuide(guide);
    start();
    Q_EMIT guideShown();
}

void GuideController::start()
{
    setDetailsOpen(false);
    m_channels.setNow(m_clock->now());
    m_programmes.setNow(m_clock->now());
    m_channelRow = firstChannelOnAir(shownGuide());
    m_programmes.select(m_channelRow, m_clock->now().date());
    chooseNow();
    Q_EMIT nowChanged();
}

int GuideController::firstChannelOnAir(const Guide &guide) const
{
    const qint64 now = m_clock->now().toSecsSinceEpoch();
    for (int channel = 0; channel < guide.channelCount(); ++channel) {
        if (guide.programmeAt(channel, now) >= 0)
            return channel;
    }
    return guide.isEmpty() ? -1 : 0;
}

QString GuideController::channelNumber() const
{
    return m_channelRow < 0 ? QString() : m_channels.guide().channel(m_channelRow).number;
}

QString GuideController::channelNameAt(int row) const
{
    const bool exists = row >= 0 && row < m_channels.count();
    return exists ? m_channels.guide().channel(row).name : QString();
}

QString GuideController::channelNameBeside(int key) const
{
    return channelNameAt(m_channelRow + readingStep(key, m_mirrored));
}

QVariant GuideController::chosen(ProgrammeModel::Role role) const
{
    return m_programmeRow < 0 ? QVariant() : m_programmes.data(m_programmes.index(m_programmeRow), role);
}

QString GuideController::timeRange() const
{
    if (m_programmeRow < 0)
        return {};
    return u"%1 – %2"_s.arg(chosen(ProgrammeModel::StartTimeTextRole).toString(),
                            chosen(ProgrammeModel::StopTimeTextRole).toString());
}

QString GuideController::dayText() const
{
    //: Weekday, day and month without the year, in the form that QLocale::toString() takes
    const QString format = QCoreApplication::translate("GuideScreen", "dddd, d MMMM");
    return QLocale().toString(m_clock->now().date(), format);
}

QString GuideController::shortDayText() const
{
    //: As "dddd, d MMMM", but short
    const QString format = QCoreApplication::translate("GuideScreen", "ddd, d MMM");
    return QLocale().toString(m_clock->now().date(), format);
}

QString GuideController::clockText() const
{
    return m_clock->now().toString(u"HH:mm"_s);
}

QString GuideController::message() const
{
    if (m_loader.error().isEmpty())
        return {};
    //: %1 says what is wrong, and where in the file
    return QCoreApplication::translate("GuideScreen", "The guide is not complete: %1").arg(m_loader.error());
}

void GuideController::setRowsPerPage(int rows)
{
    rows = std::max(1, rows);
    if (rows == m_rowsPerPage)
        return;
    m_rowsPerPage = rows;
    Q_EMIT rowsPerPageChanged();
}

void GuideController::setMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    Q_EMIT selectionChanged();
}

bool GuideController::press(int key)
{
    if (isSelectKey(key)) {
        setDetailsOpen(!m_detailsOpen);
        return true;
    }
    if (isBackKey(key)) {
        goBack();
        return true;
    }
    switch (key) {
    case Qt::Key_Up:
        chooseProgramme(m_programmeRow - 1);
        return true;
    case Qt::Key_Down:
        chooseProgramme(m_programmeRow + 1);
        return true;
    case Qt::Key_PageUp:
        chooseProgramme(m_programmeRow - m_rowsPerPage);
        return true;
    case Qt::Key_PageDown:
        chooseProgramme(m_programmeRow + m_rowsPerPage);
        return true;
    case Qt::Key_Home:
        chooseProgramme(0);
        return true;
    case Qt::Key_End:
        chooseProgramme(m_programmes.count() - 1);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        chooseChannel(m_channelRow + readingStep(key, m_mirrored));
        return true;
    default:
        return false;
    }
}

void GuideController::chooseChannel(int row)
{
    if (row < 0 || row >= m_channels.count() || row == m_channelRow)
        return;
    m_channelRow = row;
    m_programmes.setChannel(row);
    m_programmeRow = m_programmes.nearestRow(m_anchor);
    if (m_programmeRow < 0)
        setDetailsOpen(false);
    Q_EMIT selectionChanged();
    Q_EMIT nowChanged();
}

void GuideController::chooseProgramme(int row)
{
    row = std::clamp(row, -1, m_programmes.count() - 1);
    if (m_programmes.count() > 0)
        row = std::max(row, 0);
    if (row == m_programmeRow || row < 0)
        return;
    m_programmeRow = row;
    // A programme that began yesterday would lead to a time that this day's list does not have.
    const QDateTime dayStart = m_programmes.date().startOfDay();
    m_anchor = isLive() ? m_clock->now() : std::max(chosen(ProgrammeModel::StartRole).toDateTime(), dayStart);
    Q_EMIT selectionChanged();
    Q_EMIT nowChanged();
}

void GuideController::chooseNow()
{
    m_anchor = m_clock->now();
    m_programmeRow = m_programmes.nearestRow(m_anchor);
    Q_EMIT selectionChanged();
    Q_EMIT nowChanged();
}

void GuideController::goBack()
{
    if (m_detailsOpen) {
        setDetailsOpen(false);
        return;
    }
    if (m_programmeRow != m_programmes.nearestRow(m_clock->now())) {
        chooseNow();
        return;
    }
    Q_EMIT leaveRequested();
}

void GuideController::setDetailsOpen(bool open)
{
    open = open && m_programmeRow >= 0;
    if (open == m_detailsOpen)
        return;
    m_detailsOpen = open;
    Q_EMIT detailsOpenChanged();
}

void GuideController::tick()
{
    const QDateTime now = m_clock->now();
    m_channels.setNow(now);
    m_programmes.setNow(now);
    if (m_programmes.date() != now.date()) {
        m_programmes.setDate(now.date());
        chooseNow();
    }
    Q_EMIT nowChanged();
}

} // namespace gallery
