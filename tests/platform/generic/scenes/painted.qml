// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Generic

Row { x: 10; y: 10; spacing: 20
    BusyIndicator {
        width: 220; throbberWidth: 96; throbberHeight: 96; throbberPenWidth: 8; animationInterval: 300
        header: 'Loading'; headerFont.pixelSize: 29
        description: 'The guide of seven days is being read'; descriptionFont.pixelSize: 17
    }
    CircleProgressBar { barWidth: 10; value: 0.35; barColor: '#5cc2f2'; barBackgroundColor: '#3a4048' }
    Rectangle { width: 200; height: 96; color: '#446688'
        HorizontalFadeEffect { anchors.fill: parent; color: '#0a1118'; leftGradientWidth: 80; rightGradientWidth: 80
            rightGradientOpacity: 0.5 } }
}
