// SPDX-License-Identifier: MIT
#ifndef STBTEST_HANDPICTURES_H
#define STBTEST_HANDPICTURES_H

#include <QtCore/qsize.h>
#include <QtCore/qurl.h>
#include <QtGui/qimage.h>

#include <memory>

QT_BEGIN_NAMESPACE
class QQmlEngine;
QT_END_NAMESPACE

namespace stbtest {

/*!
    Pictures that an engine loads asynchronously and that arrive when the test says so. It goes before its engine,
    and the loads that still wait then fail.
*/
class HandPictures
{
public:
    explicit HandPictures(QQmlEngine *engine);
    ~HandPictures();
    Q_DISABLE_COPY_MOVE(HandPictures)

    /*! Where the picture \a name is. */
    static QUrl url(const QString &name);

    /*! How often \a name was asked for since the start, and in which size the last time. */
    int requests(const QString &name) const;
    QSize requestedSize(const QString &name) const;

    /*! How many loads of \a name wait for their picture now. */
    int waiting(const QString &name) const;

    /*!
        Waits until \a name is asked for and lets every load of it that waits come to its end, with \a picture or,
        when that is null, with a failure. The engine hears of it from the event loop. False, with a warning, when
        nobody asks.
    */
    bool deliver(const QString &name, const QImage &picture);

private:
    class Response;
    class Provider;
    struct State;
    const std::shared_ptr<State> m_state;
};

} // namespace stbtest

#endif // STBTEST_HANDPICTURES_H
