// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_PROGRESSCIRCLE_H
#define STBGENERIC_PROGRESSCIRCLE_H

#include <QtGui/qcolor.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickpainteditem.h>

namespace stbgeneric {

/*!
    Progress as an arc on a ring, clockwise from twelve o'clock. The ring lies in the middle of the item, as large
    as the shorter side allows. A change of the value that moves the arc's end by less than a sixteenth of a
    degree paints nothing.
*/
class ProgressCircle : public QQuickPaintedItem
{
    Q_OBJECT
    /*! The empty and the full ring's value, 0 and 1 by default; \c to may lie below \c from. */
    Q_PROPERTY(qreal from READ from WRITE setFrom NOTIFY fromChanged)
    Q_PROPERTY(qreal to READ to WRITE setTo NOTIFY toChanged)
    /*! The shown value, 0 by default. It is kept as it is given; the arc keeps within the ring. */
    Q_PROPERTY(qreal value READ value WRITE setValue NOTIFY valueChanged)
    /*! How much of the ring is covered, 0 to 1; 0 when from and to are the same or a value is no number. */
    Q_PROPERTY(qreal position READ position NOTIFY positionChanged)
    /*! The ring's width in pixels, 4 by default, at the most half the shorter side. */
    Q_PROPERTY(int barWidth READ barWidth WRITE setBarWidth NOTIFY barWidthChanged)
    /*! Of the arc and of the ring below it: white and transparent by default. */
    Q_PROPERTY(QColor barColor READ barColor WRITE setBarColor NOTIFY barColorChanged)
    Q_PROPERTY(QColor barBackgroundColor READ barBackgroundColor WRITE setBarBackgroundColor NOTIFY
                       barBackgroundColorChanged)
    QML_ELEMENT
public:
    explicit ProgressCircle(QQuickItem *parent = nullptr);

    qreal from() const { return m_from; }
    qreal to() const { return m_to; }
    qreal value() const { return m_value; }
    qreal position() const { return m_position; }
    int barWidth() const { return m_barWidth; }
    QColor barColor() const { return m_barColor; }
    QColor barBackgroundColor() const { return m_barBackgroundColor; }

    void setFrom(qreal from);
    void setTo(qreal to);
    void setValue(qreal value);
    void setBarWidth(int width);
    void setBarColor(const QColor &color);
    void setBarBackgroundColor(const QColor &color);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void fromChanged();
    void toChanged();
    void valueChanged();
    void positionChanged();
    void barWidthChanged();
    void barColorChanged();
    void barBackgroundColorChanged();

private:
    int span() const;
    void updatePosition();

    qreal m_from = 0;
    qreal m_to = 1;
    qreal m_value = 0;
    qreal m_position = 0;
    int m_barWidth = 4;
    QColor m_barColor = Qt::white;
    QColor m_barBackgroundColor = Qt::transparent;
};

} // namespace stbgeneric

#endif // STBGENERIC_PROGRESSCIRCLE_H
