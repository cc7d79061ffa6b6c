// SPDX-License-Identifier: MIT
#include "controls/buttons/stbbuttonwithcheckindicator_p.h"

#include "controls/wholepixels.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

#include <algorithm>

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
    const QColor color = visibleColor(style.checkIndicatorColor);
    auto *indicator = children.place<QSGRectangleNode>(m_checked, m_indicatorPresent,
                                                       [&](QSGNode *root, QSGNode *before) {
                                                           return createRectangleNode(sceneGraphContext(),
                                                                                      color, root, before);
                                                       });
    if (!indicator)
        return;
    const QRect &size = style.checkIndicatorSize;
    // In doubles, because corners are any an int can be; nodeRect() tells why an empty mark has no extent at all.
    const QSizeF extent(std::max(double(size.right()) - size.left() + 1, 0.),
                        std::max(double(size.bottom()) - size.top() + 1, 0.));
    const double top = wholePixels(height.value()) - extent.height() - style.checkIndicatorBottomMargin;
    setNodeRect(indicator,
                QRectF(QPointF(style.checkIndicatorLeft, top), extent.isEmpty() ? QSizeF(0, 0) : extent));
}
