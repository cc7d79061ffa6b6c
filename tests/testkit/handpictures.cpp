// SPDX-License-Identifier: MIT
#include "testkit/handpictures.h"

#include <QtCore/qhash.h>
#include <QtCore/qmutex.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickimageprovider.h>
#include <QtTest/qtest.h>

namespace stbtest {

namespace {

QString providerName()
{
    return QStringLiteral("hand");
}

} // namespace

// Shared with the engine's loader thread.
struct HandPictures::State
{
    QMutex mutex;
    QHash<QString, int> requests;
    QHash<QString, QSize> sizes;
    QMultiHash<QString, Response *> waiting; // each lives in the loader's thread
    int responses = 0; // that exist

    /*! Ends the loads of \a name that wait; the mutex is held. */
    void finish(const QString &name, const QImage &picture);
};

class HandPictures::Response : public QQuickImageResponse
{
public:
    Response(std::shared_ptr<State> state, const QString &name)
        : m_state(std::move(state))
        , m_name(name)
    {
        const QMutexLocker locker(&m_state->mutex);
        ++m_state->responses;
    }
    ~Response() override
    {
        const QMutexLocker locker(&m_state->mutex);
        --m_state->responses;
        m_state->waiting.remove(m_name, this);
    }

    void arrive(const QImage &picture)
    {
        m_picture = picture;
        Q_EMIT finished();
    }
    QQuickTextureFactory *textureFactory() const override
    {
        return QQuickTextureFactory::textureFactoryForImage(m_picture);
    }
    QString errorString() const override
    {
        return m_picture.isNull() ? QStringLiteral("no such picture") : QString();
    }

private:
    const std::shared_ptr<State> m_state;
    const QString m_name;
    QImage m_picture;
};

class HandPictures::Provider : public QQuickAsyncImageProvider
{
public:
    explicit Provider(std::shared_ptr<State> state)
        : m_state(std::move(state))
    {
    }
    QQuickImageResponse *requestImageResponse(const QString &name, const QSize &size) override
    {
        auto *response = new Response(m_state, name);
        const QMutexLocker locker(&m_state->mutex);
        ++m_state->requests[name];
        m_state->sizes[name] = size;
        m_state->waiting.insert(name, response);
        return response;
    }

private:
    const std::shared_ptr<State> m_state;
};

void HandPictures::State::finish(const QString &name, const QImage &picture)
{
    const QList<Response *> ended = waiting.values(name);
    waiting.remove(name);
    for (Response *response : ended)
        QMetaObject::invokeMethod(
                response, [response, picture] { response->arrive(picture); }, Qt::QueuedConnection);
}

HandPictures::HandPictures(QQmlEngine *engine)
    : m_state(std::make_shared<State>())
{
    engine->addImageProvider(providerName(), new Provider(m_state));
}

// A load that never comes to its end would leave its response to nobody when the engine's loader goes.
HandPictures::~HandPictures()
{
    {
        const QMutexLocker locker(&m_state->mutex);
        for (const QString &name : m_state->waiting.uniqueKeys())
            m_state->finish(name, QImage());
    }
    const bool done = QTest::qWaitFor([this] {
        const QMutexLocker locker(&m_state->mutex);
        return m_state->responses == 0;
    });
    if (!done)
        qWarning("Pictures are still being loaded");
}

QUrl HandPictures::url(const QString &name)
{
    return QUrl(QStringLiteral("image://%1/%2").arg(providerName(), name));
}

int HandPictures::requests(const QString &name) const
{
    const QMutexLocker locker(&m_state->mutex);
    return m_state->requests.value(name);
}

QSize HandPictures::requestedSize(const QString &name) const
{
    const QMutexLocker locker(&m_state->mutex);
    return m_state->sizes.value(name);
}

int HandPictures::waiting(const QString &name) const
{
    const QMutexLocker locker(&m_state->mutex);
    return int(m_state->waiting.count(name));
}

bool HandPictures::deliver(const QString &name, const QImage &picture)
{
    if (!QTest::qWaitFor([&] { return waiting(name) > 0; })) {
        qWarning("Nobody asks for the picture %s", qPrintable(name));
        return false;
    }
    const QMutexLocker locker(&m_state->mutex);
    m_state->finish(name, picture);
    return true;
}

} // namespace stbtest
