// SPDX-License-Identifier: MIT
// What remote keys do in the guide.
#include "screens/guidecontroller.h"

#include "gallery/data/clock.h"
#include "screens/mediaitem.h"
#include "screens/remotekey.h"

namespace gallery {

bool GuideController::press(int key)
{
    setNotice({});
    if (isSelectKey(key))
        select();
    else if (isBackKey(key))
        goBack();
    else
        return pressAnywhere(key) || (m_inDays ? pressInDays(key) : pressInProgrammes(key));
    return true;
}

bool GuideController::pressAnywhere(int key)
{
    if (const int step = channelStep(key)) {
        chooseChannel(m_channelRow + step);
        return true;
    }
    if (isPlayPauseKey(key)) {
        play();
        return true;
    }
    switch (remoteKey(key)) {
    case Qt::Key_MediaNext:
        chooseDay(dayRow() + 1);
        return true;
    case Qt::Key_MediaPrevious:
        chooseDay(dayRow() - 1);
        return true;
    case Qt::Key_Green:
        setInDays(!m_inDays);
        return true;
    case Qt::Key_Info:
        setDetailsOpen(!m_detailsOpen);
        return true;
    default:
        return false;
    }
}

bool GuideController::pressInDays(int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        chooseDay(dayRow() + readingStep(key, m_mirrored));
        return true;
    case Qt::Key_Home:
        chooseDay(0);
        return true;
    case Qt::Key_End:
        chooseDay(m_days.count() - 1);
        return true;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        setInDays(false);
        return true;
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        return true;
    default:
        return false;
    }
}

bool GuideController::pressInProgrammes(int key)
{
    switch (key) {
    case Qt::Key_Up:
        if (!turnPage(-1))
            goUp();
        return true;
    case Qt::Key_Down:
        if (!turnPage(1))
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

void GuideController::select()
{
    if (m_inDays) {
        setInDays(false);
    } else if (m_detailsOpen) {
        play();
        if (m_notice.isEmpty())
            setDetailsOpen(false);
    } else if (!isFuture() || !m_programmes.toggleReminder(m_programmeRow)) {
        setDetailsOpen(true);
    }
}

void GuideController::play()
{
    const PlayAction action = playAction();
    if (action == NothingToPlay)
        return;
    if (m_programmes.isLocked())
        setNotice(lockedText());
    else
        Q_EMIT playRequested(m_channelRow, action == PlayLive
                                                   ? QDateTime()
                                                   : chosen(ProgrammeModel::StartRole).toDateTime());
}

// Shows another page of the details; false when there is none.
bool GuideController::turnPage(int step)
{
    const int page = m_detailsPage + step;
    if (!m_detailsOpen || page < 0 || page >= m_detailsPages)
        return false;
    setDetailsPage(page);
    return true;
}

void GuideController::goUp()
{
    if (m_programmeRow > 0)
        chooseProgramme(m_programmeRow - 1);
    else if (!m_detailsOpen)
        setInDays(true);
}

void GuideController::goBack()
{
    switch (m_backAction) {
    case CloseDetails:
        setDetailsOpen(false);
        return;
    case ShowNow:
        chooseNow();
        return;
    case Leave:
        Q_EMIT leaveRequested();
        return;
    }
}

} // namespace gallery
