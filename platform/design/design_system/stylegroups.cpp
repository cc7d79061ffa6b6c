// SPDX-License-Identifier: MIT
#include "design_system/stylegroups.h"

namespace design_system {

void CheckBoxIconGroup::setSize(QSize size)
{
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT sizeChanged();
}

void CheckBoxIconGroup::setWidth(int width)
{
    setSize(QSize(width, m_size.height()));
}

void CheckBoxIconGroup::setHeight(int height)
{
    setSize(QSize(m_size.width(), height));
}

} // namespace design_system
