// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPGVIEWDELEGATE_P_H
#define STBUI_STBEPGVIEWDELEGATE_P_H

#include "controls/epg/stbepgviewdelegate.h"
#include "controls/stylereference.h"
#include "scenegraph/iconnodebuilder.h"
#include "scenegraph/textnodebuilder.h"

#include <QtQuick/private/qquickitem_p.h>

namespace qml_basic_plugin {
class ChildNodes;
}

class StbEpgViewDelegatePrivate : public QQuickItemPrivate
{
    Q_DECLARE_PUBLIC(StbEpgViewDelegate)
public:
    using Style = design_system::PlayerEpgDelegateStyle;
    using TextSignal = void (StbEpgViewDelegate::*)();

    StbEpgViewDelegatePrivate();
    ~StbEpgViewDelegatePrivate() override;

    /*! Measures the texts, places everything and writes the height back. */
    void relayout();
    /*! Reads the badge's icon, once. */
    void loadIndicatorImage();

    /*! Lays out what a derived row shows at the top, and advances \a top past it. */
    virtual void relayoutExtendedItem(const Style &style, int &top);
    /*! Paints it: its nodes are the siblings that follow \a lastBaseNode. */
    virtual void updateExtendedNodes(const Style &style, QSGNode *lastBaseNode);

    void setText(qml_basic_plugin::TextNodeBuilder &builder, const QString &text, TextSignal changed);
    void setUpRenderers(const Style &style);
    QSGNode *createRoot();
    QSGRectangleNode *updateBadge(qml_basic_plugin::ChildNodes &children, const Style &style);

    StyleReference<design_system::PlayerEpgDelegateQmlStyle> m_style;
    qml_basic_plugin::TextNodeBuilder m_startTimeText;
    qml_basic_plugin::IconNodeBuilder m_liveIndicator;
    qml_basic_plugin::TextNodeBuilder m_liveText;
    QRect m_liveIndicatorRect;
    QRect m_liveTextRect;
    qml_basic_plugin::TextNodeBuilder m_title;
    qml_basic_plugin::TextNodeBuilder m_subtitle;
    bool m_live = false;
    bool m_future = false;
    bool m_playable = false;
    bool m_styleDirty = false; // the renderers do not know the style's fonts and widths yet
    QRect m_startTimeRect;
    QRect m_liveBadgeRect;
    QRect m_titleRect;
    QRect m_subtitleRect;
    bool m_liveNodesPresent = false;
    QPropertyNotifier m_widthObserver;
};

#endif // STBUI_STBEPGVIEWDELEGATE_P_H
