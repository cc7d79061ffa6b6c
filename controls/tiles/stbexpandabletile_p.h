// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEXPANDABLETILE_P_H
#define STBUI_STBEXPANDABLETILE_P_H

#include "controls/stylereference.h"
#include "controls/tiles/stbexpandabletile.h"
#include "scenegraph/picture.h"

#include <QtCore/qtimeline.h>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuick/private/qsgadaptationlayer_p.h>

namespace qml_basic_plugin {
class ChildNodes;
}

class StbExpandableTilePrivate : public QQuickItemPrivate
{
    Q_DECLARE_PUBLIC(StbExpandableTile)
public:
    using Style = design_system::TileStyle;

    StbExpandableTilePrivate();
    ~StbExpandableTilePrivate() override;

    /*! A derived tile takes over what it needs of a new style; called before the geometry is updated. */
    virtual void processStyleChanged(const Style &style);
    /*!
        Paints what a derived tile shows. Its nodes are the siblings that follow \a node, the last one of the base
        class; returns the last node of its own, or \a node when it has none.
    */
    virtual QSGNode *updateExtendedNodes(const Style &style, QSGNode *node);
    /*! There is no node of this tile any more: resets the presence flags. A derived tile calls its base's. */
    virtual void forgetNodes();

    /*! Takes size, resting area and focus margins from the style. */
    void updateGeometry();
    /*! Writes the style's size into the item without a notification; drops bindings. */
    void applyStyleSize();
    /*! Starts to load the picture. */
    void loadImage();
    /*! What follows from another value of the property, whoever wrote it. */
    void customFocusRectChanged();

    void connectTimeLines();
    QRect expandedRect(const QRect &tileRect, double progress) const;
    QSGNode *createRoot();
    void updateBackground(qml_basic_plugin::ChildNodes &children, const Style &style, bool wanted);
    /*! Moves the picture's node into one that fades it, or out of it, at the same place. */
    void setFading(QSGNode *root, bool fading);
    void updatePicture(qml_basic_plugin::ChildNodes &children, QSGTexture *texture);
    void updateFrame(qml_basic_plugin::ChildNodes &children, const Style &style);

    StyleReference<design_system::TileQmlStyle> m_style;
    QUrl m_imageSource;
    qml_basic_plugin::Picture m_poster;
    QColor m_backgroundColor;
    Q_OBJECT_BINDABLE_PROPERTY(StbExpandableTilePrivate, QRect, m_customFocusRect,
                               &StbExpandableTilePrivate::customFocusRectChanged)
    int m_leftFocusMargin = 0; // how far the focused area sticks out of the resting one
    int m_topFocusMargin = 0;
    int m_rightFocusMargin = 0;
    int m_bottomFocusMargin = 0;
    QTimeLine m_focusTimeLine;
    QTimeLine m_fadeTimeLine;
    double m_imageOpacity = 1.0;
    bool m_fadeEnabled = false;
    bool m_hasOpacityNode = false; // the picture's node lies in one that fades it
    bool m_hasImageNode = false;
    bool m_hasBackgroundNode = false;
    bool m_hasFrameNode = false;
};

#endif // STBUI_STBEXPANDABLETILE_P_H
