// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_PLAYEREPGDATESTYLE_H
#define DESIGN_SYSTEM_PLAYEREPGDATESTYLE_H

#include <design_system/textstyle.h>

#include <QtCore/qobject.h>

namespace design_system {

/*! The look of EpgDate, a day in the programme guide's row of days. Colours are invalid when new. */
struct STBDESIGN_EXPORT PlayerEpgDateStyle
{
    Q_GADGET
    Q_PROPERTY(design_system::TextStyle monthStyle MEMBER monthStyle)
    Q_PROPERTY(QColor monthColor MEMBER monthColor)
    Q_PROPERTY(design_system::TextStyle dayStyle MEMBER dayStyle)
    Q_PROPERTY(QColor dayActiveColor MEMBER dayActiveColor)
    Q_PROPERTY(QColor dayInactiveColor MEMBER dayInactiveColor)
    QML_ANONYMOUS
public:
    TextStyle monthStyle; //!< the month; its colour is the next field's
    QColor monthColor; //!< the month of any day
    TextStyle dayStyle; //!< the day of the month; its colour is one of the next two
    QColor dayActiveColor; //!< the chosen day
    QColor dayInactiveColor; //!< any other day

    bool operator==(const PlayerEpgDateStyle &) const = default;
};

/*!
    Holds a PlayerEpgDateStyle for a control. A control acts on another object in its style, not on
    styleChanged().
*/
class STBDESIGN_EXPORT PlayerEpgDateQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(design_system::PlayerEpgDateStyle style READ style WRITE setStyle NOTIFY styleChanged)
    QML_ELEMENT
public:
    explicit PlayerEpgDateQmlStyle(QObject *parent = nullptr);

    PlayerEpgDateStyle style() const;
    void setStyle(const PlayerEpgDateStyle &style);

Q_SIGNALS:
    void styleChanged();

private:
    PlayerEpgDateStyle m_style;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_PLAYEREPGDATESTYLE_H
