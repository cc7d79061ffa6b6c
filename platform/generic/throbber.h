// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_THROBBER_H
#define STBGENERIC_THROBBER_H

#include <QtCore/qbasictimer.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickpainteditem.h>

namespace stbgeneric {

/*!
    An arc with a fading tail that turns clockwise on a ring, in the middle of the item and as large as the
    shorter side allows. There is a timer only while it runs in a window, is visible, and neither empty nor clear
    (opacity 0); each step paints the item's own rectangle. A step that nobody can see, because the item is outside the
    window or of what clips it, or something around it is clear, paints nothing.
*/
class Throbber : public QQuickPaintedItem
{
    Q_OBJECT
    /*! Whether it turns; true by default. A stopped one keeps its place and goes on from there. */
    Q_PROPERTY(bool running READ isRunning WRITE setRunning NOTIFY runningChanged)
    /*! Milliseconds from one step to the next, 17 by default; 0 and less stand still. A turn takes 1.2 s. */
    Q_PROPERTY(int interval READ interval WRITE setInterval NOTIFY intervalChanged)
    /*! The ring's width in pixels, 4 by default, at the most half the shorter side. */
    Q_PROPERTY(int penWidth READ penWidth WRITE setPenWidth NOTIFY penWidthChanged)
    /*! Of the arc, white by default, and of the ring below it, a translucent black. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(QColor trackColor READ trackColor WRITE setTrackColor NOTIFY trackColorChanged)
    QML_ELEMENT
public:
    explicit Throbber(QQuickItem *parent = nullptr);

    bool isRunning() const { return m_running; }
    int interval() const { return m_interval; }
    int penWidth() const { return m_penWidth; }
    QColor color() const { return m_color; }
    QColor trackColor() const { return m_trackColor; }

    void setRunning(bool running);
    void setInterval(int interval);
    void setPenWidth(int width);
    void setColor(const QColor &color);
    void setTrackColor(const QColor &color);

    /*! Whether steps are being made: it runs in a window, is visible, and neither empty nor clear. */
    bool isTurning() const { return m_timer.isActive(); }

    /*! Goes on by one step, as the timer does. */
    void step();

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void runningChanged();
    void intervalChanged();
    void penWidthChanged();
    void colorChanged();
    void trackColorChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void timerEvent(QTimerEvent *event) override;

private:
    bool canBeSeen() const;
    void updateTimer();

    QBasicTimer m_timer;
    bool m_running = true;
    int m_interval = 17;
    int m_penWidth = 4;
    QColor m_color = Qt::white;
    QColor m_trackColor = QColor(0, 0, 0, 130);
    int m_time = 0; //!< milliseconds within the turn
};

} // namespace stbgeneric

#endif // STBGENERIC_THROBBER_H
