// SPDX-License-Identifier: MIT
#include "screens/componentpages.h"

#include "screens/componenteditors.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

using namespace editors;
using Editors = QList<ComponentEditor>;

// --- what pages have in common --------------------------------------------------------------------------

Editors buttonEditors(const QString &title, bool fixedWidth = true)
{
    return { text(u"titleText"_s, title), text(u"subtitleText"_s),
             // A button of fixed width has its icon right at the edge, where it looks out of place.
             icon(u"leftIconSource"_s, fixedWidth ? QString() : u"favorite_small.png"_s),
             icon(u"rightIconSource"_s), flag(u"focused"_s), flag(u"checked"_s), flag(u"enabled"_s, true),
             flag(u"throbberVisible"_s), flag(u"isFixedWidth"_s, fixedWidth),
             number(u"leftPadding"_s, 0, 0, 60, 4), number(u"rightPadding"_s, 0, 0, 60, 4),
             flag(u"forceTitleColor"_s), color(u"titleForcedColor"_s) };
}

Editors checkBoxEditors(const QString &title)
{
    return { fedBack(flag(u"checked"_s)), text(u"text"_s, title), flag(u"enabled"_s, true),
             number(u"focusFrameWidth"_s, 3, 0, 8, 1) };
}

Editors fadeEditors()
{
    return { written(number(u"leftGradientOpacity"_s, 1, 0, 1, 0.25)),
             written(number(u"rightGradientOpacity"_s, 1, 0, 1, 0.25)), color(u"color"_s, u"oslo"_s) };
}

// Numbered buttons stand for whatever a view shows.
QString delegate(const QString &view)
{
    return u"delegate: StandardButton { required property int index; width: <120>; titleText: index + 1; "_s
           + u"focused: %1.isCurrentItem && %1.view.activeFocus }"_s.arg(view);
}

Editors viewEditors()
{
    return { fedBack(number(u"currentIndex"_s, 0, 0, 23, 1)), flag(u"keyNavigationWraps"_s),
             flag(u"reuseItems"_s, true), flag(u"interactive"_s, true),
             choice(u"layoutDirection"_s, int(Qt::LeftToRight),
                    { { .qml = u"Qt.LeftToRight"_s, .value = int(Qt::LeftToRight) },
                      { .qml = u"Qt.RightToLeft"_s, .value = int(Qt::RightToLeft) } }) };
}

QStringList gridSettings(const QStringList &more)
{
    // Whole rows, however high they are.
    return QStringList { u"width: <640>"_s,
                         u"height: topMargin + 3 * itemHeight + 2 * verticalSpacing + bottomMargin"_s,
                         u"clip: true"_s, u"model: 24"_s }
           + more + QStringList { delegate(u"GridView"_s) };
}

QStringList listSettings()
{
    return { u"width: <640>"_s, u"clip: true"_s, u"model: 24"_s, delegate(u"ListView"_s) };
}

ComponentEditor orientation(bool horizontalByDefault)
{
    return choice(u"orientation"_s, int(horizontalByDefault ? Qt::Horizontal : Qt::Vertical),
                  { { .qml = u"ListView.Horizontal"_s, .value = int(Qt::Horizontal) },
                    { .qml = u"ListView.Vertical"_s, .value = int(Qt::Vertical) } });
}

// --- pages ----------------------------------------------------------------------------------------------

ComponentPage buttonPage(const QString &name, const QString &title, const QString &styleName = {},
                         bool fixedWidth = true)
{
    return { .name = name,
             .module = u"Basic"_s,
             .settings = styleName.isEmpty() ? QStringList() : QStringList(styleLine(styleName)),
             .editors = buttonEditors(title, fixedWidth) };
}

// Its mark is what it has beside a button.
ComponentPage checkIndicatorPage()
{
    ComponentPage page = buttonPage(u"ButtonWithCheckIndicator"_s, u"Live"_s, u"playerButtonStyle"_s);
    for (ComponentEditor &editor : page.editors) {
        if (editor.name == "checked"_L1)
            editor.start = true;
    }
    return page;
}

ComponentPage busyIndicatorPage()
{
    return { .name = u"BusyIndicator"_s,
             .module = u"Basic"_s,
             .settings = { u"width: <560>"_s },
             .editors = { written(flag(u"running"_s, true)), text(u"header"_s, u"Loading"_s),
                          text(u"description"_s, u"Please wait a moment"_s),
                          number(u"spacing"_s, 16, 0, 48, 4), color(u"throbberColor"_s),
                          color(u"headerColor"_s), color(u"descriptionColor"_s) } };
}

ComponentPage checkBoxPage()
{
    return { .name = u"CheckBox"_s,
             .module = u"Basic"_s,
             .editors = checkBoxEditors(u"Subtitles"_s) + Editors { flag(u"forceRounding"_s) },
             .takesKeys = true };
}

ComponentPage circleProgressBarPage()
{
    return { .name = u"CircleProgressBar"_s,
             .module = u"Basic"_s,
             .editors = { share(u"value"_s, 0.35), number(u"from"_s, 0, -1, 0.5, 0.25),
                          number(u"to"_s, 1, 0.75, 2, 0.25), number(u"barWidth"_s, 10, 2, 30, 2),
                          number(u"width"_s, 96, 48, 240, 16), number(u"height"_s, 96, 48, 240, 16),
                          color(u"barColor"_s), color(u"barBackgroundColor"_s) } };
}

ComponentPage keyboardPage()
{
    QList<ComponentChoice> languages { {} };
    for (const QString &code : { u"en"_s, u"ru"_s, u"de"_s, u"ar"_s })
        languages.append({ .qml = u'"' + code + u'"', .value = code });
    return { .name = u"Keyboard"_s,
             .module = u"Basic"_s,
             .editors = { choice(u"language"_s, {}, languages), fedBack(flag(u"shift"_s)),
                          fedBack(flag(u"capsLock"_s)), fedBack(flag(u"symbols"_s)),
                          flag(u"wrapsHorizontally"_s, true), flag(u"wrapsVertically"_s, true),
                          fedBack(number(u"currentKey"_s, 12, 0, 55, 1)) },
             .takesKeys = true,
             .types = true,
             .surroundings = u"Column { LineEdit { id: line; width: <480> } %1 }"_s,
             .surroundingsSetting = u"target: line"_s };
}

ComponentPage lineEditPage()
{
    return { .name = u"LineEdit"_s,
             .module = u"Basic"_s,
             .settings = { u"width: <480>"_s },
             .editors = { fedBack(text(u"text"_s)), text(u"placeholderText"_s, u"Search"_s),
                          choice(u"echoMode"_s, 0,
                                 { { .qml = u"TextInput.Normal"_s, .value = 0 },
                                   { .qml = u"TextInput.NoEcho"_s, .value = 1 },
                                   { .qml = u"TextInput.Password"_s, .value = 2 },
                                   { .qml = u"TextInput.PasswordEchoOnEdit"_s, .value = 3 } }),
                          choice(u"maximumLength"_s, 32767,
                                 { { .qml = u"32767"_s, .value = 32767 },
                                   { .qml = u"20"_s, .value = 20 },
                                   { .qml = u"8"_s, .value = 8 } }),
                          flag(u"error"_s), flag(u"editing"_s), flag(u"readOnly"_s),
                          flag(u"enabled"_s, true) },
             .takesKeys = true };
}

ComponentPage mainMenuButtonPage()
{
    return { .name = u"MainMenuButton"_s,
             .module = u"Basic"_s,
             .editors = { begun(state({ u"normal"_s, u"checked"_s, u"focused"_s }), u"focused"_s),
                          text(u"text"_s, u"Films"_s), icon(u"leftIconPath"_s, u"favorite_small.png"_s),
                          picture(u"rightIconPath"_s, u"balloon.jpg"_s, u"kite.jpg"_s),
                          number(u"spacing"_s, 12, 0, 48, 4), flag(u"enabled"_s, true) },
             .takesKeys = true };
}

ComponentPage mainMenuEffectPage()
{
    return { .name = u"MainMenuEffect"_s,
             .module = u"Basic"_s,
             .settings = { u"width: <560>"_s, u"height: <120>"_s },
             .editors = fadeEditors(),
             .liesOver = true };
}

ComponentPage mediaBlockPage()
{
    return { .name = u"MediaBlock"_s,
             .module = u"Basic"_s,
             .settings = { u"titleFont: QmlDesignSystem.unscaledFont(FontHd.H4, FontSd.H4)"_s,
                           u"MediaListView { width: parent.width; height: <64>; clip: true; model: 24; "_s
                                   + delegate(u"ListView"_s) + u" }"_s },
             .editors = { byStyle(length(u"width"_s, 640, 240, 840, 40)),
                          text(u"title"_s, u"Continue watching"_s), color(u"titleColor"_s, u"sochi"_s),
                          color(u"focusedTitleColor"_s), number(u"titleSpacing"_s, 12, 0, 48, 4),
                          length(u"leftMargin"_s, 64, 0, 96, 16), length(u"rightMargin"_s, 0, 0, 96, 16) },
             .takesKeys = true };
}

ComponentPage mediaGridViewPage()
{
    return { .name = u"MediaGridView"_s,
             .module = u"Basic"_s,
             .settings = gridSettings({ u"itemWidth: <120>"_s, u"itemHeight: <64>"_s }),
             .editors = viewEditors()
                        + Editors { length(u"topMargin"_s, 0, 0, 48, 8),
                                    length(u"bottomMargin"_s, 0, 0, 48, 8) },
             .takesKeys = true };
}

ComponentPage mediaListViewPage()
{
    return { .name = u"MediaListView"_s,
             .module = u"Basic"_s,
             .settings = listSettings(),
             .editors = Editors { length(u"height"_s, 64, 64, 240, 16), orientation(true) } + viewEditors(),
             .takesKeys = true };
}

ComponentPage radioButtonPage()
{
    return { .name = u"RadioButton"_s,
             .module = u"Basic"_s,
             .editors = checkBoxEditors(u"1920 x 1080"_s) + Editors { flag(u"autoExclusive"_s, true) },
             .takesKeys = true };
}

ComponentPage scrollBarPage()
{
    return { .name = u"ScrollBar"_s,
             .module = u"Basic"_s,
             .editors = { begun(number(u"size"_s, 0, 0, 0.8, 0.05), 0.3),
                          begun(number(u"position"_s, 0, 0, 0.7, 0.05), 0.2),
                          choice(u"orientation"_s, int(Qt::Vertical),
                                 { { .qml = u"Qt.Vertical"_s, .value = int(Qt::Vertical) },
                                   { .qml = u"Qt.Horizontal"_s, .value = int(Qt::Horizontal) } }),
                          byStyle(begun(number(u"height"_s, 0, 20, 230, 15), 230.0)),
                          choice(u"width"_s, {},
                                 { {},
                                   { .qml = u"12"_s, .value = 12 },
                                   { .qml = u"24"_s, .value = 24 },
                                   { .qml = u"230"_s, .value = 230 } }),
                          choice(u"policy"_s, 0,
                                 { { .qml = u"ScrollBar.AsNeeded"_s, .value = 0 },
                                   { .qml = u"ScrollBar.AlwaysOff"_s, .value = 1 },
                                   { .qml = u"ScrollBar.AlwaysOn"_s, .value = 2 } }),
                          number(u"thickness"_s, 6, 2, 24, 2), number(u"roundingRadius"_s, 0, 0, 12, 1),
                          color(u"sliderColor"_s), color(u"backgroundColor"_s) } };
}

ComponentPage tabButtonPage()
{
    return { .name = u"TabButton"_s,
             .module = u"Basic"_s,
             .editors = { begun(fedBack(flag(u"checked"_s)), true), text(u"text"_s, u"Films"_s),
                          icon(u"iconPath"_s), number(u"spacing"_s, 12, 0, 48, 4), flag(u"enabled"_s, true),
                          color(u"backgroundColor"_s), color(u"textColor"_s) },
             .takesKeys = true };
}

ComponentPage horizontalFadeEffectPage()
{
    return { .name = u"HorizontalFadeEffect"_s,
             .module = u"Generic"_s,
             .settings = { u"width: <560>"_s, u"height: <120>"_s },
             .editors = Editors { begun(number(u"leftGradientWidth"_s, 0, 0, 200, 20), 100.0),
                                  begun(number(u"rightGradientWidth"_s, 0, 0, 200, 20), 100.0) }
                        + fadeEditors(),
             .liesOver = true };
}

ComponentPage scrolledGridViewPage()
{
    return {
        .name = u"ScrolledGridView"_s,
        .module = u"Generic"_s,
        .settings = gridSettings({}),
        .editors = viewEditors()
                   + Editors { byStyle(length(u"itemWidth"_s, 120, 100, 240, 20)),
                               byStyle(length(u"itemHeight"_s, 64, 64, 144, 16)),
                               length(u"horizontalSpacing"_s, 8, 0, 48, 8),
                               length(u"verticalSpacing"_s, 8, 0, 48, 8),
                               length(u"leftMargin"_s, 0, 0, 96, 16), length(u"rightMargin"_s, 0, 0, 96, 16),
                               length(u"topMargin"_s, 0, 0, 48, 8), length(u"bottomMargin"_s, 0, 0, 48, 8),
                               number(u"highlightMoveDuration"_s, 200, 0, 1000, 100) },
        .takesKeys = true
    };
}

ComponentPage scrolledListViewPage()
{
    return { .name = u"ScrolledListView"_s,
             .module = u"Generic"_s,
             .settings = listSettings(),
             .editors = Editors { length(u"height"_s, 208, 64, 240, 16), orientation(false),
                                  length(u"spacing"_s, 8, 0, 48, 8) }
                        + viewEditors() + Editors { number(u"highlightMoveDuration"_s, 200, 0, 1000, 100) },
             .takesKeys = true };
}

QList<ComponentPage> styledPages()
{
    return { busyIndicatorPage(),
             buttonPage(u"Button"_s, u"Watch"_s, u"standardButtonStyle"_s),
             checkIndicatorPage(),
             checkBoxPage(),
             circleProgressBarPage(),
             keyboardPage(),
             lineEditPage(),
             mainMenuButtonPage(),
             mainMenuEffectPage(),
             mediaBlockPage(),
             mediaGridViewPage(),
             mediaListViewPage(),
             buttonPage(u"PlayerButton"_s, u"Pause"_s, {}, false),
             buttonPage(u"PrimaryButton"_s, u"Watch"_s),
             radioButtonPage(),
             scrollBarPage(),
             buttonPage(u"StandardButton"_s, u"Watch"_s),
             tabButtonPage() };
}

QList<ComponentPage> allPages()
{
    QList<ComponentPage> pages = styledPages() + componentItemPages();
    std::sort(pages.begin(), pages.end(),
              [](const ComponentPage &one, const ComponentPage &other) { return one.name < other.name; });
    return pages
           + QList<ComponentPage> { horizontalFadeEffectPage(), scrolledGridViewPage(),
                                    scrolledListViewPage() };
}

} // namespace

const QList<ComponentPage> &componentPages()
{
    static const QList<ComponentPage> pages = allPages();
    return pages;
}

} // namespace gallery
