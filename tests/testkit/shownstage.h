// SPDX-License-Identifier: MIT
#ifndef STBTEST_SHOWNSTAGE_H
#define STBTEST_SHOWNSTAGE_H

#include <QtCore/qsize.h>
#include <QtGui/qcolor.h>
#include <QtGui/qimage.h>

#include <memory>

QT_BEGIN_NAMESPACE
class QQuickItem;
class QQuickWindow;
QT_END_NAMESPACE

namespace stbtest {

/*!
    A real window, shown, of whatever adaptation of the scene graph the process has: for tests that run on a GPU
    or its stand-in (stb_add_gpu_test()), where a Stage cannot paint. Items go below contentItem().
*/
class ShownStage
{
public:
    /*! Shows a window without frame and waits until the window system has it; a warning tells when it has not. */
    explicit ShownStage(const QSize &size = QSize(640, 360), const QColor &background = Qt::white);
    ~ShownStage();
    Q_DISABLE_COPY_MOVE(ShownStage)

    QQuickWindow *window() const;
    QQuickItem *contentItem() const;

    /*! Whether the software adaptation paints this window. */
    bool isSoftware() const;

    /*! What the window shows with all changes up to now. */
    QImage picture() const;

private:
    const std::unique_ptr<QQuickWindow> m_window;
};

} // namespace stbtest

#endif // STBTEST_SHOWNSTAGE_H
