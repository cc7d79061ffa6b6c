// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// A page for each control: the control itself, its properties, and the QML that makes it.
FocusScope {
    id: screen

    required property ComponentsController components
    required property GuideController guide

    focus: true
    Keys.onPressed: event => event.accepted = components.press(event.key)

    Binding {
        screen.components.unit: Look.unit
    }
    Binding {
        screen.components.rowsPerPage: pages.visibleRows
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
        title: qsTr("Components")
        dayText: screen.guide.dayText
        shortDayText: screen.guide.shortDayText
        clockText: screen.guide.clockText
    }
    ComponentPageList {
        id: pages

        objectName: "pages"
        anchors.top: header.bottom
        anchors.topMargin: Look.small
        anchors.bottom: Look.wide ? line.top : editors.top
        anchors.bottomMargin: Look.small
        anchors.left: header.left
        // The longest name fits.
        width: Math.round((Look.wide ? 0.28 : 0.42) * header.width)
        controller: screen.components
    }
    EdgeFades {
        anchors.fill: pages
        list: pages
    }
    ComponentStage {
        id: stage

        objectName: "stage"
        anchors.top: pages.top
        anchors.left: pages.right
        anchors.leftMargin: Look.medium
        anchors.right: header.right
        anchors.bottom: editors.top
        anchors.bottomMargin: Look.small
        focus: screen.components.entered
        controller: screen.components
    }
    ComponentEditorList {
        id: editors

        objectName: "editors"
        anchors.bottom: line.top
        anchors.bottomMargin: Look.small
        // On a narrow screen names and values need all of the width.
        anchors.left: Look.wide ? stage.left : header.left
        anchors.right: header.right
        controller: screen.components
    }
    EdgeFades {
        anchors.fill: editors
        list: editors
    }
    ComponentLine {
        id: line

        objectName: "line"
        anchors.bottom: hints.top
        anchors.bottomMargin: Look.small
        anchors.left: header.left
        anchors.right: header.right
        controller: screen.components
    }
    ComponentHints {
        id: hints

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Look.safeY
        anchors.left: header.left
        anchors.right: header.right
        controller: screen.components
    }
}
