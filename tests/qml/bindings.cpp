// SPDX-License-Identifier: MIT
#include "bindings.h"

#include <design_system/qmldesignsystem.h>

#include <QtCore/qdebug.h>
#include <QtCore/qhash.h>
#include <QtCore/qnamespace.h>

namespace {

using Bindings = std::vector<Binding>;

// What is wrong with the value of one property; null when nothing is.
QString difference(const Binding &binding, const QVariant &actual, QVariant expected)
{
    const QLatin1String name(binding.property);
    if (!actual.isValid() || !expected.isValid())
        return name + QStringLiteral(": there is no %1 value").arg(actual.isValid() ? "expected" : "such");
    if (!expected.convert(actual.metaType()))
        return name + QStringLiteral(" is a ") + QLatin1String(actual.typeName());
    if (actual == expected)
        return {};
    return QStringLiteral("%1: %2 instead of %3")
            .arg(name, QDebug::toString(actual), QDebug::toString(expected));
}

Bindings busyIndicator()
{
    const QByteArray name("BusyIndicator");
    return {
        { name, "animationInterval", literal(17) },
        { name, "headerFont", fromDesign("busyIndicatorStyle.header.font") },
        { name, "headerColor", fromDesign("busyIndicatorStyle.header.color") },
        { name, "headerLeftMargin", fromDesign("busyIndicatorStyle.header.marginLeft") },
        { name, "headerRightMargin", fromDesign("busyIndicatorStyle.header.marginRight") },
        { name, "descriptionFont", fromDesign("busyIndicatorStyle.description.font") },
        { name, "descriptionColor", fromDesign("busyIndicatorStyle.description.color") },
        { name, "descriptionLeftMargin", fromDesign("busyIndicatorStyle.description.marginLeft") },
        { name, "descriptionRightMargin", fromDesign("busyIndicatorStyle.description.marginRight") },
        { name, "throbberWidth", fromDesign("busyIndicatorStyle.width") },
        { name, "throbberHeight", fromDesign("busyIndicatorStyle.height") },
        { name, "throbberPenWidth", fromDesign("busyIndicatorStyle.penWidth") },
    };
}

Bindings checkBoxes()
{
    Bindings bindings {
        { "CheckBox", "roundingRadius", roundedBy("roundingRadius") },
        { "CheckBox", "iconPath", fromStyle("icon.path") },
        { "CheckBox", "forceRounding", literal(false) },
        { "RadioButton", "roundingRadius",
          [](const Sources &sources) {
              return designValue(sources.design, "standardCheckBoxStyle.icon.width").toInt() / 2.0;
          } },
        { "RadioButton", "iconPath", literal(QStringLiteral("qrc:/resources/icons/radio_button_mark.png")) },
        { "RadioButton", "forceRounding", literal(true) }
    };
    for (const char *name : { "CheckBox", "RadioButton" }) {
        bindings.insert(bindings.end(), {
                                                { name, "indicatorSize", fromStyle("icon.size") },
                                                { name, "indicatorColors", fromStyle("indicatorColors()") },
                                                { name, "iconColors", fromStyle("iconColors()") },
                                                { name, "titleFont", fromStyle("title.font") },
                                                { name, "titleColors", fromStyle("titleColors()") },
                                                { name, "spacing", fromStyle("spacing") },
                                        });
    }
    return bindings;
}

Bindings lineEdit()
{
    const QByteArray name("LineEdit");
    return {
        { name, "roundingRadius", roundedBy("roundingRadius") },
        { name, "backgroundColors", fromStyle("backgroundColors()") },
        { name, "textColors", fromStyle("textColors()") },
        { name, "placeholderTextColors", fromStyle("placeholderTextColors()") },
        { name, "errorFrameWidth", fromStyle("errorFrameWidth") },
        { name, "errorFrameColor", fromStyle("errorFrameColor") },
        { name, "font", fromStyle("font") },
        { name, "leftPadding", fromStyle("marginLeft") },
        { name, "topPadding", fromStyle("marginTop") },
        { name, "rightPadding", fromStyle("marginRight") },
        { name, "bottomPadding", fromStyle("marginBottom") },
        { name, "cursorWidth", fromStyle("cursorWidth") },
    };
}

Bindings mainMenuButton()
{
    const QByteArray name("MainMenuButton");
    const auto textColors = colorsOf({ "normalTextColor", "checkedTextColor", "focusedTextColor" });
    return {
        { name, "baseHeight", fromStyle("backgroundCheckedHeight") },
        { name, "animateBackgroundColors", literal(false) },
        { name, "animateTextColors", literal(false) },
        { name, "backgroundColorsAnimationDuration", fromDesign("animation.duration") },
        { name, "textColorsAnimationDuration", fromDesign("animation.duration") },
        { name, "backgroundColors",
          colorsOf({ "normalBackgroundColor", "checkedBackgroundColor", "focusedBackgroundColor" }) },
        { name, "textFont", fromStyle("text.font") },
        { name, "textColors", textColors },
        { name, "leftIconColors", textColors },
        { name, "leftIconSize", sizeOf("decorationGeometry") },
        { name, "rightIconSize", sizeOf("decorationGeometry") },
        { name, "rightIconRoundingRadius",
          [](const Sources &sources) {
              return designValue(sources.style, "decorationGeometry.width").toInt() / 2.0;
          } },
        { name, "leftPadding", fromStyle("leftPadding") },
        { name, "rightPadding", fromStyle("rightPadding") },
        { name, "topPadding", fromStyle("topPadding") },
        { name, "bottomPadding", fromStyle("bottomPadding") },
    };
}

Bindings tabButton()
{
    const QByteArray name("TabButton");
    return {
        { name, "animateBackgroundColors", literal(false) },
        { name, "animateTextColors", literal(false) },
        { name, "backgroundColor", fromStyle("backgroundNormalColor") },
        { name, "backgroundFocusedColor", fromStyle("backgroundFocusedColor") },
        { name, "backgroundSelectedColor", fromStyle("backgroundSelectedColor") },
        { name, "textColor", fromStyle("textNormalColor") },
        { name, "textFocusedColor", fromStyle("textFocusedColor") },
        { name, "textSelectedColor", fromStyle("textSelectedColor") },
        { name, "topPadding", fromStyle("marginTop") },
        { name, "bottomPadding", fromStyle("marginBottom") },
        { name, "leftPadding", fromStyle("marginLeft") },
        { name, "rightPadding", fromStyle("marginRight") },
        { name, "roundingRadius", roundedBy("roundingRadius") },
        { name, "minimumWidth", fromStyle("minSize.width") },
        { name, "minimumHeight", fromStyle("minSize.height") },
        { name, "font", fromStyle("font") },
    };
}

// A font by its role, which depends on the resolution.
auto fontOf(design_system::FontHd::Role role, design_system::FontSd::Role sdRole)
{
    return [role, sdRole](const Sources &sources) {
        const auto *design = qobject_cast<design_system::QmlDesignSystem *>(sources.design);
        return QVariant(design->unscaledFont(role, sdRole));
    };
}

Bindings keyboard()
{
    using namespace design_system;
    const QByteArray name("Keyboard");
    const auto icon = [](const char *file) {
        return literal(QStringLiteral("qrc:/resources/icons/keyboard/%1.png").arg(QLatin1String(file)));
    };
    return {
        { name, "keyRoundingRadius", roundedBy("keyRoundingRadius") },
        { name, "keyBackgroundColor", fromDesign("colors.bogota") },
        { name, "keyTextColor", fromDesign("colors.sochi") },
        { name, "symbolKeysFont", fontOf(FontHd::Subhead, FontSd::H4) },
        { name, "controlKeysFont", fontOf(FontHd::Caption1, FontSd::H5) },
        { name, "domainKeysFont", fontOf(FontHd::Caption2, FontSd::H6) },
        { name, "backspaceIconPath", icon("delete") },
        { name, "leftIconPath", icon("left") },
        { name, "rightIconPath", icon("right") },
        { name, "capslockEnabledIconPath", icon("capslock_enabled") },
        { name, "capslockDisabledIconPath", icon("capslock_disabled") },
        { name, "rowSpacing", fromStyle("keySpacing") },
        { name, "columnSpacing", fromStyle("keySpacing") },
        { name, "keyHeight", fromStyle("keyHeight") },
        { name, "keyWidth", fromStyle("keyWidth") },
    };
}

Bindings views()
{
    const QByteArray grid("MediaGridView");
    const QByteArray list("MediaListView");
    return {
        { grid, "objectName", literal(QStringLiteral("contentView")) },
        { grid, "horizontalSpacing", fromDesign("layouts.viewHorizontalSpacing") },
        { grid, "verticalSpacing", fromDesign("layouts.viewVerticalSpacing") },
        { grid, "highlightMoveDuration", fromDesign("animation.duration") }, // whatever the switches say
        { grid, "leftMargin", fromDesign("layouts.viewLeftMargin") },
        { grid, "rightMargin", fromDesign("layouts.viewRightMargin") },
        { list, "mediaBlockInfo", literal(QVariant::fromValue<QObject *>(nullptr)) },
        { list, "objectName", literal(QStringLiteral("contentView")) },
        { list, "orientation", literal(int(Qt::Horizontal)) },
        { list, "spacing", fromDesign("layouts.viewHorizontalSpacing") },
        { list, "highlightMoveDuration",
          [](const Sources &sources) {
              return sources.layoutScrolling ? designValue(sources.design, "animation.duration")
                                             : QVariant(0);
          } },
        { list, "leftMargin", fromDesign("layouts.viewLeftMargin") },
        { list, "rightMargin", fromDesign("layouts.viewRightMargin") },
        { "MediaBlock", "implicitWidth", fromDesign("layouts.screenWidth") },
        { "ScrollBar", "backgroundColor", fromDesign("colors.bamako") },
        { "ScrollBar", "sliderColor", fromDesign("colors.sochi50") },
    };
}

Bindings smallOnes()
{
    return {
        { "CircleProgressBar", "barWidth", literal(10) },
        { "CircleProgressBar", "barBackgroundColor", fromDesign("colors.sochi20") },
        { "CircleProgressBar", "barColor", fromDesign("colors.berlin") },
        { "MainMenuEffect", "leftGradientWidth", fromDesign("mainMenu.shadowWidth") },
        { "MainMenuEffect", "rightGradientWidth", fromDesign("mainMenu.shadowWidth") },
        { "PrimaryButton", "style", fromDesign("primaryButtonStyle") },
        { "StandardButton", "style", fromDesign("standardButtonStyle") },
        { "PlayerButton", "style", fromDesign("playerButtonStyle") },
        { "PlayerButton", "isFixedWidth", literal(false) },
    };
}

} // namespace

std::vector<Binding> allBindings()
{
    Bindings all;
    for (const Bindings &some : { busyIndicator(), checkBoxes(), keyboard(), lineEdit(), mainMenuButton(),
                                  tabButton(), views(), smallOnes() })
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

QByteArray styleOf(const QByteArray &component)
{
    static const QHash<QByteArray, QByteArray> styles {
        { "CheckBox", "standardCheckBoxStyle" },
        { "RadioButton", "standardCheckBoxStyle" },
        { "Keyboard", "keyboardStyle" },
        { "LineEdit", "lineEditStyle" },
        { "MainMenuButton", "mainMenuButtonQmlStyle" },
        { "TabButton", "tabButtonStyle" },
    };
    return styles.value(component);
}

Sources sourcesOf(QObject *design, const QByteArray &component)
{
    const QByteArray style = styleOf(component);
    return { design, style.isEmpty() ? nullptr : design->property(style.constData()).value<QObject *>() };
}

QByteArrayList componentNames(bool withStyleOnly)
{
    QByteArrayList names;
    for (const Binding &binding : allBindings()) {
        if (!names.contains(binding.component) && (!withStyleOnly || !styleOf(binding.component).isEmpty()))
            names += binding.component;
    }
    return names;
}

QStringList differences(const QObject *item, const QByteArray &component, const Sources &sources,
                        const QByteArrayList &except)
{
    QStringList found;
    for (const Binding &binding : allBindings()) {
        if (binding.component == component && !except.contains(binding.property))
            found += difference(binding, item->property(binding.property.constData()), binding.value(sources));
    }
    found.removeAll(QString());
    return found;
}
