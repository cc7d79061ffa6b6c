// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_KEYBOARDKEY_H
#define STBGENERIC_KEYBOARDKEY_H

#include "keyboardpad.h"

#include <QtGui/qcolor.h>
#include <QtGui/qfont.h>
#include <QtGui/qimage.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

#include <optional>

namespace stbgeneric {

class TintedIcon;

/*! How a key is painted. */
struct KeyLook
{
    QString text;
    QFont font;
    QString iconPath; //!< shown instead of the text, unless it is empty
    QColor background;
    QColor color; //!< of text, icon and frame
    qreal radius = 0;
    bool isIconMirrored = false;
    bool isFramed = false;
    bool isEnabled = true;

    friend bool operator==(const KeyLook &, const KeyLook &) = default;
};

/*!
    One key of the on-screen keyboard that is its parent item. Ground and text are one picture, which is painted
    again only when the look changes; an icon is a child item.
*/
class KeyboardKey : public QQuickItem
{
    Q_OBJECT
    /*! Its number in keyboardKeys(); one that is out of range counts as the first one, 0. */
    Q_PROPERTY(int index READ index WRITE setIndex NOTIFY indexChanged)
    /*! For people who do not see it. */
    Q_PROPERTY(QString name READ name NOTIFY stateChanged)
    /*! Whether it is switched on and off, and whether it is on. */
    Q_PROPERTY(bool toggle READ isToggle NOTIFY indexChanged)
    Q_PROPERTY(bool on READ isOn NOTIFY stateChanged)
    QML_ELEMENT
public:
    explicit KeyboardKey(QQuickItem *parent = nullptr);
    ~KeyboardKey() override;
    Q_DISABLE_COPY_MOVE(KeyboardKey)

    int index() const { return m_index; }
    QString name() const;
    bool isToggle() const;
    bool isOn() const;

    void setIndex(int index);

    Q_INVOKABLE void press();

    // For KeyboardPad.
    void updateState();
    void forgetPad() { m_pad = nullptr; }
    void setLook(const QRectF &place, const KeyLook &look);

Q_SIGNALS:
    void indexChanged();
    void stateChanged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    void setPad(KeyboardPad *pad);
    void showIcon(const KeyLook &look);

    int m_index = 0;
    KeyboardPad *m_pad = nullptr;
    TintedIcon *m_icon = nullptr;
    std::optional<KeyLook> m_look;
    QImage m_picture;
    bool m_isPictureNew = false;
};

} // namespace stbgeneric

#endif // STBGENERIC_KEYBOARDKEY_H
