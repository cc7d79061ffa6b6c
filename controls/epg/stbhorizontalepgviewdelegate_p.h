// SPDX-License-Identifier: MIT
#ifndef STBUI_STBHORIZONTALEPGVIEWDELEGATE_P_H
#define STBUI_STBHORIZONTALEPGVIEWDELEGATE_P_H

#include "controls/epg/stbhorizontalepgviewdelegate.h"
#include "controls/stylereference.h"
#include "scenegraph/picture.h"
#include "scenegraph/textnodebuilder.h"

#include <QtQuick/private/qquickitem_p.h>

class StbHorizontalEpgViewDelegatePrivate : public QQuickItemPrivate
{
    Q_DECLARE_PUBLIC(StbHorizontalEpgViewDelegate)
public:
    using Style = design_system::PlayerHorizontalEpgViewStyle;
    using TextSignal = void (StbHorizontalEpgViewDelegate::*)();

    StbHorizontalEpgViewDelegatePrivate();
    ~StbHorizontalEpgViewDelegatePrivate() override;

    /*! Starts to load the picture. */
    void loadImage();

    void setText(qml_basic_plugin::TextNodeBuilder &builder, const QString &text, TextSignal changed);
    QSGNode *createRoot(const Style &style);
    /*! Paints texts and picture into \a root. The texts are placed when one changed its size, or if \a rootIsNew. */
    void updateChildren(QSGNode *root, const Style &style, bool rootIsNew);

    StyleReference<design_system::PlayerHorizontalEpgViewQmlStyle> m_style;
    QUrl m_imageSource;
    qml_basic_plugin::Picture m_picture;
    qml_basic_plugin::TextNodeBuilder m_title;
    qml_basic_plugin::TextNodeBuilder m_exactDate;
    qml_basic_plugin::TextNodeBuilder m_description;
    bool m_hasImageNode = false;
};

#endif // STBUI_STBHORIZONTALEPGVIEWDELEGATE_P_H
