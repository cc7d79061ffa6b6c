// SPDX-License-Identifier: MIT
#include "controls/buttons/stbbuttonwithcheckindicator_p.h"

#include "controls/wholepixels.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

using namespace qml_basic_plugin;

StbButtonWithCheckIndicatorPrivate::StbButtonWithCheckIndicatorPrivate() = default;
StbButtonWithCheckIndicatorPrivate::~StbButtonWithCheckIndicatorPrivate() = default;

StbButtonWithCheckIndicator::StbButtonWithCheckIndicator(QQuickItem *parent)
    : StbButton(*new StbButtonWithCheckIndicatorPrivate, parent)
{
}

StbButtonWithCheckIndicator::~StbButtonWithCheckIndicator() = default;

void StbButtonWithCheckIndicatorPrivate::updateExtendedNodes(const Style &style, QSGNode *lastContentNode)
{
    if (!lastContentNode)
        return;
    ChildNodes children(lastContentNode->parent(), lastContentNode);
    auto *indicator = children.place<QSGRectangleNode>(m_checked, m_indicatorPresent,
                                                       [&](QSGNode *root, QSGNode *before) {
                                                           return createRectangleNode(sceneGraphContext(),
                                                                                      style.checkIndicatorColor,
                                                                                      root, before);
                                                       });
    if (!indicator)
        return;
    const QRect &size = style.checkIndicatorSize;
    const double markWidth = double(size.right()) - size.left() + 1; // corners are any an int can be
    const double markHeight = double(size.bottom()) - size.top() + 1;
    const double top = wholePixels(height.value()) - markHeight - style.checkIndicatorBottomMargin;
    setNodeRect(indicator, QRectF(style.checkIndicatorLeft, top, markWidth, markHeight));
}
