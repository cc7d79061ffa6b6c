// SPDX-License-Identifier: MIT
#include "screens/componentpages.h"

#include <QtCore/qregularexpression.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

QString quoted(QString text)
{
    text.replace(u'\\', "\\\\"_L1).replace(u'"', "\\\""_L1).replace(u'\n', "\\n"_L1);
    return u'"' + text + u'"';
}

int pixels(qreal length, qreal unit)
{
    return qRound(length * unit);
}

// "<120>" becomes the number of pixels.
QString scaled(const QString &qml, qreal unit)
{
    static const QRegularExpression mark(u"<(\\d+)>"_s);
    QString result;
    qsizetype end = 0;
    for (auto match = mark.globalMatch(qml); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        result += qml.mid(end, found.capturedStart() - end)
                  + QString::number(pixels(found.captured(1).toDouble(), unit));
        end = found.capturedEnd();
    }
    return result + qml.mid(end);
}

// A semicolon ends a binding, and must not come after an object.
QString joined(const QStringList &parts)
{
    QString result = parts.constFirst();
    for (qsizetype i = 1; i < parts.size(); ++i)
        result += (parts.at(i - 1).endsWith(u'}') ? " "_L1 : "; "_L1) + parts.at(i);
    return result;
}

QStringList imports(const QString &module, const QString &body)
{
    const auto has = [&body](QLatin1StringView word) { return body.contains(word); };
    QStringList result;
    if (has("ListView."_L1) || has("GridView."_L1) || has("TextInput."_L1) || has("Column "_L1))
        result.append(u"QtQuick"_s);
    if (has("QmlDesignSystem."_L1))
        result.append(u"Stbui.UI.Qml.Design"_s);
    if (module == "Basic"_L1 || has("StandardButton"_L1))
        result.append(u"Stbui.UI.Qml.Controls.Basic"_s);
    if (module == "Generic"_L1)
        result.append(u"Stbui.UI.Qml.Controls.Generic"_s);
    return result;
}

QString withImports(const QString &module, const QString &body)
{
    return "import "_L1 + imports(module, body).join("; import "_L1) + "; "_L1 + body;
}

} // namespace

QList<QVariant> ComponentEditor::values() const
{
    if (kind == Kind::Flag)
        return { false, true };
    QList<QVariant> result;
    if (kind == Kind::Number) {
        // Counted, and rounded, so that the sum of many steps is the number that is meant.
        const int count = int(std::floor((to - from) / step + 0.001));
        for (int i = 0; i <= count; ++i)
            result.append(std::round((from + i * step) * 1e6) / 1e6);
        return result;
    }
    for (const ComponentChoice &choice : choices)
        result.append(choice.value);
    return result;
}

QVariant ComponentEditor::neighbour(const QVariant &value, int direction) const
{
    const QList<QVariant> all = values();
    const auto place = all.indexOf(value);
    if (place >= 0)
        return all.at(std::clamp<qsizetype>(place + direction, 0, all.size() - 1));
    if (kind != Kind::Number)
        return all.constFirst();
    const auto above = std::find_if(all.cbegin(), all.cend(), [&value](const QVariant &other) {
        return other.toDouble() > value.toDouble();
    });
    if (direction > 0)
        return above == all.cend() ? all.constLast() : *above;
    return above == all.cbegin() ? all.constFirst() : *(above - 1);
}

QVariant ComponentEditor::next(const QVariant &value) const
{
    if (kind == Kind::Number) {
        const bool reachable = defaultValue.isValid() && defaultValue.toDouble() >= from;
        return reachable ? defaultValue : start;
    }
    const QList<QVariant> all = values();
    return all.at((all.indexOf(value) + 1) % all.size());
}

bool ComponentEditor::isSet(const QVariant &value) const
{
    return value.isValid() && value != defaultValue;
}

QString ComponentEditor::qml(const QVariant &value, qreal unit) const
{
    for (const ComponentChoice &choice : choices) {
        if (choice.value == value)
            return choice.qml;
    }
    switch (kind) {
    case Kind::Flag:
        return value.toBool() ? u"true"_s : u"false"_s;
    case Kind::Number:
        return QString::number(written(value, unit).toDouble());
    default:
        return quoted(value.toString());
    }
}

QVariant ComponentEditor::written(const QVariant &value, qreal unit) const
{
    return isLength ? QVariant(double(pixels(value.toDouble(), unit))) : value;
}

QString ComponentPage::qml(const QList<QVariant> &values, qreal unit) const
{
    return withImports(module, body(settings, values, unit));
}

QString ComponentPage::wholeQml(const QList<QVariant> &values, qreal unit) const
{
    if (surroundings.isEmpty())
        return qml(values, unit);
    const QString control = body(settings + QStringList(surroundingsSetting), values, unit);
    return withImports(module, scaled(surroundings, unit).arg(control));
}

QString ComponentPage::body(const QStringList &allSettings, const QList<QVariant> &values, qreal unit) const
{
    QStringList parts;
    for (const QString &setting : allSettings)
        parts.append(scaled(setting, unit));
    for (qsizetype i = 0; i < editors.size(); ++i) {
        const ComponentEditor &editor = editors.at(i);
        if (editor.isSet(values.at(i)))
            parts.append(editor.name + ": "_L1 + editor.qml(values.at(i), unit));
    }
    return name + (parts.isEmpty() ? u" {}"_s : " { "_L1 + joined(parts) + " }"_L1);
}

QList<QVariant> ComponentPage::valuesOfNew(const QList<QVariant> &values) const
{
    QList<QVariant> result = values;
    for (qsizetype i = 0; i < editors.size(); ++i) {
        if (editors.at(i).isLate)
            result[i] = editors.at(i).start;
    }
    return result;
}

QList<QVariant> ComponentPage::startValues() const
{
    QList<QVariant> result;
    for (const ComponentEditor &editor : editors)
        result.append(editor.start);
    return result;
}

} // namespace gallery
