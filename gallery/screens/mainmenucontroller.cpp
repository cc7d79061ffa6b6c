// SPDX-License-Identifier: MIT
#include "screens/mainmenucontroller.h"

#include "screens/remotekey.h"

#include <QtCore/qcoreapplication.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

struct Entry
{
    QLatin1StringView screen;
    const char *text;
};

constexpr std::array menuEntries {
    Entry { "home"_L1, QT_TRANSLATE_NOOP("MainMenu", "Home") },
    Entry { "guide"_L1, QT_TRANSLATE_NOOP("MainMenu", "TV guide") },
    Entry { "channels"_L1, QT_TRANSLATE_NOOP("MainMenu", "Channels") },
    Entry { "search"_L1, QT_TRANSLATE_NOOP("MainMenu", "Search") },
    Entry { "settings"_L1, QT_TRANSLATE_NOOP("MainMenu", "Settings") },
    Entry { "components"_L1, QT_TRANSLATE_NOOP("MainMenu", "Components") },
    Entry { "about"_L1, QT_TRANSLATE_NOOP("MainMenu", "About") },
};

} // namespace

MainMenuController::MainMenuController(const QStringList &screens, QObject *parent)
    : QObject(parent)
{
    for (const Entry &entry : menuEntries) {
        if (screens.contains(entry.screen))
            m_entries.append(entry.screen);
    }
}

QString MainMenuController::text(const QString &entry)
{
    const auto found = std::find_if(menuEntries.begin(), menuEntries.end(),
                                    [&entry](const Entry &candidate) { return candidate.screen == entry; });
    return found == menuEntries.end() ? QString() : QCoreApplication::translate("MainMenu", found->text);
}

void MainMenuController::setOpenScreens(const QStringList &screens)
{
    int current = -1;
    for (const QString &screen : screens) {
        // The last one that has an entry.
        if (const int entry = int(m_entries.indexOf(screen)); entry >= 0)
            current = entry;
    }
    if (current == m_current)
        return;
    m_current = current;
    Q_EMIT currentChanged();
}

void MainMenuController::chooseCurrent()
{
    choose(std::max(0, m_current));
}

void MainMenuController::open()
{
    chooseCurrent();
    setOpen(true);
}

void MainMenuController::close()
{
    setOpen(false);
}

void MainMenuController::setMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    Q_EMIT mirroredChanged();
}

bool MainMenuController::press(int key)
{
    if (m_open && pressWhileOpen(key))
        return true;
    if (isSelectKey(key)) {
        if (m_chosen < m_entries.size())
            Q_EMIT activated(m_entries.at(m_chosen));
        return true;
    }
    if (const int step = readingStep(key, m_mirrored)) {
        choose(m_chosen + step);
        return true;
    }
    if (key == Qt::Key_Home || key == Qt::Key_End) {
        choose(key == Qt::Key_Home ? 0 : int(m_entries.size()) - 1);
        return true;
    }
    return key == Qt::Key_Up || key == Qt::Key_PageUp;
}

bool MainMenuController::pressWhileOpen(int key)
{
    const bool closes = isBackKey(key) || isMenuKey(key) || key == Qt::Key_Down || key == Qt::Key_PageDown;
    if (closes)
        close();
    return closes;
}

// The nearest entry that there is.
void MainMenuController::choose(int index)
{
    index = std::clamp(index, 0, std::max(0, int(m_entries.size()) - 1));
    if (index == m_chosen)
        return;
    m_chosen = index;
    Q_EMIT chosenChanged();
}

void MainMenuController::setOpen(bool open)
{
    if (open == m_open)
        return;
    m_open = open;
    Q_EMIT openChanged();
}

} // namespace gallery
