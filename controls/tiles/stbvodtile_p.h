// SPDX-License-Identifier: MIT
#ifndef STBUI_STBVODTILE_P_H
#define STBUI_STBVODTILE_P_H

#include "controls/tiles/stbcontenttile_p.h"
#include "controls/tiles/stbvodtile.h"
#include "scenegraph/picture.h"

class QSGRectangleNode;

class StbVodTilePrivate : public StbContentTilePrivate
{
    Q_DECLARE_PUBLIC(StbVodTile)
public:
    StbVodTilePrivate();
    ~StbVodTilePrivate() override;

    void loadRightholderImage();
    void processStyleChanged(const Style &style) override;
    QSGNode *updateExtendedNodes(const Style &style, QSGNode *node) override;
    void forgetNodes() override;

    QUrl m_rightholderImageSource;
    qml_basic_plugin::Picture m_rightholderImage;
    qml_basic_plugin::TextNodeBuilder m_rating;
    double m_timepoint = 0;
    double m_duration = 0;
    bool m_rightholderPresent = false; // which nodes there are
    bool m_ratingPresent = false;
    bool m_progressTrackPresent = false;
    bool m_progressValuePresent = false;

private:
    QSGRectangleNode *updateBadge(qml_basic_plugin::ChildNodes &children, const Style &style);
};

#endif // STBUI_STBVODTILE_P_H
