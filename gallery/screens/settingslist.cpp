// SPDX-License-Identifier: MIT
#include "screens/settingslist.h"

#include "screens/settingsstore.h"
#include "screens/themes.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qlocale.h>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

constexpr QLatin1StringView uiGroup = "UI"_L1;
constexpr QLatin1StringView themeKey = "theme"_L1;

// What the design library keeps to is the smallest and the largest one.
constexpr std::array textScales { 0.75, 0.9, 1.0, 1.25, 1.5 };
constexpr int designedScale = 2;

QString stored(const SettingsStore &store, const QString &key)
{
    return store.value(uiGroup, key, {}).toString();
}

/*! Values of the setting \a key, none of them in force yet. */
struct Choices
{
    explicit Choices(const QString &settingKey, const QString &heading = {})
        : key(settingKey)
    {
        section.heading = heading;
        section.exclusive = true;
    }
    void add(const QString &title, const QVariant &value)
    {
        section.rows.append({ title, uiGroup, key, value, false });
    }
    SettingsSection withCurrent(qsizetype row)
    {
        section.rows[std::max<qsizetype>(0, row)].checked = true;
        return section;
    }
    qsizetype find(const QString &value) const
    {
        const auto found = std::find_if(section.rows.cbegin(), section.rows.cend(),
                                        [&value](const SettingsRow &row) { return row.value == value; });
        return found == section.rows.cend() ? -1 : found - section.rows.cbegin();
    }

    QString key;
    SettingsSection section;
};

SettingsSection resolutions(const SettingsStore &store)
{
    Choices choices(u"resolution"_s, QCoreApplication::translate("Settings", "Resolution"));
    choices.add(u"HD, 1280 × 720"_s, u"hd"_s);
    choices.add(u"Full HD, 1920 × 1080"_s, u"fullhd"_s);
    choices.add(u"SD, 720 × 576"_s, u"sd"_s);
    return choices.withCurrent(choices.find(stored(store, choices.key)));
}

QString themeTitle(const QString &name)
{
    if (name == "light"_L1)
        return QCoreApplication::translate("Settings", "Light");
    if (name == "contrast"_L1)
        return QCoreApplication::translate("Settings", "High contrast");
    if (name == "copper"_L1)
        return QCoreApplication::translate("Settings", "Copper");
    return QCoreApplication::translate("Settings", "Standard");
}

SettingsSection themes(const SettingsStore &store, const QString &ownTheme)
{
    Choices choices(themeKey, QCoreApplication::translate("Settings", "Theme"));
    const QStringList names = themeNames();
    for (const QString &name : names)
        choices.add(themeTitle(name), themePath(name));
    if (!ownTheme.isEmpty())
        choices.add(QFileInfo(ownTheme).fileName(), ownTheme);
    const QString path = stored(store, choices.key);
    const auto builtIn = names.indexOf(themeName(path));
    return choices.withCurrent(builtIn >= 0 ? builtIn : choices.find(path));
}

// The step that is nearest to what the design library makes of a stored value.
int textScaleIndex(const QString &scale)
{
    bool isNumber = false;
    const double wanted = scale.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(wanted))
        return designedScale;
    const auto nearest = std::min_element(textScales.begin(), textScales.end(), [wanted](double a, double b) {
        return std::abs(a - wanted) < std::abs(b - wanted);
    });
    return int(nearest - textScales.begin());
}

SettingsSection textSizes(const SettingsStore &store)
{
    Choices choices(u"textScale"_s, QCoreApplication::translate("Settings", "Text size"));
    for (const double scale : textScales)
        choices.add(QCoreApplication::translate("Settings", "%1 %").arg(std::lround(100 * scale)), scale);
    return choices.withCurrent(textScaleIndex(stored(store, choices.key)));
}

SettingsSection languages(const SettingsStore &store)
{
    // Each is named in itself: who cannot read the present one finds the way out.
    Choices choices(u"language"_s);
    choices.add(u"English"_s, u"en"_s);
    choices.add(u"Русский"_s, u"ru"_s);
    choices.add(u"Deutsch"_s, u"de"_s);
    choices.add(u"العربية"_s, u"ar"_s);
    // "de-AT" is German; without a stored language it is the application's.
    const QString configured = stored(store, choices.key);
    const QString name = configured.isEmpty() ? QLocale().name() : QString(configured).replace(u'-', u'_');
    return choices.withCurrent(choices.find(name.section(u'_', 0, 0).toLower()));
}

SettingsRow switchRow(const SettingsStore &store, const QString &title, const QString &group,
                      const QString &key, bool byDefault)
{
    const bool on = store.value(group, key, byDefault).toBool();
    return { title, group, key, !on, on };
}

SettingsSection rounding(const SettingsStore &store)
{
    SettingsSection section;
    section.rows = { switchRow(store, QCoreApplication::translate("Settings", "Rounded corners"), uiGroup,
                               u"roundingEnabled"_s, false) };
    return section;
}

SettingsSection animations(const SettingsStore &store)
{
    SettingsSection section;
    const auto add = [&](const QString &title, const QString &key) {
        section.rows.append(switchRow(store, title, u"Animations"_s, key, true));
    };
    add(QCoreApplication::translate("Settings", "Tiles grow smoothly"), u"focusingEnabled"_s);
    add(QCoreApplication::translate("Settings", "Tiles and menu scroll smoothly"),
        u"layoutScrollingEnabled"_s);
    add(QCoreApplication::translate("Settings", "The home screen scrolls smoothly"),
        u"viewportScrollingEnabled"_s);
    add(QCoreApplication::translate("Settings", "Pictures and menu edges fade in"), u"fadeEffectEnabled"_s);
    add(QCoreApplication::translate("Settings", "Menu and details slide in"), u"slidingEnabled"_s);
    return section;
}

} // namespace

QStringList settingsGroupTitles()
{
    return { QCoreApplication::translate("Settings", "Picture"),
             QCoreApplication::translate("Settings", "Language"),
             QCoreApplication::translate("Settings", "Look"),
             QCoreApplication::translate("Settings", "Animation") };
}

QList<SettingsSection> settingsSections(SettingsGroup group, const SettingsStore &store,
                                        const QString &ownTheme)
{
    switch (group) {
    case SettingsGroup::Picture:
        return { resolutions(store), themes(store, ownTheme), textSizes(store) };
    case SettingsGroup::Language:
        return { languages(store) };
    case SettingsGroup::Look:
        return { rounding(store) };
    case SettingsGroup::Movement:
        return { animations(store) };
    }
    return {};
}

QString ownThemeOf(const SettingsStore &store)
{
    const QString path = stored(store, themeKey);
    return themeName(path).isEmpty() && QFileInfo(path).isFile() ? path : QString();
}

} // namespace gallery
