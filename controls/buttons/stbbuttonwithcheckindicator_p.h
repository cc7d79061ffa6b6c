// SPDX-License-Identifier: MIT
#ifndef STBUI_STBBUTTONWITHCHECKINDICATOR_P_H
#define STBUI_STBBUTTONWITHCHECKINDICATOR_P_H

#include "controls/buttons/stbbutton_p.h"
#include "controls/buttons/stbbuttonwithcheckindicator.h"

class StbButtonWithCheckIndicatorPrivate : public StbButtonPrivate
{
    Q_DECLARE_PUBLIC(StbButtonWithCheckIndicator)
public:
    StbButtonWithCheckIndicatorPrivate();
    ~StbButtonWithCheckIndicatorPrivate() override;

    void updateExtendedNodes(const Style &style, QSGNode *lastContentNode) override;

    bool m_indicatorPresent = false;
};

#endif // STBUI_STBBUTTONWITHCHECKINDICATOR_P_H
