// SPDX-License-Identifier: MIT
#include "design_system/qmldesignsystem.h"

#include "design_system/themereader.h"
#include "design_system/themevalues.h"

#include <QtCore/qdebug.h>
#include <QtCore/qmetaobject.h>
#include <QtQml/qqmlengine.h>

#include <stbconfig/configurationmanager.h>

#include <cmath>

namespace design_system {

namespace {

constexpr double smallestTextScale = 0.75;
constexpr double largestTextScale = 1.5;

QString configured(const char *key)
{
    const stbconfig::ConfigurationManager *manager = stbconfig::qmlConfigManager();
    return manager ? manager->value(QStringLiteral("UI"), QString::fromLatin1(key), QVariant()).toString()
                   : QString();
}

bool isResolution(const QString &name)
{
    if (ThemeReader::scaleOf(name))
        return true;
    qWarning("UI/resolution: expected \"hd\", \"fullhd\" or \"sd\", got \"%s\"", qUtf8Printable(name));
    return false;
}

double textScale(const QString &configuredScale)
{
    if (configuredScale.isEmpty())
        return 1;
    bool isNumber = false;
    const double scale = configuredScale.toDouble(&isNumber);
    if (isNumber && std::isfinite(scale))
        return qBound(smallestTextScale, scale, largestTextScale);
    qWarning("UI/textScale: expected a number, got \"%s\"", qUtf8Printable(configuredScale));
    return 1;
}

// The objects that the properties of \a owner hand out, and their groups.
void keepFromQml(const QObject *owner)
{
    const QMetaObject *meta = owner->metaObject();
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        if (auto *object = meta->property(i).read(owner).value<QObject *>()) {
            QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
            keepFromQml(object);
        }
    }
}

} // namespace

QmlDesignSystem::QmlDesignSystem(QObject *parent)
    : QObject(parent)
{
    readConfiguration();
    loadTheme();
}

QmlDesignSystem::~QmlDesignSystem() = default;

QFont QmlDesignSystem::unscaledFont(int hdFont, int sdFont) const
{
    const QString role = m_resolution == QLatin1String("sd") ? sdRoleName(sdFont) : hdRoleName(hdFont);
    return m_fonts.value(role.isEmpty() ? hdRoleName(FontHd::Body) : role);
}

QFont QmlDesignSystem::scaledFont(int hdFont, int sdFont) const
{
    QFont font = unscaledFont(hdFont, sdFont);
    font.setPixelSize(scaledPixelSize(font.pixelSize(), m_textScale));
    return font;
}

bool QmlDesignSystem::setTheme(const QString &path)
{
    m_theme = path;
    const bool loaded = loadTheme();
    emitChanges();
    return loaded;
}

bool QmlDesignSystem::setResolution(const QString &resolution)
{
    if (!isResolution(resolution))
        return false;
    m_resolution = resolution;
    loadTheme();
    emitChanges();
    return true;
}

void QmlDesignSystem::reload()
{
    readConfiguration();
    loadTheme();
    emitChanges();
}

void QmlDesignSystem::readConfiguration()
{
    m_theme = configured("theme");
    m_resolution = configured("resolution");
    if (m_resolution.isEmpty() || !isResolution(m_resolution))
        m_resolution = QStringLiteral("hd");
    m_textScale = textScale(configured("textScale"));
}

bool QmlDesignSystem::loadTheme()
{
    m_objects.push_back(std::make_unique<Objects>());
    keepFromQml(this);

    ThemeReader reader(m_resolution, m_textScale);
    reader.addFile(QStringLiteral(":/stbui/design/themes/default.json"));
    const bool loaded = m_theme.isEmpty() || reader.addFile(m_theme);
    reader.apply(this);
    colors()->setTokens(reader.tokens());
    m_fonts = reader.fonts();
    return loaded;
}

void QmlDesignSystem::emitChanges()
{
    for (int i = staticMetaObject.propertyOffset(); i < staticMetaObject.propertyCount(); ++i)
        staticMetaObject.property(i).notifySignal().invoke(this, Qt::DirectConnection);
}

} // namespace design_system
