// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_SETTINGSCONTROLLER_H
#define GALLERY_SCREENS_SETTINGSCONTROLLER_H

#include "screens/settingslist.h"

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace gallery {

class SettingsStore;

/*!
    What the screen of settings shows and how remote keys change it: groups of settings, and the values of the one that
    is chosen. A chosen value is stored and in force at once. QML shows the properties and hands every key to press();
    what a control does by itself, it tells with open(), choose(), focusGroup() and focusRow().
*/
class SettingsController : public QObject
{
    Q_OBJECT
    /*! The titles of the groups. */
    Q_PROPERTY(QStringList groups READ groups NOTIFY sectionsChanged)
    /*! The group whose settings are shown. */
    Q_PROPERTY(int groupIndex READ groupIndex NOTIFY selectionChanged)
    Q_PROPERTY(QString groupTitle READ groupTitle NOTIFY sectionsChanged)
    /*!
        The settings of the group, in sections: objects with \c heading (may be empty), \c exclusive (the rows are the
        values of one setting) and \c rows, objects with \c title and \c row, the number through all sections.
    */
    Q_PROPERTY(QVariantList sections READ sections NOTIFY sectionsChanged)
    /*! Of each row of the group, through all sections, whether it is in force. */
    Q_PROPERTY(QList<bool> checked READ checked NOTIFY checkedChanged)
    /*! Whether keys act on the values of the group, rather than on the groups. */
    Q_PROPERTY(bool inValues READ isInValues NOTIFY selectionChanged)
    /*! The row that keys act on when they act on the values. */
    Q_PROPERTY(int row READ row NOTIFY selectionChanged)
    /*! What was chosen last could not be stored: it is in force for this run only. */
    Q_PROPERTY(bool unsaved READ isUnsaved NOTIFY unsavedChanged)
    /*! Whether the screen is laid out from right to left: the values are on the left then. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The shell has it.")
public:
    explicit SettingsController(QObject *parent = nullptr);
    ~SettingsController() override;

    /*!
        Shows what is in \a store and writes there; it is not owned and must outlive this object. Null: values are kept
        in memory, for as long as this object lives.
    */
    void setStore(SettingsStore *store);
    /*! As at the start: the keys are on the first group. */
    void start();
    /*! Reads the store and the texts anew. */
    void refresh();

    QStringList groups() const { return settingsGroupTitles(); }
    int groupIndex() const { return m_group; }
    QString groupTitle() const { return groups().value(m_group); }
    QVariantList sections() const;
    QList<bool> checked() const;
    bool isInValues() const { return m_inValues; }
    int row() const { return m_row; }
    bool isUnsaved() const { return m_unsaved; }
    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    /*! The titles of the theme and of the language in force, as the screen names them. */
    QString themeTitle() const;
    QString languageTitle() const;

    /*!
        Handles a remote key; false when it means nothing here.

        Up, Down, Home and End choose another group or row, Page Up and Page Down another group from anywhere. Right
        and Return lead from the groups to the values, first to the one in force; Left and Back lead from there to the
        groups. Return on a value chooses it, on a switch turns it over. Back in the groups asks to leave.
    */
    Q_INVOKABLE bool press(int key);
    /*! The keys are on the values of the group \a index. */
    Q_INVOKABLE void open(int index);
    /*! Chooses the value, or turns the switch over, in \a row, which then has the keys. */
    Q_INVOKABLE void choose(int row);
    /*! The keys are on the group \a index. */
    Q_INVOKABLE void focusGroup(int index);
    /*! The keys are on \a row of the group. */
    Q_INVOKABLE void focusRow(int row);

Q_SIGNALS:
    void selectionChanged();
    void sectionsChanged();
    void checkedChanged();
    void unsavedChanged();
    void mirroredChanged();
    /*! Another value of \a key is in force and stored. */
    void changed(const QString &group, const QString &key);
    /*! Back was pressed where there is nothing to go back to. */
    void leaveRequested();

private:
    QList<SettingsSection> sectionsOf(SettingsGroup group) const;
    QList<SettingsRow> rows() const;
    QString checkedTitle(SettingsGroup group, const QString &key) const;
    int firstChoice() const;
    bool pressUpOrDown(int key);
    void select(int group, bool inValues, int row);
    void setUnsaved(bool unsaved);

    std::unique_ptr<SettingsStore> m_memory;
    SettingsStore *m_store;
    QString m_ownTheme; // kept, so that there is a way back to it
    int m_group = 0;
    int m_row = 0;
    bool m_inValues = false;
    bool m_unsaved = false;
    bool m_mirrored = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_SETTINGSCONTROLLER_H
