// SPDX-License-Identifier: MIT
#include "testkit/fakeplatform.h"

#include <QtGui/qpainter.h>

namespace stbtest {
namespace {

QString path(const QString &group, const QString &key)
{
    return QStringLiteral("%1/%2").arg(group, key);
}

} // namespace

TiledPixmaps::TiledPixmaps()
    : m_previous(stbcore::platformNativeInterface())
{
    stbcore::setPlatformNativeInterface(this);
}

TiledPixmaps::~TiledPixmaps()
{
    stbcore::setPlatformNativeInterface(m_previous);
}

void TiledPixmaps::setAvailable(bool available)
{
    m_available = available;
}

void TiledPixmaps::setAnswer(Answer answer)
{
    m_answer = answer;
}

QList<QSize> TiledPixmaps::created() const
{
    return m_created;
}

int TiledPixmaps::setUps() const
{
    return m_setUps;
}

qint64 TiledPixmaps::lastSetUpKey() const
{
    return m_lastSetUpKey;
}

bool TiledPixmaps::isTiledPixmapAvailable() const
{
    return m_available;
}

QPixmap TiledPixmaps::createTiledPixmap(const QSize &size, std::function<void(QPainter &)> paint)
{
    m_created.append(size);
    if (m_answer == Answer::Null)
        return QPixmap();
    QPixmap pixmap(m_answer == Answer::WrongSize ? size + QSize(2, -1) : size);
    pixmap.fill(Qt::magenta); // a tiled pixmap comes with whatever was in its memory
    if (paint) {
        QPainter painter(&pixmap);
        paint(painter);
    }
    return pixmap;
}

void TiledPixmaps::setupPainterForTiledPixmap(const QPixmap &pixmap, QPainter &painter)
{
    if (!painter.isActive())
        qWarning("A painter is set up that is not open on the tiled pixmap");
    ++m_setUps;
    m_lastSetUpKey = pixmap.cacheKey();
}

MemoryConfiguration::MemoryConfiguration()
    : m_previous(stbconfig::qmlConfigManager())
{
    stbconfig::setQmlConfigManager(this);
}

MemoryConfiguration::~MemoryConfiguration()
{
    stbconfig::setQmlConfigManager(m_previous);
}

void MemoryConfiguration::setValue(const QString &group, const QString &key, const QVariant &value)
{
    m_values.insert(path(group, key), value);
}

int MemoryConfiguration::readings() const
{
    return m_readings;
}

QVariant MemoryConfiguration::value(const QString &group, const QString &key,
                                    const QVariant &defaultValue) const
{
    ++m_readings;
    return m_values.value(path(group, key), defaultValue);
}

} // namespace stbtest
