// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPGDATE_P_H
#define STBUI_STBEPGDATE_P_H

#include "controls/epg/stbepgdate.h"
#include "controls/stylereference.h"
#include "scenegraph/textnodebuilder.h"

#include <QtQuick/private/qquickitem_p.h>

class StbEpgDatePrivate : public QQuickItemPrivate
{
    Q_DECLARE_PUBLIC(StbEpgDate)
public:
    using Style = design_system::PlayerEpgDateStyle;

    StbEpgDatePrivate();
    ~StbEpgDatePrivate() override;

    /*! Gives the texts of the date to their builders. */
    void processDateUpdate();

    QSGNode *createRoot(const Style &style);

    StyleReference<design_system::PlayerEpgDateQmlStyle> m_style;
    qml_basic_plugin::TextNodeBuilder m_month;
    qml_basic_plugin::TextNodeBuilder m_day;
    QDate m_date;
    bool m_active = true;
};

#endif // STBUI_STBEPGDATE_P_H
