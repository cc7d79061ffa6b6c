// SPDX-License-Identifier: MIT
#include "screens/detailcontroller.h"

#include "gallery/data/clock.h"
#include "gallery/data/programmereminders.h"
#include "screens/marks.h"
#include "screens/remotekey.h"

#include <algorithm>

namespace gallery {

DetailController::DetailController(Marks *favourites, Marks *likes, QObject *parent)
    : QObject(parent)
    , m_favourites(favourites)
    , m_likes(likes)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(openingTime);
    connect(&m_timer, &QTimer::timeout, this, &DetailController::finishOpening);
    connect(m_favourites, &Marks::changed, this, &DetailController::marksChanged);
    connect(m_likes, &Marks::changed, this, &DetailController::marksChanged);
}

void DetailController::setReminders(const Clock *clock, Reminders *reminders)
{
    m_clock = clock;
    m_reminders = reminders;
    connect(clock, &Clock::nowChanged, this, &DetailController::followClock);
    connect(reminders, &Reminders::changed, this, &DetailController::marksChanged);
}

void DetailController::followClock()
{
    if (isToCome() == m_wasToCome)
        return;
    m_wasToCome = isToCome();
    Q_EMIT itemChanged();
}

bool DetailController::isToCome() const
{
    return m_clock != nullptr && m_item.isProgramme() && m_item.start > m_clock->now();
}

void DetailController::setGuide(const Guide &guide)
{
    m_guide = guide;
    Q_EMIT marksChanged();
}

// The programme in the guide; -1 when that does not have it.
int DetailController::programmeRow() const
{
    const int channel = m_item.isProgramme() ? channelRow() : -1;
    return channel < 0 ? -1 : m_guide.programmeLike(channel, m_item.start.toSecsSinceEpoch(), m_item.title);
}

bool DetailController::hasReminder() const
{
    const int programme = programmeRow();
    return m_reminders != nullptr && programme >= 0
           && gallery::hasReminder(*m_reminders, m_guide, channelRow(), programme);
}

void DetailController::toggleReminder()
{
    if (const int programme = programmeRow(); programme >= 0)
        gallery::toggleReminder(m_reminders, m_guide, channelRow(), programme);
}

void DetailController::show(const MediaItem &item)
{
    m_item = item;
    m_wasToCome = isToCome();
    m_button = PlayButton;
    m_refused = false;
    setOpening(NoButton, false);
    Q_EMIT itemChanged();
    Q_EMIT marksChanged();
    Q_EMIT buttonChanged();
}

void DetailController::update(const MediaItem &item)
{
    if (item == m_item)
        return;
    m_item = item;
    m_wasToCome = isToCome();
    Q_EMIT itemChanged();
    Q_EMIT marksChanged();
}

bool DetailController::isFavourite() const
{
    return m_favourites->contains(m_item.id);
}

bool DetailController::isLiked() const
{
    return m_likes->contains(m_item.id);
}

QString DetailController::message() const
{
    if (m_refused)
        return lockedText();
    return m_opened ? noPlayerText() : QString();
}

void DetailController::refuse()
{
    setRefused(true);
}

void DetailController::setRefused(bool refused)
{
    if (refused == m_refused)
        return;
    m_refused = refused;
    Q_EMIT openingChanged();
}

void DetailController::setMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    Q_EMIT mirroredChanged();
}

QList<DetailController::Button> DetailController::buttons() const
{
    const Button further = m_item.isProgramme() ? GuideButton : isOfSeries() ? EpisodesButton : TrailerButton;
    return { PlayButton, FavouriteButton, further, RateButton };
}

bool DetailController::press(int key)
{
    setRefused(false);
    if (isBackKey(key)) {
        if (m_opening == NoButton)
            Q_EMIT backRequested();
        else
            setOpening(NoButton, false);
        return true;
    }
    if (isSelectKey(key)) {
        activate();
        return true;
    }
    if (remoteKey(key) == Qt::Key_Yellow) {
        m_favourites->toggle(m_item.id);
        return true;
    }
    const int index = int(buttons().indexOf(m_button));
    if (const int step = readingStep(key, m_mirrored)) {
        choose(index + step);
        return true;
    }
    if (key == Qt::Key_Home || key == Qt::Key_End) {
        choose(key == Qt::Key_Home ? 0 : int(buttons().size()) - 1);
        return true;
    }
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

void DetailController::choose(int index)
{
    const Button button = buttons().at(std::clamp(index, 0, int(buttons().size()) - 1));
    if (button == m_button)
        return;
    m_button = button;
    Q_EMIT buttonChanged();
}

void DetailController::activate()
{
    switch (m_button) {
    case NoButton:
        return;
    case PlayButton:
    case TrailerButton:
        play();
        return;
    case FavouriteButton:
        m_favourites->toggle(m_item.id);
        return;
    case RateButton:
        m_likes->toggle(m_item.id);
        return;
    case GuideButton:
        Q_EMIT guideRequested();
        return;
    case EpisodesButton:
        Q_EMIT episodesRequested();
        return;
    }
}

void DetailController::play()
{
    if (isToCome() && m_button == PlayButton)
        toggleReminder();
    else if (m_item.isProgramme())
        Q_EMIT watchRequested();
    else if (m_opening == NoButton)
        setOpening(m_button, false);
}

void DetailController::finishOpening()
{
    if (m_opening != NoButton)
        setOpening(NoButton, true);
}

void DetailController::setOpening(Button button, bool opened)
{
    if (button == NoButton)
        m_timer.stop();
    else
        m_timer.start();
    m_opening = button;
    m_opened = opened;
    Q_EMIT openingChanged();
}

} // namespace gallery
