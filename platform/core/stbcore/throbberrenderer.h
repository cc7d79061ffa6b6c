// SPDX-License-Identifier: MIT
#ifndef STBCORE_THROBBERRENDERER_H
#define STBCORE_THROBBERRENDERER_H

#include <stbcore/stbcoreglobal.h>

#include <QtCore/qobject.h>
#include <QtCore/qrect.h>

class QPainter;

namespace stbcore {

class STBCORE_EXPORT ThrobberRenderer : public QObject
{
    Q_OBJECT
public:
    explicit ThrobberRenderer(QObject *parent);

    void setRenderRect(QRect rect);
    void draw(QPainter &painter);
    void setRunning(bool running);
    bool isRunning() const;
    int penWidth() const;
    void setPenWidth(int width);

Q_SIGNALS:
    void updated();

private:
    QRect m_rect;
    int m_penWidth = 4;
    bool m_running = false;
};

} // namespace stbcore

#endif // STBCORE_THROBBERRENDERER_H
