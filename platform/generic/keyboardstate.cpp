// SPDX-License-Identifier: MIT
#include "keyboardstate.h"

namespace stbgeneric {

QStringList KeyboardState::defaultLanguages()
{
    QStringList result;
    for (const KeyboardLayout &layout : keyboardLayouts())
        result.append(layout.language);
    return result;
}

bool KeyboardState::setLanguage(const QString &language)
{
    const int layout = keyboardLayoutOf(language);
    if (layout < 0)
        return false;
    m_layout = layout;
    return true;
}

void KeyboardState::setLanguages(const QStringList &languages)
{
    QStringList known;
    for (const QString &language : languages) {
        const int layout = keyboardLayoutOf(language);
        if (layout >= 0 && !known.contains(keyboardLayouts().at(layout).language))
            known.append(keyboardLayouts().at(layout).language);
    }
    m_languages = known.isEmpty() ? defaultLanguages() : known;
    if (!m_languages.contains(language()))
        setLanguage(m_languages.constFirst());
}

void KeyboardState::useNextLanguage()
{
    const qsizetype next = m_languages.indexOf(language())
                           + 1; // the first one after one that is not among them
    setLanguage(m_languages.at(next % m_languages.size()));
    m_showsSymbols = false;
    m_isShifted = false;
}

QString KeyboardState::text(const KeyPlace &key) const
{
    switch (key.kind) {
    case KeyKind::Symbol:
        if (m_showsSymbols)
            return keyboardSymbols().at(key.text);
        return (m_isShifted != m_isCapsLocked ? layout().shifted : layout().normal).at(key.text);
    case KeyKind::Domain:
        return layout().domains.at(key.text);
    case KeyKind::Space:
        return QStringLiteral(" ");
    default:
        return {};
    }
}

} // namespace stbgeneric
