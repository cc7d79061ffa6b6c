// SPDX-License-Identifier: MIT
#include "keyboardkey.h"

#include "tintedicon.h"

#include <QtGui/qevent.h>
#include <QtGui/qfontinfo.h>
#include <QtGui/qfontmetrics.h>
#include <QtGui/qpainter.h>
#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgimagenode.h>

#include <algorithm>

namespace stbgeneric {

namespace {

constexpr int textMargin = 4; // pixels left and right of a text
constexpr qreal frameWidth = 3;
constexpr qreal smallestScale = 0.6; // of a text that is too wide; beyond that it is elided
constexpr qreal iconShare = 0.5; // of the key's height
constexpr qreal disabledOpacity = 0.4;

/*! \a font, or a smaller one if \a text is wider than \a width in it. */
QFont fittingFont(QFont font, const QString &text, qreal width)
{
    const qreal advance = QFontMetricsF(font).horizontalAdvance(text);
    if (advance <= width)
        return font;
    const int pixelSize = QFontInfo(font).pixelSize();
    font.setPixelSize(std::max(1, qFloor(pixelSize * std::max(width / advance, smallestScale))));
    return font;
}

void paintGround(QPainter &painter, const QRectF &ground, const KeyLook &look)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.background);
    painter.drawRoundedRect(ground, look.radius, look.radius);
    if (!look.isFramed)
        return;
    // One width within the ground, so that it is seen against it on both sides.
    const qreal inset = 1.5 * frameWidth;
    const qreal radius = std::max(qreal(0), look.radius - inset);
    painter.setPen(QPen(look.color, frameWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(ground.adjusted(inset, inset, -inset, -inset), radius, radius);
}

void paintText(QPainter &painter, const QRectF &ground, const KeyLook &look)
{
    const QRectF room = ground.marginsRemoved(QMarginsF(textMargin, 0, textMargin, 0));
    const QFont font = fittingFont(look.font, look.text, room.width());
    const QString text = QFontMetricsF(font).elidedText(look.text, Qt::ElideRight, room.width());
    painter.setFont(font);
    painter.setPen(look.color);
    painter.drawText(room, Qt::AlignCenter | Qt::TextSingleLine, text);
}

QImage paintKey(const QSizeF &size, qreal ratio, const KeyLook &look)
{
    QImage picture((size * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return picture;
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ground(QPointF(), size);
    paintGround(painter, ground, look);
    if (look.iconPath.isEmpty())
        paintText(painter, ground, look);
    return picture;
}

} // namespace

KeyboardKey::KeyboardKey(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setAcceptedMouseButtons(Qt::LeftButton);
    setPad(qobject_cast<KeyboardPad *>(parent));
}

KeyboardKey::~KeyboardKey()
{
    setPad(nullptr);
}

void KeyboardKey::setIndex(int index)
{
    if (index < 0 || index >= KeyboardPad::keyCount())
        index = 0;
    if (index == m_index)
        return;
    KeyboardPad *pad = m_pad;
    setPad(nullptr);
    m_index = index;
    setPad(pad);
    Q_EMIT indexChanged();
    Q_EMIT stateChanged();
}

void KeyboardKey::setPad(KeyboardPad *pad)
{
    if (pad == m_pad)
        return;
    if (m_pad)
        m_pad->removeKey(this);
    m_pad = pad;
    if (m_pad)
        m_pad->addKey(this);
    Q_EMIT stateChanged();
}

QString KeyboardKey::name() const
{
    return m_pad ? m_pad->keyName(m_index) : QString();
}

bool KeyboardKey::isToggle() const
{
    const KeyKind kind = keyboardKeys().at(m_index).kind;
    return kind == KeyKind::Shift || kind == KeyKind::CapsLock;
}

bool KeyboardKey::isOn() const
{
    return m_pad && m_pad->isOn(m_index);
}

void KeyboardKey::press()
{
    if (m_pad)
        m_pad->pressKey(m_index);
}

void KeyboardKey::updateState()
{
    Q_EMIT stateChanged();
}

void KeyboardKey::setLook(const QRectF &place, const KeyLook &look)
{
    const bool isResized = place.size() != size();
    setPosition(place.topLeft());
    setSize(place.size());
    const qreal ratio = window() ? window()->effectiveDevicePixelRatio() : 1;
    if (m_look == look && !isResized && qFuzzyCompare(m_picture.devicePixelRatio(), ratio))
        return;
    m_look = look;
    setOpacity(look.isEnabled ? 1 : disabledOpacity);
    showIcon(look);
    m_picture = paintKey(place.size(), ratio, look);
    m_isPictureNew = true;
    update();
}

void KeyboardKey::showIcon(const KeyLook &look)
{
    if (look.iconPath.isEmpty() && !m_icon)
        return;
    if (!m_icon)
        m_icon = new TintedIcon(this);
    const qreal side = qRound(iconShare * height());
    m_icon->setPosition({ qreal(qRound((width() - side) / 2)), qreal(qRound((height() - side) / 2)) });
    m_icon->setSize({ side, side });
    m_icon->setPath(look.iconPath);
    m_icon->setColor(look.color);
    m_icon->setMirrored(look.isIconMirrored);
}

void KeyboardKey::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    forceActiveFocus(Qt::MouseFocusReason);
    press();
}

void KeyboardKey::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemParentHasChanged)
        setPad(qobject_cast<KeyboardPad *>(data.item));
    else if (change == ItemActiveFocusHasChanged && m_pad)
        m_pad->polish();
}

QSGNode *KeyboardKey::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    auto *node = static_cast<QSGImageNode *>(oldNode);
    if (m_picture.isNull()) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        m_isPictureNew = true;
    }
    if (m_isPictureNew)
        node->setTexture(window()->createTextureFromImage(m_picture, QQuickWindow::TextureHasAlphaChannel));
    m_isPictureNew = false;
    if (node->rect() != boundingRect())
        node->setRect(boundingRect());
    return node;
}

} // namespace stbgeneric
