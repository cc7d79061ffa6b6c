// SPDX-License-Identifier: MIT
#include "screens/settingscontroller.h"

#include "screens/remotekey.h"
#include "screens/settingsstore.h"

#include <QtCore/qhash.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

class MemoryStore : public SettingsStore
{
public:
    QVariant value(const QString &group, const QString &key, const QVariant &defaultValue) const override
    {
        return m_values.value({ group, key }, defaultValue);
    }
    bool setValue(const QString &group, const QString &key, const QVariant &value) override
    {
        m_values.insert({ group, key }, value);
        return true;
    }

private:
    QHash<QPair<QString, QString>, QVariant> m_values;
};

} // namespace

SettingsController::SettingsController(QObject *parent)
    : QObject(parent)
    , m_memory(std::make_unique<MemoryStore>())
    , m_store(m_memory.get())
{
}

SettingsController::~SettingsController() = default;

void SettingsController::setStore(SettingsStore *store)
{
    m_store = store == nullptr ? m_memory.get() : store;
    m_ownTheme.clear();
    refresh();
}

void SettingsController::start()
{
    setUnsaved(false);
    select(0, false, 0);
}

void SettingsController::refresh()
{
    const QString ownTheme = ownThemeOf(*m_store);
    if (!ownTheme.isEmpty())
        m_ownTheme = ownTheme;
    Q_EMIT sectionsChanged();
    Q_EMIT checkedChanged();
    select(m_group, m_inValues, std::min(m_row, int(rows().size()) - 1));
}

QList<SettingsSection> SettingsController::sectionsOf(SettingsGroup group) const
{
    return settingsSections(group, *m_store, m_ownTheme);
}

QList<SettingsRow> SettingsController::rows() const
{
    QList<SettingsRow> result;
    const QList<SettingsSection> sections = sectionsOf(SettingsGroup(m_group));
    for (const SettingsSection &section : sections)
        result += section.rows;
    return result;
}

QVariantList SettingsController::sections() const
{
    QVariantList result;
    int number = 0;
    const QList<SettingsSection> sections = sectionsOf(SettingsGroup(m_group));
    for (const SettingsSection &section : sections) {
        QVariantList rows;
        for (const SettingsRow &row : section.rows)
            rows.append(QVariantMap { { u"title"_s, row.title }, { u"row"_s, number++ } });
        result.append(QVariantMap { { u"heading"_s, section.heading },
                                    { u"exclusive"_s, section.exclusive },
                                    { u"rows"_s, rows } });
    }
    return result;
}

QList<bool> SettingsController::checked() const
{
    QList<bool> result;
    const QList<SettingsRow> all = rows();
    for (const SettingsRow &row : all)
        result.append(row.checked);
    return result;
}

void SettingsController::setMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    Q_EMIT mirroredChanged();
}

QString SettingsController::checkedTitle(SettingsGroup group, const QString &key) const
{
    const QList<SettingsSection> sections = sectionsOf(group);
    for (const SettingsSection &section : sections) {
        for (const SettingsRow &row : section.rows) {
            if (row.key == key && row.checked)
                return row.title;
        }
    }
    return {};
}

QString SettingsController::themeTitle() const
{
    return checkedTitle(SettingsGroup::Picture, u"theme"_s);
}

QString SettingsController::languageTitle() const
{
    return checkedTitle(SettingsGroup::Language, u"language"_s);
}

bool SettingsController::press(int key)
{
    if (isBackKey(key)) {
        if (m_inValues)
            focusGroup(m_group);
        else
            Q_EMIT leaveRequested();
        return true;
    }
    if (isSelectKey(key)) {
        if (m_inValues)
            choose(m_row);
        else
            open(m_group);
        return true;
    }
    if (const int step = readingStep(key, m_mirrored)) {
        if (step > 0 && !m_inValues)
            open(m_group);
        else if (step < 0)
            focusGroup(m_group);
        return true;
    }
    return pressUpOrDown(key);
}

bool SettingsController::pressUpOrDown(int key)
{
    const auto go = [this](int place) { m_inValues ? focusRow(place) : focusGroup(place); };
    const int place = m_inValues ? m_row : m_group;
    switch (key) {
    case Qt::Key_Up:
        go(place - 1);
        return true;
    case Qt::Key_Down:
        go(place + 1);
        return true;
    case Qt::Key_Home:
        go(0);
        return true;
    case Qt::Key_End:
        go(int(m_inValues ? rows().size() : groups().size()) - 1);
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        const int group = m_group + (key == Qt::Key_PageUp ? -1 : 1);
        m_inValues ? open(group) : focusGroup(group);
        return true;
    }
    default:
        return false;
    }
}

void SettingsController::open(int index)
{
    if (index < 0 || index >= groups().size() || (m_inValues && index == m_group))
        return;
    select(index, false, 0);
    select(index, true, firstChoice());
}

void SettingsController::focusGroup(int index)
{
    if (index >= 0 && index < groups().size())
        select(index, false, 0);
}

void SettingsController::focusRow(int row)
{
    if (row >= 0 && row < rows().size())
        select(m_group, true, row);
}

// The value in force of the first setting; of switches the first one.
int SettingsController::firstChoice() const
{
    const SettingsSection first = sectionsOf(SettingsGroup(m_group)).constFirst();
    const auto current = std::find_if(first.rows.cbegin(), first.rows.cend(),
                                      [](const SettingsRow &row) { return row.checked; });
    return first.exclusive && current != first.rows.cend() ? int(current - first.rows.cbegin()) : 0;
}

void SettingsController::choose(int row)
{
    const QList<SettingsRow> all = rows();
    if (row < 0 || row >= all.size())
        return;
    focusRow(row);
    const SettingsRow &chosen = all.at(row);
    const QString before = m_store->value(chosen.group, chosen.key, {}).toString();
    const bool isSwitch = chosen.value.typeId() == QMetaType::Bool;
    // A stored value that only counts as the chosen one is replaced by it.
    if (before == chosen.value.toString() || (before.isEmpty() && chosen.checked && !isSwitch))
        return;
    setUnsaved(!m_store->setValue(chosen.group, chosen.key, chosen.value));
    Q_EMIT checkedChanged();
    Q_EMIT changed(chosen.group, chosen.key);
}

void SettingsController::select(int group, bool inValues, int row)
{
    if (group == m_group && inValues == m_inValues && row == m_row)
        return;
    setUnsaved(false);
    const bool otherGroup = group != m_group;
    m_group = group;
    m_inValues = inValues;
    // Other rows come before the selection points to one of them.
    if (otherGroup) {
        m_row = 0;
        Q_EMIT sectionsChanged();
        Q_EMIT checkedChanged();
    }
    m_row = std::clamp(row, 0, int(rows().size()) - 1);
    Q_EMIT selectionChanged();
}

void SettingsController::setUnsaved(bool unsaved)
{
    if (unsaved == m_unsaved)
        return;
    m_unsaved = unsaved;
    Q_EMIT unsavedChanged();
}

} // namespace gallery
