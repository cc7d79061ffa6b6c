// SPDX-License-Identifier: MIT
#ifndef STBTEST_FAKEPLATFORM_H
#define STBTEST_FAKEPLATFORM_H

#include <stbconfig/configurationmanager.h>
#include <stbcore/platformnativeinterface.h>

#include <QtCore/qhash.h>
#include <QtCore/qlist.h>
#include <QtCore/qsize.h>

namespace stbtest {

/*!
    A platform with tiled pixmaps, in force as long as it lives. Its pixmaps are ordinary ones; it counts what is
    asked of it and can be told to answer badly.
*/
class TiledPixmaps : public stbcore::PlatformNativeInterface
{
public:
    enum class Answer { Right, Null, WrongSize }; // WrongSize: two pixels wider, one lower

    TiledPixmaps();
    ~TiledPixmaps() override;
    Q_DISABLE_COPY_MOVE(TiledPixmaps)

    /*! Whether there are any tiled pixmaps; they are there at first. */
    void setAvailable(bool available);
    void setAnswer(Answer answer);

    /*! The sizes asked for since the start, one for each createTiledPixmap(). */
    QList<QSize> created() const;
    /*! How many painters were set up, and the cache key of the pixmap of the last one. */
    int setUps() const;
    qint64 lastSetUpKey() const;

    bool isTiledPixmapAvailable() const override;
    QPixmap createTiledPixmap(const QSize &size, std::function<void(QPainter &)> paint) override;
    void setupPainterForTiledPixmap(const QPixmap &pixmap, QPainter &painter) override;

private:
    stbcore::PlatformNativeInterface *const m_previous;
    bool m_available = true;
    Answer m_answer = Answer::Right;
    QList<QSize> m_created;
    int m_setUps = 0;
    qint64 m_lastSetUpKey = 0;
};

/*! A configuration store in memory, in force as long as it lives; empty at first. It counts the readings. */
class MemoryConfiguration : public stbconfig::ConfigurationManager
{
public:
    MemoryConfiguration();
    ~MemoryConfiguration() override;
    Q_DISABLE_COPY_MOVE(MemoryConfiguration)

    void setValue(const QString &group, const QString &key, const QVariant &value);
    int readings() const;

    QVariant value(const QString &group, const QString &key, const QVariant &defaultValue) const override;

private:
    stbconfig::ConfigurationManager *const m_previous;
    QHash<QString, QVariant> m_values;
    mutable int m_readings = 0;
};

} // namespace stbtest

#endif // STBTEST_FAKEPLATFORM_H
