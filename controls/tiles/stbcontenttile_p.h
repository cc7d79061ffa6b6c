// SPDX-License-Identifier: MIT
#ifndef STBUI_STBCONTENTTILE_P_H
#define STBUI_STBCONTENTTILE_P_H

#include "controls/tiles/stbcontenttile.h"
#include "controls/tiles/stbexpandabletile_p.h"
#include "scenegraph/iconnodebuilder.h"
#include "scenegraph/textnodebuilder.h"

#include <optional>

class QSGImageNode;

namespace qml_basic_plugin {
class ChildNodes;
}

class StbContentTilePrivate : public StbExpandableTilePrivate
{
    Q_DECLARE_PUBLIC(StbContentTile)
public:
    StbContentTilePrivate();
    ~StbContentTilePrivate() override;

    /*! Reads the favourite icon, once, as soon as there is a style. */
    void loadFavoriteIcon();
    void processStyleChanged(const Style &style) override;
    QSGNode *updateExtendedNodes(const Style &style, QSGNode *node) override;
    void forgetNodes() override;

    qml_basic_plugin::IconNodeBuilder m_favoriteIcon;
    qml_basic_plugin::TextNodeBuilder m_title;
    qml_basic_plugin::TextNodeBuilder m_subtitle;
    qml_basic_plugin::TextNodeBuilder m_status;
    bool m_favorite = false;
    bool m_iconPresent = false; // which nodes there are
    bool m_titlePresent = false;
    bool m_subtitlePresent = false;
    bool m_statusPresent = false;

private:
    QSGImageNode *placeIcon(qml_basic_plugin::ChildNodes &children);
    QSGImageNode *placeText(qml_basic_plugin::ChildNodes &children, qml_basic_plugin::TextNodeBuilder &text,
                            bool &present);
};

#endif // STBUI_STBCONTENTTILE_P_H
