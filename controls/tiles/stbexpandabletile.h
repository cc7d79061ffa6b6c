// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEXPANDABLETILE_H
#define STBUI_STBEXPANDABLETILE_H

#include <design_system/tilestyle.h>

#include <QtCore/qproperty.h>
#include <QtCore/qurl.h>
#include <QtQuick/qquickitem.h>

class StbExpandableTilePrivate;

/*!
    The base tile of a media grid, the QML element \c ExpandableTile: a picture, a background while there is none
    or while it fades in, and a frame above it. It paints itself; it has no child items.

    The picture area grows from the style's tileRect to its focusedRect when the item's \c state becomes "focused"
    and shrinks back when it becomes "normal"; any other state changes nothing. A change of state on the way turns
    the animation round where it is. A state that the tile has from its creation, or that comes while it has no
    style, starts no animation, and another style leaves a focused tile at rest: it grows with the next change of
    its state. A tile that becomes "normal" shrinks from its focused size, even when it was at rest: give it that
    state from its creation. focusedRect is in the tile's coordinates, its left and top edge at or before the
    origin: how far it sticks out there is taken as an absolute value.

    Both animations have the design system's durations (focus: at least 1 ms) and are switched by QmlSettings when
    the component is complete. Without the settings or the design system, or with the focus animation switched
    off, growing takes 1 ms; without them, or with a fade duration of 0 or less, a picture does not fade. A fade
    goes on to its end without a style too, so that no picture stays half transparent.

    The style owns the tile's size: width and height become those of tileRect when a style is set and once more when
    the component is complete, whatever they were bound to, and without a change signal. A style that is set later
    puts the picture area back to tileRect; what has laid the tile out by its former size is not told.

    Without a style, or with a width or height of 0 or less, the tile paints nothing.
*/
class StbExpandableTile : public QQuickItem
{
    Q_OBJECT
    /*!
        The area that picture, background and frame fill, in the tile's coordinates. The focus animation writes
        it. Default: the null rectangle; the style's tileRect as soon as there is a style.
    */
    Q_PROPERTY(QRect customFocusRect READ customFocusRect WRITE setCustomFocusRect NOTIFY
                       customFocusRectChanged BINDABLE bindableCustomFocusRect)
    /*!
        The design. Not owned; one that is destroyed counts as null. The tile acts on a new style object; it does
        not listen to changes inside the object. The frame keeps the fill and the pen that it was made with until it
        has gone once. A borderPen without a colour, or thinner than 1, paints no border. Null by default; resettable.
    */
    Q_PROPERTY(
            design_system::TileQmlStyle *style READ style WRITE setStyle RESET resetStyle NOTIFY styleChanged)
    /*!
        Where the picture is; a relative URL is taken from the QML document. It is loaded asynchronously once
        the component is complete, and fades in. While it loads, and when it cannot be loaded, the background is
        shown. An empty or invalid URL takes the picture away and fades nothing. Empty by default.
    */
    Q_PROPERTY(QUrl imageSource READ imageSource WRITE setImageSource NOTIFY imageSourceChanged)
    /*!
        The colour of the background; an invalid one means the style's. A change schedules no repaint, on purpose:
        it shows with the next one that anything else causes. Invalid by default.
    */
    Q_PROPERTY(QColor itemBackgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY
                       backgroundColorChanged)
    QML_NAMED_ELEMENT(ExpandableTile)
public:
    explicit StbExpandableTile(QQuickItem *parent = nullptr);
    ~StbExpandableTile() override;

    QRect customFocusRect() const;
    /*! Drops a binding, unless \a rect is what the property holds already. */
    void setCustomFocusRect(const QRect &rect);
    QBindable<QRect> bindableCustomFocusRect();

    design_system::TileQmlStyle *style() const;
    void setStyle(design_system::TileQmlStyle *style);
    void resetStyle();

    QUrl imageSource() const;
    void setImageSource(const QUrl &source);

    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);

public Q_SLOTS:
    /*! The picture has been loaded, or has turned out not to be loadable. */
    void processImageReceived();

Q_SIGNALS:
    void customFocusRectChanged();
    void styleChanged();
    void imageSourceChanged();
    void backgroundColorChanged();

protected:
    StbExpandableTile(StbExpandableTilePrivate &dd, QQuickItem *parent);

    void processStateChanged(const QString &state);
    /*! A step of the time line that sends it; called by nothing else. */
    void processValueChanged(double value);

    void componentComplete() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, QQuickItem::UpdatePaintNodeData *data) override;

private:
    Q_DISABLE_COPY_MOVE(StbExpandableTile)
    Q_DECLARE_PRIVATE(StbExpandableTile)
};

#endif // STBUI_STBEXPANDABLETILE_H
