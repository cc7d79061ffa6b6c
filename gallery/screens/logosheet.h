// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_LOGOSHEET_H
#define GALLERY_SCREENS_LOGOSHEET_H

#include "screens/channelscontroller.h"

#include <QtCore/qcache.h>
#include <QtCore/qpointer.h>
#include <QtGui/qcolor.h>
#include <QtGui/qfont.h>
#include <QtGui/qpixmap.h>

namespace gallery {

/*!
    What stands for the logos of channels until they are there: for each channel of the guide a cell with its initials
    on a plate, whose tint is the same whenever the channel is shown.

    Cells are drawn sixteen at once, as one sheet, when a row first asks for one of them; all rows share it. The sheets
    that were asked for last are kept, up to 16 MB and at least two, so that short lists are drawn once and long ones
    take no more memory than that.
*/
class LogoSheet : public QObject
{
    Q_OBJECT
    /*! Whose channels it draws. Null (the default): there are no sheets. */
    Q_PROPERTY(gallery::ChannelsController *controller READ controller WRITE setController NOTIFY changed)
    /*! The size of a cell in pixels. Empty (the default): there are no sheets. */
    Q_PROPERTY(QSize cellSize READ cellSize WRITE setCellSize NOTIFY changed)
    /*! The initials' font; its size follows from the cell's. */
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY changed)
    /*! The initials' colour. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    /*! The plates have the brightness and strength of this colour, in several hues. */
    Q_PROPERTY(QColor plate READ plate WRITE setPlate NOTIFY changed)
    QML_ELEMENT
public:
    static constexpr int cellsPerSheet = 16;
    static constexpr int keptKilobytes = 16 * 1024;

    explicit LogoSheet(QObject *parent = nullptr);

    ChannelsController *controller() const { return m_controller; }
    void setController(ChannelsController *controller);
    QSize cellSize() const { return m_cellSize; }
    void setCellSize(const QSize &size);
    QFont font() const { return m_font; }
    void setFont(const QFont &font);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    QColor plate() const { return m_plate; }
    void setPlate(const QColor &plate);

    /*! The sheet with the cell of the channel that has this index in the guide; null when there is none. */
    Q_INVOKABLE QPixmap canvas(int channel);
    /*! The channel's cell in it. */
    Q_INVOKABLE QRect cell(int channel) const;

    /*! The colour of the plate of \a channel. */
    QColor tint(const Channel &channel) const;
    /*! How many sheets were drawn since the start. */
    int drawnSheets() const { return m_drawnSheets; }
    /*! What the sheets take that are kept. */
    int usedKilobytes() const { return int(m_sheets.totalCost()); }

Q_SIGNALS:
    void changed();

private:
    template <typename Value>
    void set(Value &member, const Value &value);
    QPixmap drawn(int first) const;

    QPointer<ChannelsController> m_controller;
    QSize m_cellSize;
    QFont m_font;
    QColor m_color = Qt::white;
    QColor m_plate = Qt::darkGray;
    Guide m_guide; // whose channels are on the sheets
    QCache<int, QPixmap> m_sheets; // by their first channels; costs are kilobytes
    int m_drawnSheets = 0;
};

/*!
    The first letters of the first two words of \a name, in capitals. A quality at its end ("HD") does not count, nor does
    a word that begins with neither letter nor digit, unless there is no other. One word has one letter, but stands whole
    when it has up to four capitals and digits. Two letters that would join, as Arabic ones do, are kept apart. Empty for
    an empty name.
*/
QString channelInitials(const QString &name);

} // namespace gallery

#endif // GALLERY_SCREENS_LOGOSHEET_H
