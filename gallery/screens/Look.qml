// SPDX-License-Identifier: MIT
pragma Singleton
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// What the screens take from the theme: measures that grow with the resolution, fonts by use, which grow with
// the text size that was chosen, colours by role.
QtObject {
    readonly property int screenWidth: QmlDesignSystem.layouts.screenWidth
    readonly property int screenHeight: QmlDesignSystem.layouts.screenHeight
    // A standard definition screen has no room for a third column.
    readonly property bool wide: screenWidth >= 1200

    // Television sets may hide the outer twentieth of the picture on each side.
    readonly property int safeX: Math.ceil(screenWidth / 20)
    readonly property int safeY: Math.ceil(screenHeight / 20)

    readonly property real unit: wide ? screenHeight / 720 : 0.8
    readonly property int hairline: Math.max(1, Math.round(unit))
    readonly property int tiny: Math.round(4 * unit)
    readonly property int small: Math.round(8 * unit)
    readonly property int medium: Math.round(16 * unit)
    readonly property int large: Math.round(24 * unit)
    readonly property int huge: Math.round(40 * unit)
    // Of plates; of what lies within a plate's frame; of what is small.
    readonly property int radius: QmlSettings.roundingEnabled ? Math.round(8 * unit) : 0
    readonly property int innerRadius: Math.max(0, radius - frame)
    readonly property int smallRadius: QmlSettings.roundingEnabled ? tiny : 0
    readonly property int barHeight: Math.round(4 * unit)
    // Around what has the focus and keeps its own colours.
    readonly property int frame: Math.round(4 * unit)
    // Room for a right holder's mark.
    readonly property int logoWidth: Math.round(72 * unit)
    readonly property int logoHeight: Math.round(32 * unit)
    // Of a day in the guide's row of days: the month's name in full must fit.
    readonly property int dayWidth: Math.round((wide ? 92 * unit : 72) * Math.max(1, textScale))
    // How long a list takes to its new place, in milliseconds.
    readonly property int scrollTime: QmlDesignSystem.animation.duration

    // How much larger than designed texts are.
    readonly property real textScale: body.pixelSize
                                      / QmlDesignSystem.unscaledFont(FontHd.Body, FontSd.H5).pixelSize

    readonly property font headline: QmlDesignSystem.scaledFont(FontHd.H2, FontSd.H2)
    readonly property font heading: QmlDesignSystem.scaledFont(FontHd.H4, FontSd.H4)
    readonly property font body: QmlDesignSystem.scaledFont(FontHd.Body, FontSd.H5)
    readonly property font caption: QmlDesignSystem.scaledFont(FontHd.Caption1, FontSd.H6)
    readonly property font hint: QmlDesignSystem.scaledFont(FontHd.Caption2, FontSd.H6)
    // What keys do stands in one line, which is as wide as the screen: the longest one fills a narrow screen with texts as
    // designed, a wide one with texts a third larger. So it grows no further.
    readonly property font keyHint: {
        let font = QmlDesignSystem.unscaledFont(FontHd.Caption2, FontSd.H6);
        font.pixelSize = Math.min(hint.pixelSize, Math.round((wide ? 1.3 : 1) * font.pixelSize));
        return font;
    }
    // The month and the day in the guide's row of days, in pixels.
    // qmllint disable type
    readonly property int dayFonts: QmlDesignSystem.playerEpgDateStyle.style.monthStyle.font.pixelSize
                                    + QmlDesignSystem.playerEpgDateStyle.style.dayStyle.font.pixelSize
    // qmllint enable type

    // The linter of Qt 6.4 does not know the colours and rectangles of a module that is written in C++.
    // qmllint disable type
    readonly property color backdrop: QmlDesignSystem.colors.oslo
    // Over a picture that texts may touch, and under a text on a picture.
    readonly property color veil: Qt.rgba(backdrop.r, backdrop.g, backdrop.b, 0.25)
    readonly property color badge: Qt.rgba(backdrop.r, backdrop.g, backdrop.b, 0.8)
    readonly property color clear: Qt.rgba(backdrop.r, backdrop.g, backdrop.b, 0)
    readonly property color surface: QmlDesignSystem.colors.bamako
    readonly property color raised: QmlDesignSystem.colors.bogota
    readonly property color text: QmlDesignSystem.colors.sochi
    readonly property color quietText: QmlDesignSystem.colors.lima
    readonly property color track: QmlDesignSystem.colors.sochi20
    readonly property color accent: QmlDesignSystem.colors.berlin
    readonly property color focus: QmlDesignSystem.colors.quito
    readonly property color textOnFocus: QmlDesignSystem.colors.oslo

    readonly property int captionSpacing: QmlDesignSystem.contentTileStyle.style.captionSpacing
    readonly property rect channelLogo: QmlDesignSystem.playerTvChannelItemStyle.style.logoRect
    readonly property rect rowTextArea: QmlDesignSystem.playerEpgDelegateStyle.style.previewRect
    // qmllint enable type

    // Of the guide's row that has the focus and shows its card.
    readonly property PlayerEpgDelegateQmlStyle focusedRow: FocusedRowStyle {
        base: QmlDesignSystem.playerEpgDelegateStyle
        // Rows above and below stay in sight.
        cardHeight: Math.round(216 * Look.unit)
        // What header, days and hints leave of the screen: about 1.4 pixels of height for each pixel of a font.
        room: Look.screenHeight - 2 * Look.safeY - 6 * Look.small - 2 * Look.tiny
              - Math.round(1.4 * (Look.headline.pixelSize + Look.keyHint.pixelSize + Look.dayFonts))
    }
    readonly property PlayerEpgDateQmlStyle focusedDate: FocusedDateStyle {
        base: QmlDesignSystem.playerEpgDateStyle
        color: Look.textOnFocus
    }
    // Of texts that are larger than designed as many lines as fit.
    readonly property PlayerEpisodesItemQmlStyle episode: FittedEpisodeStyle {
        base: QmlDesignSystem.playerEpisodesItemStyle
        // What is said on a picture has no more room than the picture; on a narrow screen that is full as designed.
        statusScale: Look.wide ? 1 : 1 / Math.max(1, Look.textScale)
    }
    readonly property PlayerHorizontalEpgViewQmlStyle programme: FittedProgrammeStyle {
        base: QmlDesignSystem.playerHorizontalEpgViewStyle
        room: Math.round(190 * Look.unit)
    }
    // Of a check box or radio button on the focus plate.
    readonly property CheckBoxQmlStyle focusedCheckBox: CheckBoxQmlStyle {
        roundingRadius: QmlDesignSystem.standardCheckBoxStyle.roundingRadius
        icon.path: QmlDesignSystem.standardCheckBoxStyle.icon.path
        icon.size: QmlDesignSystem.standardCheckBoxStyle.icon.size
        title.font: QmlDesignSystem.standardCheckBoxStyle.title.font
        spacing: QmlDesignSystem.standardCheckBoxStyle.spacing
        iconStates: QmlDesignSystem.standardCheckBoxStyle.iconStates
        indicator.normal: Look.textOnFocus
        indicator.checked: QmlDesignSystem.standardCheckBoxStyle.indicator.checked
        indicator.disabled: QmlDesignSystem.standardCheckBoxStyle.indicator.disabled
        indicator.focused: Look.textOnFocus
        titleStates.normal: Look.textOnFocus
        titleStates.checked: Look.textOnFocus
        titleStates.disabled: QmlDesignSystem.standardCheckBoxStyle.titleStates.disabled
        titleStates.focused: Look.textOnFocus
    }
    // Of a day without programmes.
    readonly property PlayerEpgDateQmlStyle quietDate: FocusedDateStyle {
        base: QmlDesignSystem.playerEpgDateStyle
        color: Look.quietText
    }
    // Of the row of channels that has the focus.
    readonly property PlayerTvChannelItemQmlStyle focusedChannel: FocusedChannelStyle {
        base: QmlDesignSystem.playerTvChannelItemStyle
        color: Look.textOnFocus
        plateColor: Look.focus
    }
}
