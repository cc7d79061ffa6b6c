// SPDX-License-Identifier: MIT
#include "design_system/colors.h"

#include <QtCore/qmetaobject.h>

namespace design_system {

void Colors::setTokens(const QHash<QString, QColor> &tokens)
{
    m_tokens = tokens;
    for (int i = staticMetaObject.propertyOffset(); i < staticMetaObject.propertyCount(); ++i) {
        const QMetaProperty property = staticMetaObject.property(i);
        property.write(this, tokens.value(QString::fromLatin1(property.name())));
    }
}

} // namespace design_system
