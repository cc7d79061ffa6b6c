// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_FOCUSEDROWSTYLE_H
#define GALLERY_SCREENS_FOCUSEDROWSTYLE_H

#include <design_system/playerepgdelegatestyle.h>

#include <QtCore/qpointer.h>

namespace gallery {

/*!
    The style of the guide row that keys act on: the theme's, with a card that leaves room for other rows and for the
    row's own texts, and never dimmed. A row takes a style over only when it is given another style object, so this row has an object of its
    own.
*/
class FocusedRowStyle : public design_system::PlayerEpgDelegateQmlStyle
{
    Q_OBJECT
    /*! The style that fonts and measures are taken from. Null (the default): the default values. */
    Q_PROPERTY(design_system::PlayerEpgDelegateQmlStyle *base READ base WRITE setBase NOTIFY baseChanged)
    /*! The most pixels that the card is high; 0 (the default): as high as the base's. */
    Q_PROPERTY(int cardHeight READ cardHeight WRITE setCardHeight NOTIFY cardHeightChanged)
    /*!
        The most pixels that the row should be high; 0 (the default): as high as it is. Where the texts are large the card
        is lower, as long as its own texts fit, and the title shorter.
    */
    Q_PROPERTY(int room READ room WRITE setRoom NOTIFY roomChanged)
    QML_ELEMENT
public:
    explicit FocusedRowStyle(QObject *parent = nullptr);

    design_system::PlayerEpgDelegateQmlStyle *base() const { return m_base; }
    void setBase(design_system::PlayerEpgDelegateQmlStyle *base);
    int cardHeight() const { return m_cardHeight; }
    void setCardHeight(int height);
    int room() const { return m_room; }
    void setRoom(int room);

Q_SIGNALS:
    void baseChanged();
    void cardHeightChanged();
    void roomChanged();

private:
    void derive();

    QPointer<design_system::PlayerEpgDelegateQmlStyle> m_base;
    int m_cardHeight = 0;
    int m_room = 0;
};

} // namespace gallery

#endif // GALLERY_SCREENS_FOCUSEDROWSTYLE_H
