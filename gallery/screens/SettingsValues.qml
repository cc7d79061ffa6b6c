// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// The settings of a group: values to choose as radio buttons, switches as check boxes. The row that has the keys stays
// in the middle as far as the ends allow.
Item {
    id: view

    required property SettingsController settings

    property Item current: null
    // A row that is about to go has no section any more.
    readonly property real middle: current !== null && current.parent !== null && settings.inValues
                                   ? current.parent.y + current.y + current.height / 2 : 0
    readonly property int position: Math.max(0, Math.min(sections.height - height, middle - height / 2))
    readonly property bool overflows: sections.height > height

    clip: true

    Column {
        id: sections

        y: -view.position
        width: parent.width - (view.overflows ? Look.large : 0)
        x: LayoutMirroring.enabled ? parent.width - width : 0
        spacing: Look.medium

        Repeater {
            model: view.settings.sections

            // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
            // qmllint disable unqualified
            Column {
                id: section

                required property var modelData

                width: sections.width

                Label {
                    width: parent.width
                    bottomPadding: Look.tiny
                    visible: text.length > 0
                    text: section.modelData.heading
                    font: Look.heading
                    color: Look.quietText
                }
                Repeater {
                    model: section.modelData.rows
                    delegate: section.modelData.exclusive ? value : onOrOff
                }
            }
            // qmllint enable unqualified
        }
    }
    EdgeFade {
        anchors.top: parent.top
        visible: view.position > 0
    }
    EdgeFade {
        anchors.bottom: parent.bottom
        rotation: 180
        visible: view.position < sections.height - view.height
    }
    ScrollBar {
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        policy: view.overflows ? T.ScrollBar.AlwaysOn : T.ScrollBar.AlwaysOff
        size: view.height / sections.height
        position: view.position / sections.height
    }

    // A row of the group before goes a little later than its group, and has no value any more meanwhile.
    // qmllint disable unqualified
    Component {
        id: value

        RadioButton {
            id: radio

            required property var modelData
            readonly property bool chosen: view.settings.inValues && view.settings.row === modelData.row

            objectName: "value"
            width: sections.width
            padding: Look.small
            text: modelData.title
            checked: view.settings.checked[modelData.row] === true
            style: activeFocus ? Look.focusedCheckBox : QmlDesignSystem.standardCheckBoxStyle
            focus: chosen
            onChosenChanged: if (chosen) view.current = radio
            onActiveFocusChanged: if (activeFocus) view.settings.focusRow(modelData.row)
            onClicked: view.settings.choose(modelData.row)
            Accessible.onPressAction: view.settings.choose(modelData.row)
            Accessible.onToggleAction: view.settings.choose(modelData.row)

            FocusPlate {
                z: -1
                anchors.fill: parent
                visible: radio.activeFocus
            }
        }
    }
    Component {
        id: onOrOff

        CheckBox {
            id: check

            required property var modelData
            readonly property bool chosen: view.settings.inValues && view.settings.row === modelData.row

            objectName: "value"
            width: sections.width
            padding: Look.small
            text: modelData.title
            checked: view.settings.checked[modelData.row] === true
            style: activeFocus ? Look.focusedCheckBox : QmlDesignSystem.standardCheckBoxStyle
            focus: chosen
            onChosenChanged: if (chosen) view.current = check
            onActiveFocusChanged: if (activeFocus) view.settings.focusRow(modelData.row)
            onClicked: view.settings.choose(modelData.row)
            Accessible.onPressAction: view.settings.choose(modelData.row)
            Accessible.onToggleAction: view.settings.choose(modelData.row)

            FocusPlate {
                z: -1
                anchors.fill: parent
                visible: check.activeFocus
            }
        }
    }
    // qmllint enable unqualified
}
