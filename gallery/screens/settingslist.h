// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_SETTINGSLIST_H
#define GALLERY_SCREENS_SETTINGSLIST_H

#include <QtCore/qlist.h>
#include <QtCore/qstringlist.h>
#include <QtCore/qvariant.h>

namespace gallery {

class SettingsStore;

/*! The groups of settings in the order in which they are shown. */
enum class SettingsGroup { Picture, Language, Look, Movement };

/*! One thing to choose or to switch. */
struct SettingsRow
{
    QString title;
    /*! Where its value is stored, and the value that OK on this row stores. */
    QString group;
    QString key;
    QVariant value;
    /*! A value is the one in force; a switch is on. */
    bool checked = false;

    bool operator==(const SettingsRow &) const = default;
};

/*! Rows that belong together. */
struct SettingsSection
{
    /*! Empty when the group's title says it all. */
    QString heading;
    /*! The rows are the values of one setting, of which one is in force; else each is a switch of its own. */
    bool exclusive = false;
    QList<SettingsRow> rows;

    bool operator==(const SettingsSection &) const = default;
};

/*! The titles of the groups, in the language of the application. */
QStringList settingsGroupTitles();

/*!
    The settings of \a group as they are in \a store. A stored value that does not exist counts as the one that stands
    in for it: the default one, or of numbers the nearest. A theme file at \a ownTheme is another theme to choose;
    empty: there is none.
*/
QList<SettingsSection> settingsSections(SettingsGroup group, const SettingsStore &store,
                                        const QString &ownTheme);

/*!
    The path of the theme in \a store when it is a file that is not built in and exists; else empty. The design library
    shows its default theme for a file that does not exist.
*/
QString ownThemeOf(const SettingsStore &store);

} // namespace gallery

#endif // GALLERY_SCREENS_SETTINGSLIST_H
