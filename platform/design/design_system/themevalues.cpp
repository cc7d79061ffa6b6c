// SPDX-License-Identifier: MIT
#include "design_system/themevalues.h"

#include <QtCore/qjsonarray.h>
#include <QtCore/qmargins.h>
#include <QtCore/qmetaobject.h>
#include <QtCore/qpoint.h>
#include <QtCore/qrect.h>
#include <QtCore/qsize.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace design_system {

namespace {

constexpr int largestLength = 100000;
constexpr int largestFont = 1000;

std::optional<int> wholeNumber(const QJsonValue &json)
{
    const double number = json.toDouble();
    if (!json.isDouble() || std::trunc(number) != number || std::abs(number) > largestLength)
        return {};
    return int(number);
}

template <qsizetype Count>
std::optional<std::array<int, Count>> wholeNumbers(const QJsonValue &json)
{
    const QJsonArray array = json.toArray();
    if (array.size() != Count)
        return {};
    std::array<int, Count> numbers {};
    for (qsizetype i = 0; i < Count; ++i) {
        const std::optional<int> number = wholeNumber(array[i]);
        if (!number)
            return {};
        numbers[i] = *number;
    }
    return numbers;
}

// What is there stays there: a hairline does not vanish on a smaller screen.
int scaled(int length, double scale)
{
    const int result = qRound(length * scale);
    return result == 0 && length != 0 ? (length > 0 ? 1 : -1) : result;
}

QVariant readLength(const QJsonValue &json, const ValueContext &context)
{
    const std::optional<int> length = wholeNumber(json);
    return length ? QVariant(scaled(*length, context.scale)) : QVariant();
}

QVariant readCount(const QJsonValue &json, const ValueContext &)
{
    const std::optional<int> count = wholeNumber(json);
    return count && *count >= 0 ? QVariant(*count) : QVariant();
}

QVariant readPixelSize(const QJsonValue &json, const ValueContext &context)
{
    const std::optional<int> size = wholeNumber(json);
    if (!size || *size < 1 || *size > largestFont)
        return {};
    return QVariant::fromValue(PixelSize { scaled(*size, context.scale) });
}

// Neighbours stay neighbours: the edges are scaled, not the sizes.
QVariant readRect(const QJsonValue &json, const ValueContext &context)
{
    const auto numbers = wholeNumbers<4>(json);
    if (!numbers || (*numbers)[2] < 0 || (*numbers)[3] < 0)
        return {};
    const auto [x, y, width, height] = *numbers;
    const int left = scaled(x, context.scale);
    const int top = scaled(y, context.scale);
    const int scaledWidth = qMax(scaled(x + width, context.scale) - left, qMin(width, 1));
    const int scaledHeight = qMax(scaled(y + height, context.scale) - top, qMin(height, 1));
    return QRect(left, top, scaledWidth, scaledHeight);
}

QVariant readSize(const QJsonValue &json, const ValueContext &context)
{
    const auto numbers = wholeNumbers<2>(json);
    if (!numbers || (*numbers)[0] < 0 || (*numbers)[1] < 0)
        return {};
    return QSize(scaled((*numbers)[0], context.scale), scaled((*numbers)[1], context.scale));
}

QVariant readPoint(const QJsonValue &json, const ValueContext &context)
{
    const auto numbers = wholeNumbers<2>(json);
    if (!numbers)
        return {};
    return QPoint(scaled((*numbers)[0], context.scale), scaled((*numbers)[1], context.scale));
}

QVariant readMargins(const QJsonValue &json, const ValueContext &context)
{
    const auto numbers = wholeNumbers<4>(json);
    if (!numbers)
        return {};
    const auto [left, top, right, bottom] = *numbers;
    return QVariant::fromValue(QMargins(scaled(left, context.scale), scaled(top, context.scale),
                                        scaled(right, context.scale), scaled(bottom, context.scale)));
}

QVariant readLiteralColor(const QJsonValue &json, const ValueContext &)
{
    const QString text = json.toString();
    const QString hexDigits = QStringLiteral("0123456789abcdefABCDEF");
    const auto isHex = [&hexDigits](QChar c) { return hexDigits.contains(c); };
    const bool hasLength = text.size() == qsizetype(sizeof "#RRGGBB" - 1)
                           || text.size() == qsizetype(sizeof "#AARRGGBB" - 1);
    if (!hasLength || text[0] != u'#' || !std::all_of(text.begin() + 1, text.end(), isHex))
        return {};
    return QColor(text);
}

QVariant readColor(const QJsonValue &json, const ValueContext &context)
{
    const auto token = context.tokens.constFind(json.toString());
    return json.isString() && token != context.tokens.constEnd() ? QVariant(*token)
                                                                 : readLiteralColor(json, context);
}

QVariant readAlignment(const QJsonValue &json, const ValueContext &)
{
    const QByteArray keys = json.toString().toUtf8();
    if (keys.isEmpty()) // which later versions of Qt warn about
        return {};
    bool known = false;
    const int flags = QMetaEnum::fromType<Qt::Alignment>().keysToValue(keys, &known);
    return known ? QVariant::fromValue(Qt::Alignment(flags)) : QVariant();
}

QVariant readWeight(const QJsonValue &json, const ValueContext &)
{
    bool known = false;
    int weight = QMetaEnum::fromType<QFont::Weight>().keyToValue(json.toString().toUtf8(), &known);
    if (!json.isString()) {
        weight = wholeNumber(json).value_or(0);
        known = weight >= 1 && weight <= 1000;
    }
    return known ? QVariant::fromValue(QFont::Weight(weight)) : QVariant();
}

QVariant readFamily(const QJsonValue &json, const ValueContext &)
{
    const QJsonArray names = json.isString() ? QJsonArray { json } : json.toArray();
    const auto isName = [](const QJsonValue &name) { return !name.toString().isEmpty(); };
    if (names.isEmpty() || !std::all_of(names.begin(), names.end(), isName))
        return {};
    return QVariant(names.toVariantList()).toStringList();
}

QVariant readString(const QJsonValue &json, const ValueContext &)
{
    return json.isString() ? QVariant(json.toString()) : QVariant();
}

QVariant readBool(const QJsonValue &json, const ValueContext &)
{
    return json.isBool() ? QVariant(json.toBool()) : QVariant();
}

template <typename T>
constexpr ValueKind kind(const char *expected, QVariant (*read)(const QJsonValue &, const ValueContext &))
{
    return { QMetaType::fromType<T>(), expected, read };
}

} // namespace

const ValueKind *valueKind(QMetaType type)
{
    static const ValueKind kinds[] = {
        kind<int>("a whole number of pixels", readLength),
        kind<QColor>("a colour token, \"#RRGGBB\" or \"#AARRGGBB\"", readColor),
        kind<QRect>("[x, y, width, height] in whole pixels", readRect),
        kind<QSize>("[width, height] in whole pixels", readSize),
        kind<QPoint>("[x, y] in whole pixels", readPoint),
        kind<QMargins>("[left, top, right, bottom] in whole pixels", readMargins),
        kind<Qt::Alignment>("an alignment such as \"AlignHCenter|AlignTop\"", readAlignment),
        kind<QString>("a text", readString),
        kind<bool>("true or false", readBool),
        kind<QStringList>("a font family or an array of them", readFamily),
        kind<QFont::Weight>("a weight such as \"Bold\", or a number from 1 to 1000", readWeight),
        kind<PixelSize>("a whole number of pixels from 1 to 1000", readPixelSize),
    };
    const auto found = std::find_if(std::begin(kinds), std::end(kinds),
                                    [type](const ValueKind &k) { return k.type == type; });
    return found == std::end(kinds) ? nullptr : found;
}

const ValueKind *countKind()
{
    static const ValueKind count = kind<int>("a whole number, 0 or more", readCount);
    return &count;
}

const ValueKind *literalColorKind()
{
    static const ValueKind color = kind<QColor>("\"#RRGGBB\" or \"#AARRGGBB\"", readLiteralColor);
    return &color;
}

FontKeys FontKeys::of(const QFont &font)
{
    return { {},
             font.families(),
             { font.pixelSize() },
             QFont::Weight(font.weight()),
             font.italic(),
             qRound(font.letterSpacing()) };
}

QFont FontKeys::toFont() const
{
    QFont font;
    font.setFamilies(family);
    if (pixelSize.value > 0)
        font.setPixelSize(pixelSize.value);
    font.setWeight(weight);
    font.setItalic(italic);
    if (letterSpacing != 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, letterSpacing);
    return font;
}

} // namespace design_system
