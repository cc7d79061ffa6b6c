// SPDX-License-Identifier: MIT
#include "forms/styles.h"

#include <design_system/buttonstyle.h>

namespace stbbench {
namespace {

const QColor dark(0x10, 0x18, 0x20);

// The forms in qml/ repeat these numbers.
design_system::QmlButtonStyle buttonStyle()
{
    const QColor disabledInk(0x80, 0x90, 0xa0);
    const QColor checkedInk(0x5c, 0xc2, 0xf2);
    design_system::QmlButtonStyle style;
    style.size = QRect(0, 0, 280, 60);
    style.iconSpacing = 12;
    style.backgroundColors = { QColor(0x26, 0x34, 0x45), QColor(0x1c, 0x38, 0x50), QColor(0x18, 0x22, 0x2e),
                               QColor(0xf0, 0xf4, 0xf8) };
    style.leftIconColors = { Qt::white, Qt::white, Qt::white, dark };
    style.textMarginLeft = 12;
    style.textMarginRight = 12;
    style.titleSubtitleSpacing = 2;
    style.titleStyle = textStyle(220, 22, 1, Qt::white);
    style.titleStyle.colors = { Qt::white, checkedInk, disabledInk, dark };
    style.subtitleStyle = textStyle(220, 16, 1, Qt::white);
    style.subtitleStyle.colors = style.titleStyle.colors;
    style.checkIndicatorSize = QRect(0, 0, 32, 4);
    style.checkIndicatorColor = QColor(0xff, 0xd0, 0x60);
    style.checkIndicatorLeft = 24;
    style.checkIndicatorBottomMargin = 6;
    return style;
}

QString title(int index)
{
    return QStringLiteral("Watch part %1").arg(index % textNumbers);
}

QString subtitle(int index)
{
    return QStringLiteral("from minute %1 on").arg(index % textNumbers);
}

QVariantMap content(int index)
{
    return { { QStringLiteral("titleText"), title(index) },
             { QStringLiteral("subtitleText"), subtitle(index) } };
}

QList<Change> changes(int first)
{
    using Kind = Change::Kind;
    QList<Change> list {
        { QStringLiteral("update() alone"), {}, Kind::Update },
        change("same title again", "titleText", title(first)),
        change("title changed", "titleText", title(first + 1)),
        change("subtitle changed", "subtitleText", subtitle(first + 1)),
        change("focused", "focused", true),
        change("not focused", "focused", false),
        change("checked", "checked", true),
        change("not checked", "checked", false),
        change("disabled", "enabled", false),
        change("enabled", "enabled", true),
        change("throbber shown", "throbberVisible", true),
        { QStringLiteral("throbber turned"), {}, Kind::Arrival },
        change("throbber hidden", "throbberVisible", false),
    };
    for (Change &one : list) {
        if (one.name == QLatin1String("throbber shown") || one.kind == Kind::Arrival)
            one.comparable = false; // an arc here, a ring and dots there
    }
    return list;
}

Subject subject(const char *key, const char *element, const char *composed)
{
    const auto style = styleObject<design_system::ButtonQmlStyle>(buttonStyle());
    Subject subject;
    subject.key = QString::fromLatin1(key);
    subject.style = style;
    subject.content = content;
    subject.forms = { moduleForm(element, style), plainForm(composed), controlsForm(composed) };
    subject.forms.first().constants.insert(QStringLiteral("leftIconSource"),
                                           QStringLiteral(":/forms/pictures/icon_light.png"));
    subject.changes = changes;
    return subject;
}

} // namespace

Subject button()
{
    return subject("button", "Button {}", "Button");
}

Subject buttonWithCheckIndicator()
{
    return subject("buttonWithCheckIndicator", "ButtonWithCheckIndicator {}", "CheckButton");
}

} // namespace stbbench
