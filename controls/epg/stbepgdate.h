// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPGDATE_H
#define STBUI_STBEPGDATE_H

#include <design_system/playerepgdatestyle.h>

#include <QtCore/qdatetime.h>
#include <QtQuick/qquickitem.h>

class StbEpgDatePrivate;

/*!
    A day of the programme guide's row of days, the QML element \c EpgDate: the month's name, and below it the day
    of the month in the colour of the chosen or of any other day. Both begin at the left edge, and the day's line
    begins on the last pixel row of the month's. It paints itself; it has no child items.

    The month's name is the one that stands alone, abbreviated; a default locale named "ru_RU" gets it in full, for
    abbreviated months look odd there. The names are taken when the date is set: a later change of the default
    locale shows with the next date. The day has western digits and no leading zero.

    Width and height are set from outside. Without a style or a valid date, or with a width or height of 0 or less,
    nothing is painted. Fonts, line limits, alignments and the texts' largest width, which is the item's, are taken
    over when the cell begins to paint, that is in the first frame with a style, a date and a size, in this window.
    Another style or width changes none of these while there is something painted; colours change at once.
*/
class StbEpgDate : public QQuickItem
{
    Q_OBJECT
    /*!
        The design. Not owned; one that is destroyed counts as null. The cell does not listen to changes inside the
        object. Null by default; resettable.
    */
    Q_PROPERTY(design_system::PlayerEpgDateQmlStyle *style READ style WRITE setStyle RESET resetStyle NOTIFY
                       styleChanged)
    /*! The day. Invalid by default. */
    Q_PROPERTY(QDate date READ date WRITE setDate NOTIFY dateChanged)
    /*! Whether this is the chosen day: selects the day's colour. Default true. */
    Q_PROPERTY(bool isActive READ isActive WRITE setActive NOTIFY activeChanged)
    QML_NAMED_ELEMENT(EpgDate)
public:
    explicit StbEpgDate(QQuickItem *parent = nullptr);
    ~StbEpgDate() override;

    design_system::PlayerEpgDateQmlStyle *style() const;
    void setStyle(design_system::PlayerEpgDateQmlStyle *style);
    void resetStyle();

    QDate date() const;
    void setDate(const QDate &date);

    bool isActive() const;
    void setActive(bool active);

Q_SIGNALS:
    void styleChanged();
    void dateChanged();
    void activeChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    Q_DISABLE_COPY_MOVE(StbEpgDate)
    Q_DECLARE_PRIVATE(StbEpgDate)
};

#endif // STBUI_STBEPGDATE_H
