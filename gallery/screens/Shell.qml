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
    // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
    // qmllint disable unqualified
    ScreenLoader {
        controller: shell.controller
        name: "home"
        sourceComponent: HomeScreen {
            home: shell.controller.home
            menu: shell.controller.menu
            guide: shell.controller.guide
        }
    }
    ScreenLoader {
        controller: shell.controller
        name: "detail"
        sourceComponent: DetailScreen {
            detail: shell.controller.detail
        }
    }
    ScreenLoader {
        controller: shell.controller
        name: "series"
        sourceComponent: SeriesScreen {
            series: shell.controller.series
        }
    }
    ScreenLoader {
        controller: shell.controller
        name: "player"
        sourceComponent: PlayerScreen {
            player: shell.controller.player
        }
    }
    ScreenLoader {
        controller: shell.controller
        name: "guide"
        sourceComponent: GuideScreen {
            guide: shell.controller.guide
        }
    }
    ScreenLoader {
        controller: shell.controller
        name: "channels"
        sourceComponent: ChannelsScreen {
            channels: shell.controller.channels
            guide: shell.controller.guide
        }
    }
    ScreenLoader {
        controller: shell.controller
        name: "search"
        sourceComponent: SearchScreen {
            search: shell.controller.search
            guide: shell.controller.guide
        }
    }
    ScreenLoader {
        controller: shell.controller
        name: "settings"
        sourceComponent: SettingsScreen {
            settings: shell.controller.settings
            guide: shell.controller.guide
        }
    }
    ScreenLoader {
        controller: shell.controller
        name: "components"
        sourceComponent: ComponentsScreen {
            components: shell.controller.components
            guide: shell.controller.guide
        }
    }
    ScreenLoader {
        controller: shell.controller
        name: "about"
        sourceComponent: AboutScreen {
            about: shell.controller.about
            guide: shell.controller.guide
        }
    }
    // qmllint enable unqualified
    MenuOverlay {
        anchors.fill: parent
        visible: shell.controller.menu.open
        focus: visible
        menu: shell.controller.menu
        clockText: shell.controller.guide.clockText
    }
}
