// SPDX-License-Identifier: MIT
#include "screens/guidecontroller.h"
#include "screens/mediaitem.h"

#include "gallery/data/clock.h"
#include "gallery/data/ownguide.h"
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
    connect(&m_loader, &GuideLoader::finished, this, &GuideController::takeLoaded);
}

void GuideController::setReminders(Reminders *reminders)
{
    if (m_reminders != nullptr)
        m_reminders->disconnect(this);
    m_reminders = reminders;
    m_programmes.setReminders(reminders);
    if (m_reminders != nullptr)
        connect(m_reminders, &Reminders::errorChanged, this, &GuideController::messageChanged);
    Q_EMIT messageChanged();
}

void GuideController::load(const GuideFiles &files)
{
    const bool same = files.guide == m_files.guide && files.playlist == m_files.playlist;
    m_loading = contentIn(files.language, same);
    m_files = files;
    m_showsOwnGuide = files.guide.isEmpty();
    m_loader.load(files);
}

void GuideController::takeLoaded()
{
    Q_EMIT messageChanged();
    const bool unreadable = report().outcome == GuideReport::Outcome::Unreadable
                            || playlistReport().outcome == PlaylistReport::Outcome::Unreadable;
    if (m_loading == Content::Other || !unreadable)
        take(m_loader.guide(), m_loading);
}

void GuideController::showOwnGuide(const QString &language)
{
    const Content content = contentIn(language, m_showsOwnGuide && m_files.playlist.isEmpty());
    m_files = { {}, {}, language, {} };
    m_showsOwnGuide = true;
    take(ownGuide(m_clock->now(), language), content);
}

void GuideController::setGuide(const Guide &guide)
{
    m_showsOwnGuide = false;
    take(guide, Content::Other);
}

void GuideController::renewOwnGuide()
{
    if (!m_showsOwnGuide)
        return;
    m_files.now = m_clock->now();
    m_loading = Content::Other;
    if (m_files.playlist.isEmpty())
        take(ownGuide(m_files.now, m_files.language), Content::Other);
    else
        m_loader.load(m_files);
}

// What a guide in \a language is to the one that is shown, when it is made of the \a same things.
Content GuideController::contentIn(const QString &language, bool same) const
{
    const bool shown = m_channelRow >= 0;
    return shown && same && language != m_files.language ? Content::Translated : Content::Other;
}

void GuideController::take(const Guide &guide, Content content)
{
    m_content = content;
    const Kept before = kept();
    const bool again = m_channelRow >= 0;
    m_channels.setGuide(guide);
    if (again) {
        restore(guide, before);
    } else {
        m_programmes.setGuide(guide);
        start();
    }
    Q_EMIT guideShown();
}

void GuideController::start()
{
    setNotice({});
    setDetailsOpen(false);
    m_channels.setNow(m_clock->now());
    m_programmes.setNow(m_clock->now());
    m_days.setToday(m_clock->now().date());
    const int onAir = shownGuide().firstChannelOnAir(m_clock->now().toSecsSinceEpoch());
    m_channelRow = std::max(onAir, shownGuide().isEmpty() ? -1 : 0);
    m_programmes.select(m_channelRow, m_clock->now().date());
    chooseNow();
}

void GuideController::show(int channelRow)
{
    if (channelRow < 0 || channelRow >= m_channels.count())
        return;
    setDetailsOpen(false);
    m_channelRow = channelRow;
    m_programmes.select(channelRow, m_clock->now().date());
    chooseNow();
}

GuideController::Kept GuideController::kept() const
{
    if (m_channelRow < 0)
        return {};
    return { m_channels.guide().channel(m_channelRow).id, title(),
             chosen(ProgrammeModel::StartRole).toDateTime() };
}

// Shows \a guide with what was chosen before, or with what is nearest to it.
void GuideController::restore(const Guide &guide, const Kept &kept)
{
    const int channel = guide.channelIndex(kept.channelId);
    m_channelRow = channel >= 0 ? channel : std::min(m_channelRow, guide.channelCount() - 1);
    m_programmes.select(guide, m_channelRow, m_programmes.date());
    if (m_channelRow < 0)
        setInDays(false);
    chooseAgain(channel >= 0 ? rowOf(kept) : -1);
}

// Chooses \a row, or what is on at the time that was chosen when it is -1.
void GuideController::chooseAgain(int row)
{
    m_programmeRow = row >= 0 ? row : m_programmes.nearestRow(m_anchor);
    if (row < 0)
        setDetailsOpen(false);
    tellSelection();
}

// The row of the programme that \a kept tells of, also when it was moved by an hour at most; -1 without. A translated one
// has another title.
int GuideController::rowOf(const Kept &kept) const
{
    if (!kept.start.isValid() || m_channelRow < 0)
        return -1;
    const Guide guide = shownGuide();
    const qint64 start = kept.start.toSecsSinceEpoch();
    if (m_content == Content::Other)
        return m_programmes.rowOf(guide.programmeLike(m_channelRow, start, kept.title));
    const int programme = guide.programmeAt(m_channelRow, start);
    const bool same = programme >= 0 && guide.timeSpan(m_channelRow, programme).start == start;
    return same ? m_programmes.rowOf(programme) : -1;
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

GuideController::PlayAction GuideController::playAction() const
{
    // Asked of the plain model: there the lock makes no difference.
    const QModelIndex programme = m_programmes.index(m_programmeRow);
    if (!m_programmes.ProgrammeModel::data(programme, ProgrammeModel::IsPlayableRole).toBool())
        return NothingToPlay;
    return isLive() ? PlayLive : PlayFromStart;
}

QString GuideController::timeRange() const
{
    if (m_programmeRow < 0)
        return {};
    return timeRangeText(chosen(ProgrammeModel::StartTimeTextRole).toString(),
                         chosen(ProgrammeModel::StopTimeTextRole).toString());
}

QString GuideController::dayText() const
{
    //: Weekday, day and month without the year, in the form that QLocale::toString() takes
    const QString format = QCoreApplication::translate("GuideScreen", "dddd, d MMMM");
    return QLocale().toString(date(), format);
}

QString GuideController::shortDayText() const
{
    //: As "dddd, d MMMM", but short
    const QString format = QCoreApplication::translate("GuideScreen", "ddd, d MMM");
    return QLocale().toString(date(), format);
}

QString GuideController::clockText() const
{
    return m_clock->now().toString(u"HH:mm"_s);
}

QString GuideController::message() const
{
    //: %1 says what is wrong, and where in the file
    const QString incomplete = QCoreApplication::translate("GuideScreen", "The guide is not complete: %1");
    if (!m_loader.error().isEmpty())
        return incomplete.arg(m_loader.error());
    if (m_reminders == nullptr || m_reminders->error().isEmpty())
        return {};
    //: %1 names the file and says what is wrong
    return QCoreApplication::translate("GuideScreen", "Reminders: %1").arg(m_reminders->error());
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

void GuideController::setDetailsPages(int pages)
{
    pages = std::max(1, pages);
    if (pages == m_detailsPages)
        return;
    m_detailsPages = pages;
    m_detailsPage = std::min(m_detailsPage, pages - 1);
    Q_EMIT detailsPageChanged();
}

void GuideController::chooseChannel(int row)
{
    if (row < 0 || row >= m_channels.count() || row == m_channelRow)
        return;
    m_channelRow = row;
    m_programmes.setChannel(row);
    chooseAtAnchor();
}

void GuideController::chooseDay(int row)
{
    if (row < 0 || row >= m_days.count() || row == dayRow() || m_channelRow < 0)
        return;
    chooseDate(m_days.dateAt(row));
}

// Shows \a date, and what is on there at the time of day that was chosen.
void GuideController::chooseDate(QDate date)
{
    const QDateTime sameTime(date, m_timeOfDay);
    m_programmes.setDate(date);
    // The time may be one that the clocks leave out on this day.
    m_anchor = sameTime.isValid() ? sameTime
                                  : date.startOfDay().addSecs(m_timeOfDay.msecsSinceStartOfDay() / 1000);
    chooseAtAnchor();
}

void GuideController::chooseProgramme(int row)
{
    row = std::clamp(row, -1, m_programmes.count() - 1);
    if (m_programmes.count() > 0)
        row = std::max(row, 0);
    if (row == m_programmeRow || row < 0)
        return;
    m_programmeRow = row;
    setDetailsPage(0);
    // A programme that began yesterday would lead to a time that this day's list does not have.
    const QDateTime dayStart = m_programmes.date().startOfDay();
    moveAnchor(isLive() ? m_clock->now() : std::max(chosen(ProgrammeModel::StartRole).toDateTime(), dayStart));
    tellSelection();
}

void GuideController::chooseNow()
{
    setInDays(false);
    m_programmes.setDate(m_clock->now().date());
    moveAnchor(m_clock->now());
    chooseAtAnchor();
}

void GuideController::chooseAtAnchor()
{
    m_programmeRow = m_programmes.nearestRow(m_anchor);
    setDetailsPage(0);
    if (m_programmeRow < 0)
        setDetailsOpen(false);
    tellSelection();
}

void GuideController::moveAnchor(const QDateTime &time)
{
    m_anchor = time;
    m_timeOfDay = time.time();
}

void GuideController::tellSelection()
{
    m_days.show(shownGuide(), m_channelRow);
    updateBackAction();
    Q_EMIT selectionChanged();
    Q_EMIT nowChanged();
}

void GuideController::setInDays(bool inDays)
{
    inDays = inDays && m_channelRow >= 0;
    if (inDays == m_inDays)
        return;
    if (inDays)
        setDetailsOpen(false);
    m_inDays = inDays;
    updateBackAction();
    Q_EMIT inDaysChanged();
}

void GuideController::setDetailsOpen(bool open)
{
    open = open && m_programmeRow >= 0 && !m_inDays;
    if (open == m_detailsOpen)
        return;
    m_detailsOpen = open;
    setDetailsPage(0);
    updateBackAction();
    Q_EMIT detailsOpenChanged();
}

void GuideController::setDetailsPage(int page)
{
    if (page == m_detailsPage)
        return;
    m_detailsPage = page;
    Q_EMIT detailsPageChanged();
}

GuideController::BackAction GuideController::nextBackAction() const
{
    const QDateTime now = m_clock->now();
    if (m_detailsOpen)
        return CloseDetails;
    const bool isNow = !m_inDays && date() == now.date() && m_programmeRow == m_programmes.nearestRow(now);
    return isNow ? Leave : ShowNow;
}

void GuideController::updateBackAction()
{
    const BackAction action = nextBackAction();
    if (action == m_backAction)
        return;
    m_backAction = action;
    Q_EMIT backActionChanged();
}

void GuideController::setNotice(const QString &notice)
{
    if (notice == m_notice)
        return;
    m_notice = notice;
    Q_EMIT noticeChanged();
}

void GuideController::tick()
{
    const QDateTime now = m_clock->now();
    m_channels.setNow(now);
    m_programmes.setNow(now);
    if (m_days.today() != now.date()) {
        moveToday(now.date());
        renewOwnGuide();
    }
    // A time that was only made up must not cost the viewer's reminders.
    if (m_reminders != nullptr && !m_clock->isFixed())
        m_reminders->dropExpired(now);
    updateBackAction();
    Q_EMIT nowChanged();
}

// The next day has begun: what was shown of today becomes what is on now, unless it runs over midnight.
void GuideController::moveToday(QDate today)
{
    const bool wasToday = date() == m_days.today();
    m_days.setToday(today);
    if (!wasToday) {
        // The row of days has lost its first one.
        chooseDate(m_days.dateAt(dayRow()));
        return;
    }
    const Kept before = kept();
    m_programmes.setDate(today);
    moveAnchor(m_clock->now());
    chooseAgain(rowOf(before));
}

} // namespace gallery
