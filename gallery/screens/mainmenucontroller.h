// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_MAINMENUCONTROLLER_H
#define GALLERY_SCREENS_MAINMENUCONTROLLER_H

#include <QtCore/qobject.h>
#include <QtCore/qstringlist.h>
#include <QtQml/qqmlregistration.h>

namespace gallery {

/*!
    The main menu: a row of entries that lead to screens. The home screen has it in its header, every other screen gets
    it laid over it while it is open. QML shows the properties and hands every key to press().
*/
class MainMenuController : public QObject
{
    Q_OBJECT
    /*! The names of the screens that the entries lead to, in reading order. */
    Q_PROPERTY(QStringList entries READ entries CONSTANT)
    /*! The entry of the screen that is shown, or of the nearest one below it that has an entry; else -1. */
    Q_PROPERTY(int current READ current NOTIFY currentChanged)
    /*! The entry that keys act on. */
    Q_PROPERTY(int chosen READ chosen NOTIFY chosenChanged)
    /*! Whether it lies over the screen that is shown and has the keys. */
    Q_PROPERTY(bool open READ isOpen NOTIFY openChanged)
    /*! Whether the screen is laid out from right to left: the next entry is on the left then. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The shell has it.")
public:
    /*! The menu has entries for those of \a screens that it knows, in an order of its own. */
    explicit MainMenuController(const QStringList &screens, QObject *parent = nullptr);

    QStringList entries() const { return m_entries; }
    /*! The words on the entry for the screen \a entry. */
    Q_INVOKABLE static QString text(const QString &entry);
    int current() const { return m_current; }
    int chosen() const { return m_chosen; }
    bool isOpen() const { return m_open; }

    /*! \a screens are open, the one that is shown last. */
    void setOpenScreens(const QStringList &screens);
    /*! Keys act on the current entry again; on the first one when there is none. */
    void chooseCurrent();
    /*! Lays the menu over the screen that is shown, with the keys on the current entry. */
    void open();
    void close();

    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    /*!
        Handles a remote key; false when it means nothing here.

        Left, Right, Home and End choose an entry, Return opens its screen. While the menu lies over a screen, Back,
        Menu and Down close it.
    */
    Q_INVOKABLE bool press(int key);

Q_SIGNALS:
    void currentChanged();
    void chosenChanged();
    void openChanged();
    void mirroredChanged();
    /*! The screen \a entry is to be shown. */
    void activated(const QString &entry);

private:
    bool pressWhileOpen(int key);
    void choose(int index);
    void setOpen(bool open);

    QStringList m_entries;
    int m_current = -1;
    int m_chosen = 0;
    bool m_open = false;
    bool m_mirrored = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_MAINMENUCONTROLLER_H
