// SPDX-License-Identifier: MIT
#include "screens/themes.h"

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

constexpr QLatin1StringView defaultTheme = "default"_L1;

QString builtInPath(const QString &name)
{
    return ":/stbui/design/themes/"_L1 + name + ".json"_L1;
}

} // namespace

QStringList themeNames()
{
    return { defaultTheme, u"light"_s, u"contrast"_s, u"copper"_s };
}

QString themePath(const QString &name)
{
    const bool isDefault = name == defaultTheme;
    return themeNames().contains(name) && !isDefault ? builtInPath(name) : QString();
}

QString themeName(const QString &path)
{
    if (path.isEmpty())
        return defaultTheme;
    // A resource may be written as a URL too.
    const QString file = path.startsWith("qrc:/"_L1) ? path.mid(3) : path;
    const QStringList names = themeNames();
    for (const QString &name : names) {
        if (file == builtInPath(name))
            return name;
    }
    return {};
}

} // namespace gallery
