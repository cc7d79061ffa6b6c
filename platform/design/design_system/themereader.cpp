// SPDX-License-Identifier: MIT
#include "design_system/themereader.h"

#include "design_system/fontroles.h"
#include "design_system/themewriter.h"

#include <QtCore/qmetaobject.h>

namespace design_system {

namespace {

constexpr QLatin1String familyKey("family");

QString join(const QString &path, const QString &key)
{
    return path + u'.' + key;
}

bool isRole(const QString &name)
{
    const QByteArray key = name.toUtf8();
    const auto names = [](const QMetaEnum &roles, const QByteArray &role) {
        for (int i = 0; i < roles.keyCount(); ++i) {
            if (role == roles.key(i))
                return true;
        }
        return false;
    };
    return names(QMetaEnum::fromType<FontHd::Role>(), key)
           || (key.startsWith("Sd") && names(QMetaEnum::fromType<FontSd::Role>(), key.mid(2)));
}

} // namespace

QString hdRoleName(int role)
{
    return QString::fromLatin1(QMetaEnum::fromType<FontHd::Role>().valueToKey(role));
}

QString sdRoleName(int role)
{
    const char *name = QMetaEnum::fromType<FontSd::Role>().valueToKey(role);
    return name ? QStringLiteral("Sd") + QString::fromLatin1(name) : QString();
}

ThemeReader::ThemeReader(const QString &resolution, double textScale)
    : m_resolution(resolution)
    , m_scale(scaleOf(resolution).value_or(1))
    , m_textScale(textScale)
{
}

ThemeReader::~ThemeReader() = default;

std::optional<double> ThemeReader::scaleOf(const QString &resolution)
{
    if (resolution == QLatin1String("hd"))
        return 1;
    if (resolution == QLatin1String("fullhd"))
        return 1.5; // 1080 lines for 720
    if (resolution == QLatin1String("sd"))
        return 0.8; // 576 lines for 720
    return {};
}

bool ThemeReader::addFile(const QString &path)
{
    auto file = std::make_unique<ThemeFile>(path);
    if (!file->read(m_resolution))
        return false;
    readTables(file->base(), QString(), m_scale, file->warnings());
    readTables(file->variant(), file->variantPath(), 1, file->warnings());
    m_files.push_back(std::move(file));
    return true;
}

void ThemeReader::apply(QObject *root)
{
    for (const std::unique_ptr<ThemeFile> &file : m_files) {
        ThemeWriter base({ m_tokens, m_fonts, m_scale, m_textScale }, file->warnings());
        base.writeSections(file->base(), QString(), root);
        ThemeWriter variant({ m_tokens, m_fonts, 1, m_textScale }, file->warnings());
        variant.writeSections(file->variant(), file->variantPath(), root);
    }
}

void ThemeReader::readTables(const QJsonObject &part, const QString &path, double scale,
                             ThemeWarnings &warnings)
{
    readColors(part.value(QStringLiteral("colors")), path + QStringLiteral("colors"), warnings);
    readFonts(part.value(QStringLiteral("fonts")), path + QStringLiteral("fonts"), scale, warnings);
}

void ThemeReader::readColors(const QJsonValue &colors, const QString &path, ThemeWarnings &warnings)
{
    if (!colors.isObject() && !colors.isUndefined())
        warnings.add(path, QStringLiteral("an object"), colors);
    const QJsonObject values = colors.toObject();
    for (auto it = values.begin(); it != values.end(); ++it) {
        const QVariant color = literalColorKind()->read(it.value(), { m_tokens, m_fonts });
        if (color.isValid())
            m_tokens.insert(it.key(), color.value<QColor>());
        else
            warnings.add(join(path, it.key()), QString::fromUtf8(literalColorKind()->expected), it.value());
    }
}

void ThemeReader::setFamilies(const QStringList &families)
{
    m_plainFont.setFamilies(families);
    for (QFont &font : m_fonts)
        font.setFamilies(families);
}

void ThemeReader::readFonts(const QJsonValue &fonts, const QString &path, double scale,
                            ThemeWarnings &warnings)
{
    if (!fonts.isObject() && !fonts.isUndefined())
        warnings.add(path, QStringLiteral("an object"), fonts);
    QJsonObject values = fonts.toObject();
    // The common family first, so that a role may have another one.
    const QJsonValue family = values.take(familyKey);
    if (!family.isUndefined()) {
        const ValueKind *kind = valueKind(QMetaType::fromType<QStringList>());
        const QVariant families = kind->read(family, { m_tokens, m_fonts });
        if (families.isValid())
            setFamilies(families.toStringList());
        else
            warnings.add(join(path, familyKey), QString::fromUtf8(kind->expected), family);
    }
    for (auto it = values.begin(); it != values.end(); ++it) {
        if (!isRole(it.key())) {
            warnings.add(join(path, it.key()), QStringLiteral("\"family\" or a role as the key"), it.value());
            continue;
        }
        // The roles of a standard definition screen are in its own pixels.
        const double roleScale = it.key().startsWith(QLatin1String("Sd")) ? 1 : scale;
        ThemeWriter writer({ m_tokens, m_fonts, roleScale, 1 }, warnings);
        m_fonts[it.key()] = writer.font(it.value(), join(path, it.key()),
                                        m_fonts.value(it.key(), m_plainFont));
    }
}

} // namespace design_system
