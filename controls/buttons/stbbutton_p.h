// SPDX-License-Identifier: MIT
#ifndef STBUI_STBBUTTON_P_H
#define STBUI_STBBUTTON_P_H

#include "controls/buttons/stbbutton.h"
#include "controls/buttons/stbbuttonlayout.h"
#include "controls/stylereference.h"
#include "scenegraph/iconnodebuilder.h"
#include "scenegraph/textnodebuilder.h"
#include "scenegraph/throbbernodebuilder.h"

#include <QtQuick/private/qquickitem_p.h>

#include <limits>
#include <memory>

namespace qml_basic_plugin {
class ChildNodes;
}

class StbButtonPrivate : public QQuickItemPrivate
{
    Q_DECLARE_PUBLIC(StbButton)
public:
    using Style = design_system::QmlButtonStyle;
    static constexpr int unlimitedWidth = std::numeric_limits<int>::max();

    StbButtonPrivate();
    ~StbButtonPrivate() override;

    /*! Measures the texts, places everything and writes the implicit size back. */
    void relayout();
    /*! The colour of the button's state: disabled wins over checked, checked over focused. */
    QColor stateColor(const design_system::StatesColors &colors) const;
    /*! Whether the width is set from outside; so it is until isFixedWidth is assigned. */
    bool isFixedSize() const;

    /*! Takes over what a new style says once and for all: fonts and, when fixed, the implicit width. */
    virtual void processStyleChanged(const Style &style);
    /*!
        Paints what a derived button adds: its nodes are the siblings that follow \a lastContentNode. That is
        null while there is no content; what followed it is gone then.
    */
    virtual void updateExtendedNodes(const Style &style, QSGNode *lastContentNode);

    bool setIconSource(qml_basic_plugin::IconNodeBuilder &icon, const QString &source,
                       void (StbButton::*changed)());
    /*! What the layout goes by; lays the texts out. */
    StbButtonLayout::Content measureContent(const Style &style);
    void layOutTexts(int maxWidth);
    void createThrobber();
    void watchWindow();
    void runThrobber();

    QSGNode *createRoot();
    void updateContent(QSGNode *root, const Style &style);
    void updateThrobber(qml_basic_plugin::ChildNodes &children);
    void updateIcon(qml_basic_plugin::ChildNodes &children, qml_basic_plugin::IconNodeBuilder &icon,
                    bool &present, const QRect &rect, const design_system::StatesColors &colors);
    void updateText(qml_basic_plugin::ChildNodes &children, qml_basic_plugin::TextNodeBuilder &text,
                    bool &present, const QRect &rect, const QColor &color);

    StyleReference<design_system::ButtonQmlStyle> m_style;
    qml_basic_plugin::IconNodeBuilder m_leftIcon;
    qml_basic_plugin::IconNodeBuilder m_rightIcon;
    qml_basic_plugin::TextNodeBuilder m_title;
    qml_basic_plugin::TextNodeBuilder m_subtitle;
    std::unique_ptr<qml_basic_plugin::ThrobberNodeBuilder> m_throbber; // made when it is first shown
    bool m_focused = false;
    bool m_checked = false;
    bool m_checkable = false;
    bool m_throbberVisible = false;
    bool m_fixedWidth = false;
    bool m_fixedWidthSet = false;
    bool m_forceTitleColor = false;
    QColor m_titleForcedColor;
    double m_leftPadding = 0;
    double m_rightPadding = 0;
    QRect m_leftIconRect;
    QRect m_rightIconRect;
    QRect m_titleRect;
    QRect m_subtitleRect;
    bool m_leftIconNode = false;
    bool m_rightIconNode = false;
    bool m_titleNode = false;
    bool m_subtitleNode = false;
    bool m_throbberNode = false;
    bool m_throbberNeedsDraw = false;
    int m_textWidth = unlimitedWidth; // the limit of both lines
    QMetaObject::Connection m_windowVisibility;
    QPropertyNotifier m_widthObserver;
    QPropertyNotifier m_heightObserver;
};

#endif // STBUI_STBBUTTON_P_H
