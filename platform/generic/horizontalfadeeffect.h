// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_HORIZONTALFADEEFFECT_H
#define STBGENERIC_HORIZONTALFADEEFFECT_H

#include <QtGui/qcolor.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

namespace stbgeneric {

/*!
    Lets what lies below it fade into a colour at its left and right edges: a strip on each side, opaque at the
    edge and clear at the other end. The strips are pictures one pixel high, stretched to the item's height; a
    change of an opacity paints its own strip and makes no picture. Left and right are those of the screen, also
    in a mirrored layout.
*/
class HorizontalFadeEffect : public QQuickItem
{
    Q_OBJECT
    /*! What the edges fade into: the colour of the ground. Black by default. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /*! Width of the strips in pixels, 0 by default; at the most the item's width. */
    Q_PROPERTY(int leftGradientWidth READ leftGradientWidth WRITE setLeftGradientWidth NOTIFY
                       leftGradientWidthChanged)
    Q_PROPERTY(int rightGradientWidth READ rightGradientWidth WRITE setRightGradientWidth NOTIFY
                       rightGradientWidthChanged)
    /*! Opacity of the strips, from 0 to 1; 1 by default. */
    Q_PROPERTY(qreal leftGradientOpacity READ leftGradientOpacity WRITE setLeftGradientOpacity NOTIFY
                       leftGradientOpacityChanged)
    Q_PROPERTY(qreal rightGradientOpacity READ rightGradientOpacity WRITE setRightGradientOpacity NOTIFY
                       rightGradientOpacityChanged)
    QML_ELEMENT
public:
    explicit HorizontalFadeEffect(QQuickItem *parent = nullptr);

    QColor color() const { return m_color; }
    int leftGradientWidth() const { return m_left.width; }
    int rightGradientWidth() const { return m_right.width; }
    qreal leftGradientOpacity() const { return m_left.opacity; }
    qreal rightGradientOpacity() const { return m_right.opacity; }

    void setColor(const QColor &color);
    void setLeftGradientWidth(int width);
    void setRightGradientWidth(int width);
    void setLeftGradientOpacity(qreal opacity);
    void setRightGradientOpacity(qreal opacity);

Q_SIGNALS:
    void colorChanged();
    void leftGradientWidthChanged();
    void rightGradientWidthChanged();
    void leftGradientOpacityChanged();
    void rightGradientOpacityChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    struct Strip
    {
        int width = 0;
        qreal opacity = 1;
    };
    class StripNode;
    class RootNode;

    Strip m_left;
    Strip m_right;
    QColor m_color = Qt::black;
};

} // namespace stbgeneric

#endif // STBGENERIC_HORIZONTALFADEEFFECT_H
