// SPDX-License-Identifier: MIT
#ifndef STBCORE_THROBBERRENDERER_H
#define STBCORE_THROBBERRENDERER_H

#include <stbcore/stbcoreglobal.h>

#include <QtCore/qbasictimer.h>
#include <QtCore/qobject.h>
#include <QtCore/qrect.h>

class QPainter;

namespace stbcore {

/*!
    A busy indicator as a series of frames: a white arc with round ends that turns clockwise on a translucent dark
    circle, its tail fading away. It is seen on light grounds as well as on dark ones. Lives in a thread with an
    event loop.
*/
class STBCORE_EXPORT ThrobberRenderer : public QObject
{
    Q_OBJECT
public:
    explicit ThrobberRenderer(QObject *parent);

    /*!
        Where draw() paints, in the painter's pixels. The circle lies in the middle of it, as large as the
        shorter side allows; nothing is painted outside. An empty rectangle, the default, paints nothing.
    */
    void setRenderRect(QRect rect);

    /*! Paints the present frame, running or not, and leaves the painter's state as it was. */
    void draw(QPainter &painter);

    /*!
        Starts or stops the frames. There is a timer only while they run; a stopped throbber keeps its frame and
        goes on from there. False by default.
    */
    void setRunning(bool running);
    bool isRunning() const;

    /*!
        Thickness of the arc in pixels, 4 by default. Any number is kept as it is; draw() counts one below 1 as 1
        and one over half the shorter side as that half.
    */
    int penWidth() const;
    void setPenWidth(int width);

Q_SIGNALS:
    /*! Once per new frame while running, 25 times a second. */
    void updated();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    QBasicTimer m_timer;
    QRect m_rect;
    int m_penWidth = 4;
    int m_frame = 0;
};

} // namespace stbcore

#endif // STBCORE_THROBBERRENDERER_H
