// SPDX-License-Identifier: MIT
#ifndef STBTEST_STAGE_H
#define STBTEST_STAGE_H

#include <QtCore/qsize.h>
#include <QtGui/qcolor.h>
#include <QtGui/qimage.h>
#include <QtGui/qregion.h>

#include <memory>

QT_BEGIN_NAMESPACE
class QQuickItem;
class QQuickWindow;
class QSGNode;
QT_END_NAMESPACE

namespace stbtest {

/*! How many pixels \a region covers. */
qint64 pixelCount(const QRegion &region);

/*!
    A window of the software adaptation that is never shown and paints a frame only when it is told to. What it
    painted stays in its picture until the next frame paints over it, as on a screen: a control that forgets to
    paint something leaves it stale here too.

    Put items below contentItem(); an item belongs to its own parent, the stage deletes none but those that
    nobody else owns. One pixel is one unit; the origin is the top left corner.
*/
class Stage
{
public:
    /*! A window of \a size (default 1280 x 720) filled with \a background (default white). */
    explicit Stage(const QSize &size = QSize(1280, 720), const QColor &background = Qt::white);
    ~Stage();
    Q_DISABLE_COPY_MOVE(Stage)

    QQuickWindow *window() const;
    QQuickItem *contentItem() const;
    QSize size() const;

    /*! Fills what no item covers; the next frame paints everything. */
    void setBackground(const QColor &background);

    /*!
        Polishes, synchronises and paints one frame. Returns the region that this frame painted, empty when it
        painted nothing; paintedRegion() repeats it.
    */
    QRegion renderFrame();
    QRegion paintedRegion() const;

    /*! What the window shows after the frames so far; before the first one a transparent picture. */
    QImage picture() const;

    /*!
        The scene as the last frame left it, painted in whole into a picture of its own. It shows the nodes there
        are: what differs from picture() was painted too sparingly, what a control forgot to tell its nodes is
        missing in both. Neither picture() nor the next frame's region is affected.
    */
    QImage renderWhole();

    /*! Whether an item has asked for a frame since the last one, and how often in all. */
    bool wantsFrame() const;
    int frameRequests() const;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

/*! The node that \a item returned from its last paint-node update; null when it returned none. */
QSGNode *paintNode(QQuickItem *item);

/*! The node that carries the position of \a item, above its paintNode() and its children's nodes. */
QSGNode *itemNode(QQuickItem *item);

} // namespace stbtest

#endif // STBTEST_STAGE_H
