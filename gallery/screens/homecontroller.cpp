// SPDX-License-Identifier: MIT
#include "screens/homecontroller.h"

#include "gallery/data/clock.h"
#include "screens/mainmenucontroller.h"
#include "screens/marks.h"
#include "screens/remotekey.h"

#include <algorithm>

namespace gallery {

HomeController::HomeController(Clock *clock, Marks *favourites, MainMenuController *menu, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
    , m_favourites(favourites)
    , m_menu(menu)
    , m_rows(favourites)
{
    connect(m_clock, &Clock::nowChanged, this, &HomeController::showProgrammes);
    for (const auto &row : m_rows.all())
        connect(row.get(), &HomeRow::currentChanged, this, &HomeController::itemChanged);
}

void HomeController::setGuide(const Guide &guide)
{
    m_guide = guide;
    showProgrammes();
}

void HomeController::showProgrammes()
{
    m_rows.setItems(HomeRow::NowOnTv, programmesAt(m_guide, m_clock->now()));
    repairFocus();
    Q_EMIT itemsChanged();
}

void HomeController::setCatalogue(const Catalogue &catalogue, Content content)
{
    QList<MediaItem> films;
    QList<MediaItem> series;
    QList<MediaItem> started;
    QSet<QString> favourites;
    for (int i = 0; i < catalogue.count(); ++i) {
        const MediaItem item = catalogueItem(catalogue, i);
        if (catalogue.entry(i).isStarted())
            started.append(item);
        if (item.kind == MediaItem::Kind::Film)
            films.append(item);
        else if (item.kind == MediaItem::Kind::Series)
            series.append(item);
        if (catalogue.entry(i).favourite)
            favourites.insert(item.id);
    }
    m_rows.setItems(HomeRow::Films, films);
    m_rows.setItems(HomeRow::Series, series);
    m_rows.setItems(HomeRow::ContinueWatching, started);
    if (content == Content::Other)
        m_favourites->reset(favourites);
    repairFocus();
    Q_EMIT itemsChanged();
}

void HomeController::start()
{
    for (const auto &row : m_rows.all())
        row->setCurrent(0);
    m_inHeader = false;
    m_touched = false;
    m_row = nullptr;
    setLeaving(false);
    repairFocus();
}

void HomeController::enterMenu()
{
    m_touched = true;
    setInHeader(true);
}

void HomeController::leaveMenu()
{
    setLeaving(false);
    setInHeader(false);
}

void HomeController::chooseFirstVideo()
{
    for (int i = 0; i < m_rows.count(); ++i) {
        if (m_rows.at(i)->kind() == HomeRow::NowOnTv)
            continue;
        m_touched = true;
        chooseRow(i);
        return;
    }
}

const MediaItem *HomeController::find(const QString &id) const
{
    for (const auto &row : m_rows.all()) {
        if (const MediaItem *item = row->find(id))
            return item;
    }
    return nullptr;
}

QString HomeController::subtitle() const
{
    // The second line of a film repeats its facts.
    return item() != nullptr && item()->isProgramme() ? item()->subtitle : QString();
}

void HomeController::setMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    Q_EMIT mirroredChanged();
}

bool HomeController::press(int key)
{
    m_touched = true;
    if (isBackKey(key)) {
        goBack();
        return true;
    }
    setLeaving(false);
    if (isMenuKey(key)) {
        setInHeader(!m_inHeader);
        return true;
    }
    return isInHeader() ? pressInHeader(key) : pressInRows(key);
}

bool HomeController::pressInHeader(int key)
{
    if (key == Qt::Key_Down || key == Qt::Key_PageDown) {
        setInHeader(false);
        return true;
    }
    return m_menu->press(key);
}

bool HomeController::pressInRows(int key)
{
    if (isSelectKey(key) || remoteKey(key) == Qt::Key_Info) {
        Q_EMIT itemOpened();
        return true;
    }
    if (remoteKey(key) == Qt::Key_Yellow) {
        m_favourites->toggle(item()->id);
        return true;
    }
    if (const int step = readingStep(key, m_mirrored)) {
        m_row->setCurrent(m_row->current() + step);
        return true;
    }
    switch (key) {
    case Qt::Key_Home:
        m_row->setCurrent(0);
        return true;
    case Qt::Key_End:
        m_row->setCurrent(m_row->count() - 1);
        return true;
    case Qt::Key_Up:
        if (rowIndex() == 0)
            setInHeader(true);
        else
            chooseRow(rowIndex() - 1);
        return true;
    case Qt::Key_PageUp:
        chooseRow(std::max(0, rowIndex() - 1));
        return true;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        chooseRow(std::min(rowIndex() + 1, m_rows.count() - 1));
        return true;
    default:
        return false;
    }
}

void HomeController::goBack()
{
    if (isInHeader()) {
        if (m_leaving)
            Q_EMIT leaveRequested();
        else
            setLeaving(true);
        return;
    }
    if (m_row->current() > 0)
        m_row->setCurrent(0);
    else if (rowIndex() > 0)
        chooseRow(0);
    else
        setInHeader(true);
}

void HomeController::chooseRow(int index)
{
    if (m_rows.at(index) == m_row)
        return;
    m_row = m_rows.at(index);
    Q_EMIT selectionChanged();
    Q_EMIT itemChanged();
}

void HomeController::setInHeader(bool inHeader)
{
    m_inHeader = inHeader && m_row != nullptr;
    m_menu->chooseCurrent();
    Q_EMIT selectionChanged();
}

void HomeController::setLeaving(bool leaving)
{
    if (leaving == m_leaving)
        return;
    m_leaving = leaving;
    Q_EMIT leavingChanged();
}

void HomeController::repairFocus()
{
    if (!m_touched || m_rows.indexOf(m_row) < 0)
        m_row = m_rows.at(0);
    // The same row may have another place now.
    Q_EMIT selectionChanged();
    Q_EMIT itemChanged();
}

} // namespace gallery
