// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_TINTEDICON_H
#define STBGENERIC_TINTEDICON_H

#include <QtCore/qsize.h>
#include <QtGui/qcolor.h>
#include <QtGui/qimage.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

namespace stbgeneric {

/*!
    A picture from a resource or a local file, scaled to the item's size and painted in one colour. It is read
    when it is first seen; icons that are alike share their pixels. One that cannot be read is a warning with the
    path, once for all icons, and shows nothing.
*/
class TintedIcon : public QQuickItem
{
    Q_OBJECT
    /*! "qrc:/...", ":/...", a file's URL or its path; empty, the default, shows nothing. */
    Q_PROPERTY(QString path READ path WRITE setPath NOTIFY pathChanged)
    /*! The colour that the picture's shape is painted in; invalid, the default, leaves its own colours. */
    Q_PROPERTY(QColor color READ color WRITE setColor RESET resetColor NOTIFY colorChanged)
    /*!
        The radius of the corners in pixels, 0 by default. A picture of other proportions than the item's is
        shown whole when it is 0, and fills the item when it is more.
    */
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged)
    /*! The size that the icon asks for (implicitWidth, implicitHeight); 24 x 24 by default. */
    Q_PROPERTY(QSize pictureSize READ pictureSize WRITE setPictureSize NOTIFY pictureSizeChanged)
    /*! Whether left and right are exchanged; false by default. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    QML_ELEMENT
public:
    explicit TintedIcon(QQuickItem *parent = nullptr);

    QString path() const { return m_path; }
    QColor color() const { return m_color; }
    qreal radius() const { return m_radius; }
    bool isMirrored() const { return m_isMirrored; }
    QSize pictureSize() const { return m_pictureSize; }

    void setPath(const QString &path);
    void setColor(const QColor &color);
    void resetColor() { setColor(QColor()); }
    void setRadius(qreal radius);
    void setMirrored(bool mirrored);
    void setPictureSize(QSize size);

Q_SIGNALS:
    void pathChanged();
    void colorChanged();
    void radiusChanged();
    void mirroredChanged();
    void pictureSizeChanged();

protected:
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void invalidate();
    QImage makePicture();

    QString m_path;
    QColor m_color;
    qreal m_radius = 0;
    bool m_isMirrored = false;
    QSize m_pictureSize { 24, 24 };
    QImage m_picture;
    bool m_isStale = true; //!< m_picture has yet to be made
    bool m_isNew = false; //!< m_picture has yet to become the node's texture
    bool m_isUnreadable = false;
};

} // namespace stbgeneric

#endif // STBGENERIC_TINTEDICON_H
