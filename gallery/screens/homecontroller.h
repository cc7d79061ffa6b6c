// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_HOMECONTROLLER_H
#define GALLERY_SCREENS_HOMECONTROLLER_H

#include "gallery/data/catalogue.h"
#include "gallery/data/guide.h"
#include "screens/content.h"
#include "screens/homerows.h"

namespace gallery {

class Clock;
class MainMenuController;

/*!
    What the home screen shows and how remote keys move in it: a header with the main menu, and below it rows of
    tiles. QML shows the properties and hands every key to press().
*/
class HomeController : public QObject
{
    Q_OBJECT
    /*! The rows that have tiles; each has one role, "row": a HomeRow. */
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT)
    /*! The row that keys act on, or would if they did not act on the header; -1 without rows. */
    Q_PROPERTY(int rowIndex READ rowIndex NOTIFY selectionChanged)
    /*! Whether keys act on the header. Without rows they always do. */
    Q_PROPERTY(bool inHeader READ isInHeader NOTIFY selectionChanged)
    /*! Back was pressed where there is nothing to go back to: once more leaves. */
    Q_PROPERTY(bool leaving READ isLeaving NOTIFY leavingChanged)

    /*! The current tile's item; empty without one. */
    Q_PROPERTY(QString title READ title NOTIFY itemChanged)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY itemChanged)
    Q_PROPERTY(QString facts READ facts NOTIFY itemChanged)
    Q_PROPERTY(QString description READ description NOTIFY itemChanged)
    Q_PROPERTY(QUrl still READ still NOTIFY itemChanged)

    /*! Whether the screen is laid out from right to left: the next tile is on the left then. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The shell has it.")
public:
    /*! \a clock, \a favourites and \a menu outlive this object. */
    HomeController(Clock *clock, Marks *favourites, MainMenuController *menu, QObject *parent = nullptr);

    void setGuide(const Guide &guide);
    /*! The favourites are those of \a catalogue then; those of a translated one stay what the viewer has made them. */
    void setCatalogue(const Catalogue &catalogue, Content content = Content::Other);
    /*! As at the start: every row at its first tile, and keys act on the first row. */
    void start();
    /*! The keys act on the menu in the header. */
    void enterMenu();
    /*! The keys act on the rows, if there are any. */
    void leaveMenu();
    /*! The keys act on the first film, else the first item of the catalogue; nothing when that has none. */
    void chooseFirstVideo();

    HomeRows *rows() { return &m_rows; }
    int rowIndex() const { return m_rows.indexOf(m_row); }
    bool isInHeader() const { return m_inHeader || m_row == nullptr; }
    bool isLeaving() const { return m_leaving; }

    /*! The item of the current tile; null without one. */
    const MediaItem *item() const { return m_row == nullptr ? nullptr : m_row->item(); }
    /*! The item \a id of any row; null when there is none any more. */
    const MediaItem *find(const QString &id) const;
    QString title() const { return item() ? item()->title : QString(); }
    QString subtitle() const;
    QString facts() const { return item() ? gallery::facts(*item()) : QString(); }
    QString description() const { return item() ? item()->description : QString(); }
    QUrl still() const { return item() ? item()->still : QUrl(); }

    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    /*!
        Handles a remote key; false when it means nothing here.

        Left and Right choose another tile of the row, Home and End its first and last one. Up, Down, Page Up and
        Page Down choose another row; from the first row Up leads into the header, where the menu gets the keys, and
        Down back. Menu leads into the header and back from everywhere. Return and Info open what is chosen, the yellow
        key makes it a favourite or none. Back returns to the first tile of the row, then to the first row, then to
        the header, and asks to leave when it is pressed twice more.
    */
    Q_INVOKABLE bool press(int key);

Q_SIGNALS:
    void selectionChanged();
    void itemChanged();
    void leavingChanged();
    void mirroredChanged();
    /*! The items are other ones, or the time has gone on. */
    void itemsChanged();
    /*! The current item is to be shown on its own. */
    void itemOpened();
    void leaveRequested();

private:
    bool pressInHeader(int key);
    bool pressInRows(int key);
    void goBack();
    void chooseRow(int index);
    void setInHeader(bool inHeader);
    void setLeaving(bool leaving);
    void showProgrammes();
    void repairFocus();

    Clock *m_clock;
    Marks *m_favourites;
    MainMenuController *m_menu;
    Guide m_guide;
    HomeRows m_rows;
    HomeRow *m_row = nullptr; // one of m_rows
    bool m_inHeader = false;
    bool m_touched = false; // a key was pressed: what comes in later does not move the focus
    bool m_leaving = false;
    bool m_mirrored = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_HOMECONTROLLER_H
