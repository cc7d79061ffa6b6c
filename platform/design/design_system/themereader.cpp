// SPDX-License-Identifier: MIT
#include "design_system/themereader.h"
namespace design_system {
QString hdRoleName(int) { return {}; }
QString sdRoleName(int) { return {}; }
ThemeReader::ThemeReader(const QString &resolution, double textScale) : m_resolution(resolution), m_scale(1), m_textScale(textScale) {}
ThemeReader::~ThemeReader() = default;
std::optional<double> ThemeReader::scaleOf(const QString &) { return 1.0; }
bool ThemeReader::addFile(const QString &) { return true; }
void ThemeReader::apply(QObject *) {}
ThemeWarnings::~ThemeWarnings() = default;
}
