// SPDX-License-Identifier: MIT
#ifndef PICTUREREQUEST_H
#define PICTUREREQUEST_H

#include "gallery/screens/pictureprovider.h"

#include <QtQml/qqmlengine.h>
#include <QtQuick/private/qquickpixmapcache_p.h>

/*! An engine with the pictures' provider. */
class PictureEngine : public QQmlEngine
{
public:
    explicit PictureEngine(const gallery::DownloadLimits &limits = {},
                           qsizetype budget = gallery::pictureBudget)
        : m_provider(new gallery::PictureProvider(limits, budget))
    {
        addImageProvider(gallery::PictureProvider::name(), m_provider);
    }

    const gallery::PictureProvider *provider() const { return m_provider; }

private:
    gallery::PictureProvider *m_provider; // the engine's
};

/*! A picture that is asked for as a tile does: asynchronously, not kept. Taken back when this goes. */
class PictureRequest
{
public:
    PictureRequest(QQmlEngine *engine, const QUrl &url)
    {
        m_pixmap.load(engine, url, QRect(), QSize(), QQuickPixmap::Asynchronous);
    }

    bool isOver() const { return !m_pixmap.isLoading(); }
    bool failed() const { return m_pixmap.isError(); }
    QImage image() const { return m_pixmap.image(); }
    void takeBack() { m_pixmap.clear(); }

private:
    QQuickPixmap m_pixmap;
};

#endif // PICTUREREQUEST_H
