// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Stbui.UI.Qml.Controls.Basic
import Gallery

// What runs here, and whose work it is. The text scrolls when it does not fit.
FocusScope {
    id: screen

    required property AboutController about
    required property GuideController guide

    focus: true
    Keys.onPressed: event => event.accepted = about.press(event.key)

    Binding {
        screen.about.textHeight: text.height
    }
    Binding {
        screen.about.viewHeight: view.height
    }
    Rectangle {
        anchors.fill: parent
        color: Look.backdrop
    }
    ScreenHeader {
        id: header

        anchors.top: parent.top
        anchors.topMargin: Look.safeY
        anchors.left: parent.left
        anchors.leftMargin: Look.safeX
        anchors.right: parent.right
        anchors.rightMargin: Look.safeX
        title: qsTr("About")
        dayText: screen.guide.dayText
        shortDayText: screen.guide.shortDayText
        clockText: screen.guide.clockText
    }
    // Around what the keys scroll.
    Rectangle {
        objectName: "focusFrame"
        anchors.fill: view
        anchors.margins: -Look.medium
        color: Look.backdrop
        radius: Look.radius
        border.width: Look.frame
        border.color: Look.focus
    }
    Item {
        id: view

        objectName: "aboutText"
        anchors.top: header.bottom
        anchors.topMargin: Look.medium + Look.large
        anchors.bottom: footer.top
        anchors.bottomMargin: 2 * Look.medium
        anchors.left: header.left
        anchors.leftMargin: Look.medium
        anchors.right: header.right
        anchors.rightMargin: Look.medium
        focus: true
        clip: true
        Accessible.role: Accessible.Document
        Accessible.name: header.title
        Accessible.focusable: true

        Column {
            id: text

            x: LayoutMirroring.enabled ? parent.width - width : 0
            y: -screen.about.position
            width: parent.width - Look.large
            spacing: Look.small

            Fact {
                label: qsTr("Gallery")
                value: screen.about.program
            }
            Fact {
                label: qsTr("Controls")
                value: screen.about.module
            }
            Fact {
                label: qsTr("Qt")
                value: screen.about.qt
            }
            Fact {
                label: qsTr("Renderer")
                value: screen.about.renderer(screen.GraphicsInfo.api)
            }
            Fact {
                label: qsTr("Resolution")
                value: Look.screenWidth + " × " + Look.screenHeight
            }
            Fact {
                label: qsTr("Theme")
                value: screen.about.theme
            }
            Fact {
                label: qsTr("Language")
                value: screen.about.language
            }
            Fact {
                label: qsTr("Font")
                value: screen.about.fontFamily(Look.body)
            }
            Heading {
                text: qsTr("Pictures and texts")
            }
            Paragraph {
                text: qsTr("Icons, pictures and logos were drawn for this project. They and the texts of the own guide "
                           + "and catalogue have its licence. What comes from other files belongs to their authors.")
            }
            Paragraph {
                text: qsTr("The gallery brings no fonts; it uses those of the device.")
            }
            Heading {
                text: qsTr("Licence")
            }
            // A licence counts as it is written, in English.
            Paragraph {
                text: screen.about.licence
                font: Look.caption
                LayoutMirroring.enabled: false
                horizontalAlignment: Text.AlignLeft
            }
        }
        EdgeFade {
            anchors.top: parent.top
            visible: screen.about.position > 0
        }
        EdgeFade {
            anchors.bottom: parent.bottom
            rotation: 180
            visible: screen.about.position < text.height - view.height
        }
        ScrollBar {
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.right: parent.right
            policy: text.height > view.height ? T.ScrollBar.AlwaysOn : T.ScrollBar.AlwaysOff
            size: view.height / text.height
            position: screen.about.position / text.height
        }
    }
    Row {
        id: footer

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Look.safeY
        anchors.right: header.right
        spacing: Look.large

        KeyHint {
            key: "▲ ▼"
            text: qsTr("Scroll")
        }
        KeyHint {
            key: qsTr("BACK", "a key of the remote control")
            text: qsTr("Leave")
        }
    }

    component Fact: Item {
        id: fact

        required property string label
        required property string value

        objectName: "fact"
        width: parent.width
        height: Math.max(name.height, content.height)

        Label {
            id: name

            anchors.left: parent.left
            width: Math.round(0.3 * parent.width) - Look.medium
            text: fact.label
            color: Look.quietText
        }
        Label {
            id: content

            anchors.left: name.right
            anchors.leftMargin: Look.medium
            anchors.right: parent.right
            text: fact.value
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
    }
    component Heading: Label {
        width: parent.width
        topPadding: Look.medium
        font: Look.heading
        color: Look.quietText
    }
    component Paragraph: Label {
        width: parent.width
        wrapMode: Text.Wrap
        maximumLineCount: 1000
        elide: Text.ElideNone
    }
}
