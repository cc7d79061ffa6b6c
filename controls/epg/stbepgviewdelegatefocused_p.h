// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPGVIEWDELEGATEFOCUSED_P_H
#define STBUI_STBEPGVIEWDELEGATEFOCUSED_P_H

#include "controls/epg/stbepgviewdelegate_p.h"
#include "controls/epg/stbepgviewdelegatefocused.h"
#include "scenegraph/picture.h"

class StbEpgViewDelegateFocusedPrivate : public StbEpgViewDelegatePrivate
{
    Q_DECLARE_PUBLIC(StbEpgViewDelegateFocused)
public:
    StbEpgViewDelegateFocusedPrivate();
    ~StbEpgViewDelegateFocusedPrivate() override;

    void relayoutExtendedItem(const Style &style, int &top) override;
    void updateExtendedNodes(const Style &style, QSGNode *lastBaseNode) override;

    /*! Starts to load the programme's picture. */
    void loadLogo();
    /*! Read the icons, once each. */
    void loadPlayIcon();
    void loadReminderIcon();

    /*! The nodes on the card, from the bottom to the top; null for a part that is not shown. */
    struct CardNodes
    {
        QSGRectangleNode *played = nullptr;
        QSGRectangleNode *remainder = nullptr;
        QSGImageNode *playIcon = nullptr;
        QSGImageNode *status = nullptr;
        QSGRectangleNode *reminderBar = nullptr;
        QSGImageNode *reminderAction = nullptr; // a child of the bar
        QSGImageNode *startsAt = nullptr;
        QSGImageNode *reminderIcon = nullptr;
    };

    bool hasReminderBlock() const { return !m_playable && m_future; }
    QString statusText() const;
    QString startsAtText() const;
    QString reminderActionText() const;
    void setUpCardRenderers(const Style &style);
    QSGRectangleNode *updateCard(qml_basic_plugin::ChildNodes &children, const Style &style);
    void updatePlayNodes(qml_basic_plugin::ChildNodes &parts, const Style &style, CardNodes &nodes);
    void updateStatusNode(qml_basic_plugin::ChildNodes &parts, const Style &style, CardNodes &nodes);
    void updateReminderNodes(qml_basic_plugin::ChildNodes &parts, const Style &style, CardNodes &nodes);
    void placeCardNodes(const Style &style, const CardNodes &nodes);

    QUrl m_imageSource;
    qml_basic_plugin::Picture m_image;
    qml_basic_plugin::IconNodeBuilder m_reminderIcon;
    qml_basic_plugin::IconNodeBuilder m_playIcon;
    qml_basic_plugin::TextNodeBuilder m_statusText;
    qml_basic_plugin::TextNodeBuilder m_startsAtText;
    qml_basic_plugin::TextNodeBuilder m_reminderActionText;
    double m_progress = 0;
    bool m_hasReminder = false;
    bool m_past = false;
    bool m_imageNodePresent = false;
    bool m_playIconNodePresent = false;
    bool m_progressNodesPresent = false;
    bool m_statusNodePresent = false;
    bool m_reminderNodesPresent = false;

private:
    template <typename Builder>
    QSGImageNode *placeImage(qml_basic_plugin::ChildNodes &children, bool wanted, bool &present,
                             Builder &builder);
};

#endif // STBUI_STBEPGVIEWDELEGATEFOCUSED_P_H
