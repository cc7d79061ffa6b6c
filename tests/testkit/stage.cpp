// SPDX-License-Identifier: MIT
#include "testkit/stage.h"

#include <QtQuick/private/qquickitem_p.h>
#include <QtQuick/private/qquickwindow_p.h>
#include <QtQuick/private/qsgcontext_p.h>
#include <QtQuick/private/qsgsoftwarerenderer_p.h>
#include <QtQuick/qquickrendercontrol.h>
#include <QtQuick/qquickrendertarget.h>
#include <QtQuick/qquickwindow.h>

#include <utility>

namespace stbtest {

namespace {

// The textures that a render context keeps for pictures. Before Qt 6.8 the software adaptation's never deletes
// those that are left when their window goes, and the leak checker would blame the tests for it.
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
struct LeftTextures : QSGRenderContext
{
    static void clear(QSGRenderContext *context)
    {
        qDeleteAll(std::exchange(context->*(&LeftTextures::m_textures), {}));
        qDeleteAll(std::exchange(context->*(&LeftTextures::m_texturesToDelete), {}));
    }
};
#endif

} // namespace

struct Stage::Private
{
    explicit Private(const QSize &size)
        : picture(size, QImage::Format_ARGB32_Premultiplied)
        , window(&control)
    {
        picture.fill(Qt::transparent);
    }

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    ~Private()
    {
        LeftTextures::clear(QQuickWindowPrivate::get(&window)->context);
    }
    Q_DISABLE_COPY_MOVE(Private)
#endif

    QSGSoftwareRenderer *renderer()
    {
        auto *renderer = dynamic_cast<QSGSoftwareRenderer *>(QQuickWindowPrivate::get(&window)->renderer);
        if (!renderer)
            qFatal("A stage needs the software adaptation and a rendered frame");
        return renderer;
    }

    QImage picture;
    QQuickRenderControl control;
    QQuickWindow window;
    QRegion painted;
    int requests = 0;
    int requestsAtFrame = 0;
};

qint64 pixelCount(const QRegion &region)
{
    qint64 count = 0;
    for (const QRect &rect : region)
        count += qint64(rect.width()) * rect.height();
    return count;
}

Stage::Stage(const QSize &size, const QColor &background)
    : d(std::make_unique<Private>(size))
{
    d->window.setGeometry(QRect(QPoint(), size));
    d->window.contentItem()->setSize(size); // only a shown window would do it by itself
    d->window.setColor(background);
    d->window.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&d->picture));
    const auto request = [this] { ++d->requests; };
    QObject::connect(&d->control, &QQuickRenderControl::renderRequested, &d->window, request);
    QObject::connect(&d->control, &QQuickRenderControl::sceneChanged, &d->window, request);
}

Stage::~Stage() = default;

QQuickWindow *Stage::window() const
{
    return &d->window;
}

QQuickItem *Stage::contentItem() const
{
    return d->window.contentItem();
}

QSize Stage::size() const
{
    return d->picture.size();
}

void Stage::setBackground(const QColor &background)
{
    d->window.setColor(background);
}

QRegion Stage::renderFrame()
{
    // No beginFrame() and endFrame(): they belong to other adaptations, and from Qt 6.5 they say so.
    d->control.polishItems();
    d->control.sync();
    d->requestsAtFrame = d->requests;
    d->control.render();
    d->painted = d->renderer()->flushRegion();
    return d->painted;
}

QRegion Stage::paintedRegion() const
{
    return d->painted;
}

QImage Stage::picture() const
{
    return d->picture.copy();
}

QImage Stage::renderWhole()
{
    QImage whole(d->picture.size(), d->picture.format());
    whole.fill(Qt::transparent);
    // Another render target for the window would make Qt 6.8 paint the next frame in whole as well.
    d->renderer()->markDirty();
    d->renderer()->setCurrentPaintDevice(&whole);
    d->control.render();
    d->renderer()->setCurrentPaintDevice(nullptr);
    return whole;
}

bool Stage::wantsFrame() const
{
    return d->requests != d->requestsAtFrame;
}

int Stage::frameRequests() const
{
    return d->requests;
}

QSGNode *paintNode(QQuickItem *item)
{
    return QQuickItemPrivate::get(item)->paintNode;
}

QSGNode *itemNode(QQuickItem *item)
{
    return QQuickItemPrivate::get(item)->itemNodeInstance;
}

} // namespace stbtest
