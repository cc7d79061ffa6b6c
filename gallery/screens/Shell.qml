// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// All screens, of which one is seen and has the keys. Those that Back leads to stay as they are meanwhile.
FocusScope {
    id: shell

    required property ShellController controller

    width: Look.screenWidth
    height: Look.screenHeight
    focus: true
    LayoutMirroring.enabled: controller.mirrored
    LayoutMirroring.childrenInherit: true

    Rectangle {
        anchors.fill: parent
        color: Look.backdrop
    }
    Screen {
        name: "home"
        sourceComponent: HomeScreen {
            home: shell.controller.home
            guide: shell.controller.guide
        }
    }
    Screen {
        name: "detail"
        sourceComponent: DetailScreen {
            detail: shell.controller.detail
        }
    }
    Screen {
        name: "guide"
        sourceComponent: GuideScreen {
            guide: shell.controller.guide
        }
    }

    component Screen: Loader {
        required property string name

        anchors.fill: parent
        active: shell.controller.openScreens.includes(name)
        visible: shell.controller.screen === name
        focus: visible
    }
}
