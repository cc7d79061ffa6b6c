// SPDX-License-Identifier: MIT
#include "screens/playercontroller.h"

#include "gallery/data/clock.h"
#include "screens/marks.h"
#include "screens/mediaitem.h"
#include "screens/remotekey.h"

#include <QtCore/qcoreapplication.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

constexpr qint64 catchUpTime = 7 * 24 * 3600; // seconds

/*! As channelStep(); the page keys stand for the channel keys where a remote has none. */
constexpr int zapStep(int key)
{
    if (key == Qt::Key_PageUp)
        return 1;
    return key == Qt::Key_PageDown ? -1 : channelStep(key);
}

/*! The same, where the arrows stand for the channel keys. */
constexpr int arrowStep(int key)
{
    if (key == Qt::Key_Up)
        return 1;
    return key == Qt::Key_Down ? -1 : 0;
}

} // namespace

PlayerController::PlayerController(Clock *clock, Marks *favourites, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
    , m_favourites(favourites)
{
    m_idle.setObjectName(QStringLiteral("idle"));
    m_idle.setSingleShot(true);
    m_idle.setInterval(idleTime);
    connect(&m_idle, &QTimer::timeout, this, &PlayerController::hideOverlay);
    connect(m_favourites, &Marks::changed, this, &PlayerController::marksChanged);
    connect(m_clock, &Clock::nowChanged, this, &PlayerController::tick);
    tick();
}

void PlayerController::setGuide(const Guide &guide)
{
    const bool wasChosen = m_programmeRow >= 0;
    const qint64 start = wasChosen ? m_programmes.timeSpan(m_programmeRow).start : 0;
    const QString title = m_programmes.index(m_programmeRow).data(PlayerProgrammes::TitleRole).toString();
    m_guide = guide;
    if (!m_channelId.isEmpty())
        findChannelAgain();
    m_programmes.select(m_guide, m_channelRow);
    const int same = wasChosen ? m_programmes.rowOf(start, title) : -1;
    m_programmeRow = same >= 0 ? same : m_programmes.nearestRow(m_anchor.value_or(now()));
    Q_EMIT channelChanged();
    Q_EMIT playingChanged();
    Q_EMIT marksChanged();
    finishSelection();
}

void PlayerController::findChannelAgain()
{
    const int same = m_guide.channelIndex(m_channelId);
    if (same >= 0 || m_guide.isEmpty()) {
        m_channelRow = same;
        return;
    }
    const int near = std::clamp(m_channelRow, 0, m_guide.channelCount() - 1);
    const int unlocked = unlockedFrom(near, 1);
    m_channelRow = unlocked >= 0 ? unlocked : near;
    m_channelId = channel().id;
    m_behind = 0;
    m_paused = false;
}

bool PlayerController::play(int channelRow, const QDateTime &from)
{
    if (channelRow < 0 || channelRow >= m_guide.channelCount() || m_guide.channel(channelRow).locked)
        return false;
    watch(channelRow);
    const qint64 behind = from.isValid() ? now() - from.toSecsSinceEpoch() : 0;
    setPlaying(behind <= catchUpTime ? std::max<qint64>(behind, 0) : 0, false);
    chooseAnew();
    show(Programmes);
    waitForIdle();
    return true;
}

Channel PlayerController::channel() const
{
    return m_channelRow < 0 ? Channel() : m_guide.channel(m_channelRow);
}

qint64 PlayerController::now() const
{
    return m_clock->now().toSecsSinceEpoch();
}

QVariant PlayerController::watched(PlayerProgrammes::Role role) const
{
    const int row = watchedRow();
    return row < 0 ? QVariant() : m_programmes.data(m_programmes.index(row), role);
}

QString PlayerController::timeText(qint64 TimeSpan::*end) const
{
    const int row = watchedRow();
    return row < 0 ? QString()
                   : QDateTime::fromSecsSinceEpoch(m_programmes.timeSpan(row).*end).toString(u"HH:mm"_s);
}

QString PlayerController::startText() const
{
    return timeText(&TimeSpan::start);
}

QString PlayerController::stopText() const
{
    return timeText(&TimeSpan::stop);
}

QString PlayerController::facts() const
{
    QStringList parts;
    if (const int row = watchedRow(); row >= 0) {
        const Programme programme = m_guide.programme(m_channelRow, row);
        parts = { programme.category, programme.shownSubtitle() };
    }
    if (m_paused)
        parts.prepend(QCoreApplication::translate("PlayerScreen", "Paused"));
    if (m_behind >= 60) {
        //: %1 is how long ago it was sent what is watched: "12 min"
        parts.append(QCoreApplication::translate("PlayerScreen", "%1 behind live")
                             .arg(lengthText(double(m_behind))));
    }
    parts.removeAll(QString());
    return parts.join(u" · "_s);
}

double PlayerController::progress() const
{
    const int row = watchedRow();
    return row < 0 ? 0 : m_programmes.timeSpan(row).progressAt(moment());
}

QString PlayerController::clockText() const
{
    return m_clock->now().toString(u"HH:mm"_s);
}

bool PlayerController::isFavourite() const
{
    return m_channelRow >= 0 && m_favourites->contains(channelItemId(channel().id));
}

QList<PlayerController::Button> PlayerController::buttons() const
{
    QList<Button> all { PauseButton, StartOverButton, LiveButton, FavouriteButton, GuideButton };
    if (!canStartOver())
        all.removeOne(StartOverButton);
    return all;
}

bool PlayerController::canStartOver() const
{
    if (m_programmeRow < 0)
        return false;
    const qint64 ago = now() - m_programmes.timeSpan(m_programmeRow).start;
    return ago >= 0 && ago <= catchUpTime;
}

void PlayerController::setMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    Q_EMIT mirroredChanged();
}

bool PlayerController::press(int key)
{
    bool handled = true;
    if (isBackKey(key)) {
        if (m_area == Picture)
            Q_EMIT leaveRequested();
        else
            hideOverlay();
    } else if (const int step = zapStep(key)) {
        zap(step);
    } else if (pressShortcut(key)) {
        // Done, wherever the keys are.
    } else if (m_area == Picture) {
        handled = pressOnPicture(key);
    } else {
        handled = m_area == Programmes ? pressOnProgrammes(key) : pressOnButtons(key);
    }
    waitForIdle();
    return handled;
}

bool PlayerController::pressShortcut(int key)
{
    const int meant = remoteKey(key);
    if (isPlayPauseKey(key)) {
        if (m_paused ? meant != Qt::Key_MediaPause : meant != Qt::Key_MediaPlay)
            activate(PauseButton);
        if (m_area == Picture) {
            chooseAnew();
            show(Buttons);
        }
    } else if (meant == Qt::Key_Yellow) {
        activate(FavouriteButton);
    } else if (meant == Qt::Key_Info) {
        if (m_area == Picture)
            chooseAnew();
        show(m_area == Programmes ? Picture : Programmes);
    } else {
        return false;
    }
    return true;
}

bool PlayerController::pressOnPicture(int key)
{
    if (const int step = arrowStep(key)) {
        zap(step);
        return true;
    }
    if (!isSelectKey(key) && readingStep(key, m_mirrored) == 0)
        return key == Qt::Key_Home || key == Qt::Key_End;
    chooseAnew();
    show(isSelectKey(key) ? Buttons : Programmes);
    return true;
}

bool PlayerController::pressOnProgrammes(int key)
{
    if (isSelectKey(key)) {
        show(Buttons);
    } else if (const int step = arrowStep(key)) {
        zap(step);
    } else if (const int next = readingStep(key, m_mirrored)) {
        chooseProgramme(m_programmeRow + next);
    } else if (key == Qt::Key_Home || key == Qt::Key_End) {
        chooseProgramme(key == Qt::Key_Home ? 0 : m_programmes.count() - 1);
    } else {
        return false;
    }
    return true;
}

bool PlayerController::pressOnButtons(int key)
{
    if (isSelectKey(key)) {
        activate(m_button);
    } else if (key == Qt::Key_Up) {
        show(Programmes);
    } else if (const int step = readingStep(key, m_mirrored)) {
        chooseButton(int(buttons().indexOf(m_button)) + step);
    } else if (key == Qt::Key_Home || key == Qt::Key_End) {
        chooseButton(key == Qt::Key_Home ? 0 : int(buttons().size()) - 1);
    } else {
        return key == Qt::Key_Down;
    }
    return true;
}

void PlayerController::activate(Button button)
{
    switch (button) {
    case PauseButton:
        setPlaying(m_behind, !m_paused && m_channelRow >= 0);
        return;
    case StartOverButton:
        setPlaying(now() - m_programmes.timeSpan(m_programmeRow).start, false);
        return;
    case LiveButton:
        watchLive();
        return;
    case FavouriteButton:
        if (m_channelRow >= 0)
            m_favourites->toggle(channelItemId(channel().id));
        return;
    case GuideButton:
        Q_EMIT guideRequested();
        return;
    }
}

void PlayerController::zap(int step)
{
    if (m_area == Picture) {
        m_anchor.reset();
        m_button = PauseButton;
        m_area = Programmes;
    }
    const int next = unlockedFrom(m_channelRow < 0 ? 0 : m_channelRow + step, step);
    if (next >= 0 && next != m_channelRow) {
        watch(next);
        watchLive();
    }
    m_programmeRow = m_programmes.nearestRow(m_anchor.value_or(now()));
    finishSelection();
}

// The first channel that is not locked, from \a channelRow on in steps of \a step; -1 when all are, or without any.
int PlayerController::unlockedFrom(int channelRow, int step) const
{
    const int count = m_guide.channelCount();
    for (int i = 0; i < count; ++i) {
        const int row = ((channelRow + i * step) % count + count) % count;
        if (!m_guide.channel(row).locked)
            return row;
    }
    return -1;
}

bool PlayerController::canZap() const
{
    const int next = unlockedFrom(m_channelRow + 1, 1);
    return next >= 0 && next != m_channelRow;
}

void PlayerController::watch(int channelRow)
{
    m_channelRow = channelRow;
    m_channelId = channel().id;
    m_programmes.select(m_guide, channelRow);
    Q_EMIT channelChanged();
    Q_EMIT marksChanged();
}

void PlayerController::watchLive()
{
    setPlaying(0, false);
}

void PlayerController::setPlaying(qint64 behind, bool paused)
{
    m_behind = behind;
    m_paused = paused;
    Q_EMIT playingChanged();
}

void PlayerController::show(Area area)
{
    m_area = area;
    finishSelection();
}

void PlayerController::hideOverlay()
{
    m_idle.stop();
    if (m_area != Picture)
        show(Picture);
}

void PlayerController::chooseProgramme(int row)
{
    if (m_programmes.count() == 0)
        return;
    m_programmeRow = std::clamp(row, 0, m_programmes.count() - 1);
    const TimeSpan time = m_programmes.timeSpan(m_programmeRow);
    if (time.contains(now()))
        m_anchor.reset();
    else
        m_anchor = time.start;
    finishSelection();
}

void PlayerController::chooseButton(int index)
{
    const QList<Button> all = buttons();
    m_button = all.at(std::clamp(index, 0, int(all.size()) - 1));
    finishSelection();
}

// What is watched, and the first button.
void PlayerController::chooseAnew()
{
    m_anchor.reset();
    m_button = PauseButton;
    m_programmeRow = m_programmes.nearestRow(moment());
}

// A button that is not there any more hands the keys to the first one.
void PlayerController::finishSelection()
{
    if (!buttons().contains(m_button))
        m_button = PauseButton;
    Q_EMIT selectionChanged();
}

void PlayerController::waitForIdle()
{
    if (m_area == Picture || m_paused)
        m_idle.stop();
    else
        m_idle.start();
}

void PlayerController::tick()
{
    const qint64 before = m_now;
    m_now = now();
    // What pauses stays where it is while the channel goes on.
    if (m_paused)
        m_behind = std::max<qint64>(0, m_behind + m_now - before);
    m_programmes.setNow(m_clock->now());
    if (m_area == Picture)
        m_programmeRow = m_programmes.nearestRow(moment());
    finishSelection();
    Q_EMIT playingChanged();
}

} // namespace gallery
