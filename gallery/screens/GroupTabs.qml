// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The groups of channels, of which one is shown.
ListView {
    id: list

    required property ChannelsController controller

    implicitHeight: Math.ceil(metrics.height) + Look.small
    orientation: ListView.Horizontal
    interactive: false
    clip: true
    spacing: Look.tiny
    cacheBuffer: 0
    highlightFollowsCurrentItem: false
    model: controller.groups
    currentIndex: controller.groupIndex
    delegate: Rectangle {
        id: tab

        required property string modelData

        width: label.width + 2 * Look.medium
        height: ListView.view.height
        radius: Look.radius
        color: ListView.isCurrentItem ? Look.raised : "transparent"
        Accessible.role: Accessible.PageTab
        Accessible.name: label.text
        Accessible.selectable: true
        Accessible.selected: ListView.isCurrentItem

        Label {
            id: label

            anchors.centerIn: parent
            text: tab.modelData.length > 0 ? tab.modelData : qsTr("All")
            font: Look.caption
            color: tab.ListView.isCurrentItem ? Look.text : Look.quietText
        }
    }

    // What is beside the edges fades out.
    component Fade: Rectangle {
        objectName: "edgeFade"
        width: Look.huge
        height: parent.height
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop {
                position: 0
                color: Look.backdrop
            }
            GradientStop {
                position: 1
                color: "transparent"
            }
        }
    }

    Fade {
        parent: list
        visible: !list.atXBeginning
    }
    Fade {
        parent: list
        x: list.width - width
        rotation: 180
        visible: !list.atXEnd
    }
    FontMetrics {
        id: metrics

        font: Look.caption
    }

    MiddleKeeper {
        list: list
    }
}
