// SPDX-License-Identifier: MIT
#include "screens/componenteditors.h"

using namespace Qt::StringLiterals;

namespace gallery::editors {

using Kind = ComponentEditor::Kind;

ComponentEditor flag(const QString &name, bool defaultValue)
{
    return { .name = name, .kind = Kind::Flag, .defaultValue = defaultValue, .start = defaultValue };
}

ComponentEditor number(const QString &name, double defaultValue, double from, double to, double step)
{
    return { .name = name,
             .kind = Kind::Number,
             .defaultValue = defaultValue,
             .start = defaultValue,
             .from = from,
             .to = to,
             .step = step };
}

ComponentEditor length(const QString &name, double start, double from, double to, double step)
{
    ComponentEditor editor = number(name, 0, from, to, step);
    editor.isLength = true;
    editor.start = start;
    return editor;
}

ComponentEditor texts(const QString &name, const QString &start, const QStringList &others)
{
    ComponentEditor editor { .name = name, .kind = Kind::Text, .defaultValue = QString(), .start = start };
    QStringList all { QString(), start };
    all += others;
    all.removeDuplicates();
    for (const QString &text : std::as_const(all))
        editor.choices.append({ .qml = u'"' + text + u'"', .value = text });
    return editor;
}

ComponentEditor text(const QString &name, const QString &start)
{
    return texts(name, start,
                 { u"Rivers"_s, u"The Nature of Rivers: from a Spring in the Mountains to the Wide Delta"_s,
                   u"طبيعة الأنهار"_s });
}

ComponentEditor choice(const QString &name, const QVariant &defaultValue,
                       const QList<ComponentChoice> &choices)
{
    return { .name = name,
             .kind = Kind::Choice,
             .defaultValue = defaultValue,
             .start = defaultValue,
             .choices = choices };
}

ComponentEditor color(const QString &name, const QString &start)
{
    ComponentEditor editor { .name = name, .kind = Kind::Color, .choices = { {} } };
    for (const auto *token : { "sochi", "berlin", "lima", "dakar", "bogota", "oslo" }) {
        const QString qml = "QmlDesignSystem.colors."_L1 + QLatin1StringView(token);
        editor.choices.append({ .qml = qml, .value = qml });
        if (start == QLatin1StringView(token))
            editor.start = qml;
    }
    return editor;
}

ComponentEditor picture(const QString &name, const QString &start, const QString &other)
{
    const QString folder = u"qrc:/resources/pictures/"_s;
    return texts(name, folder + start, { folder + other });
}

ComponentEditor icon(const QString &name, const QString &start)
{
    return texts(name, start.isEmpty() ? QString() : ":/resources/icons/"_L1 + start,
                 { u":/resources/icons/favorite_small.png"_s, u":/resources/icons/reminder_small.png"_s });
}

ComponentEditor byStyle(ComponentEditor editor)
{
    editor.defaultValue = {};
    return editor;
}

ComponentEditor begun(ComponentEditor editor, const QVariant &start)
{
    editor.start = start;
    return editor;
}

ComponentEditor fedBack(ComponentEditor editor)
{
    editor.isFedBack = true;
    editor.isWritten = true;
    return editor;
}

ComponentEditor written(ComponentEditor editor)
{
    editor.isWritten = true;
    return editor;
}

ComponentEditor late(ComponentEditor editor)
{
    editor.isWritten = true;
    editor.isLate = true;
    return editor;
}

ComponentEditor state(const QStringList &names)
{
    QList<ComponentChoice> choices { { .qml = u"\"\""_s, .value = QString() } };
    for (const QString &name : names)
        choices.append({ .qml = u'"' + name + u'"', .value = name });
    return choice(u"state"_s, QString(), choices);
}

ComponentEditor share(const QString &name, double start)
{
    return begun(number(name, 0, 0, 1, 0.05), start);
}

QString styleLine(const QString &name)
{
    return "style: QmlDesignSystem."_L1 + name;
}

} // namespace gallery::editors
