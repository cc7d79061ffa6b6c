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
    // What no screen knows.
    Keys.onPressed: event => event.accepted = controller.press(event.key)

    Rectangle {
        anchors.fill: parent
        color: Look.backdrop
    }
    ScreenLoader {
        controller: shell.controller
        name: "home"
        values: ({ home: controller.home, menu: controller.menu, guide: controller.guide })
    }
    ScreenLoader {
        controller: shell.controller
        name: "detail"
        values: ({ detail: controller.detail })
    }
    ScreenLoader {
        controller: shell.controller
        name: "series"
        values: ({ series: controller.series })
    }
    ScreenLoader {
        controller: shell.controller
        name: "player"
        values: ({ player: controller.player })
    }
    ScreenLoader {
        controller: shell.controller
        name: "guide"
        values: ({ guide: controller.guide })
    }
    ScreenLoader {
        controller: shell.controller
        name: "channels"
        values: ({ channels: controller.channels, guide: controller.guide })
    }
    ScreenLoader {
        controller: shell.controller
        name: "search"
        values: ({ search: controller.search, guide: controller.guide })
    }
    ScreenLoader {
        controller: shell.controller
        name: "settings"
        values: ({ settings: controller.settings, guide: controller.guide })
    }
    ScreenLoader {
        controller: shell.controller
        name: "components"
        values: ({ components: controller.components, guide: controller.guide })
    }
    ScreenLoader {
        controller: shell.controller
        name: "about"
        values: ({ about: controller.about, guide: controller.guide })
    }
    Binding {
        target: Told
        property: "screenFocus"
        value: !shell.controller.menu.open
    }
    MenuOverlay {
        anchors.fill: parent
        open: shell.controller.menu.open
        menu: shell.controller.menu
        clockText: shell.controller.guide.clockText
    }
}
