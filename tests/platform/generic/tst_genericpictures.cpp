// SPDX-License-Identifier: MIT
#include "genericscene.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <generic/throbber.h>

namespace {

const QString checkBoxes = QStringLiteral(R"(
Grid { x: 10; y: 10; columns: 2; spacing: 14
    component Box: CheckBox {
        indicatorSize: Qt.size(36, 36); iconPath: ':/icons/mark.png'; roundingRadius: 6; spacing: 16
        indicatorColors: ['#263445', '#5cc2f2', '#16202b', '#ffffff']
        iconColors: ['white', '#0a1118', '#7f8894', '#0a1118']
        titleFont.pixelSize: 25; titleColors: ['#ffffff', '#f0f0ff', '#7f8894', '#ffe0a0']
    }
    Box { text: 'Normal' } Box { text: 'Checked'; checked: true }
    Box { text: 'Off'; enabled: false } Box { text: 'Off, checked'; enabled: false; checked: true }
    Box { text: 'Radio'; forceRounding: true } Box { text: 'Chosen'; forceRounding: true; checked: true }
    Box { text: 'Mirrored'; LayoutMirroring.enabled: true }
    Box { objectName: 'focus'; text: 'Focused'; checked: true }
})");

const QString lineEdits = QStringLiteral(R"(
Column { x: 10; y: 10; spacing: 10
    component Edit: LineEdit {
        width: 260; font.pixelSize: 25; roundingRadius: 8; cursorWidth: 3; errorFrameWidth: 3
        leftPadding: 20; rightPadding: 20; topPadding: 9; bottomPadding: 9; errorFrameColor: '#d02030'
        backgroundColors: ['#263445', '#263445', '#16202b', '#ffffff']
        textColors: ['#ffffff', '#ffffff', '#7f8894', '#0a1118']
        placeholderTextColors: ['#a0b0c0', '#a0b0c0', '#7f8894', '#5a6876']
    }
    Edit { placeholderText: 'Title or person' }
    Edit { placeholderText: 'Title or person'; editing: true }
    Edit { text: 'A text that is too long for it'; editing: true }
    Edit { text: 'secret'; echoMode: TextInput.Password; error: true }
    Edit { text: 'Switched off'; enabled: false }
})");

const QString buttons = QStringLiteral(R"(
Column { x: 10; y: 20; spacing: 30
    component Entry: MainMenuButton {
        baseHeight: 48; textFont.pixelSize: 25; leftPadding: 24; rightPadding: 24; roundingRadius: 24
        leftIconSize: Qt.size(32, 32); rightIconSize: Qt.size(32, 32); rightIconRoundingRadius: 16
        backgroundColors: ['transparent', '#263445', '#ffffff']
        textColors: ['#a0b0c0', '#ffffff', '#0a1118']
    }
    component Tab: TabButton {
        font.family: 'DejaVu Sans'; font.pixelSize: 25
        leftPadding: 24; rightPadding: 24; minimumHeight: 56; roundingRadius: 8
        backgroundFocusedColor: '#ffffff'; backgroundSelectedColor: '#263445'
        textColor: '#a0b0c0'; textSelectedColor: '#ffffff'; textFocusedColor: '#0a1118'
    }
    Row { spacing: 10
        Entry { text: 'Home' }
        Entry { text: 'Guide'; checked: true; leftIconPath: ':/icons/mark.png' }
        Entry { text: 'Me'; focused: true; backgroundHeight: 64; roundingRadius: 32; rightIconPath: ':/icons/wide.png' }
        Entry { text: 'Off'; enabled: false }
    }
    Row { spacing: 10
        Tab { text: 'All' }
        Tab { text: 'Films'; checked: true; iconPath: ':/icons/mark.png' }
        Tab { objectName: 'focus'; text: 'Series' }
        Tab { text: 'Off'; enabled: false }
        Tab { text: 'A long title'; width: 120 }
    }
})");

const QString painted = QStringLiteral(R"(
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
})");

} // namespace

// The controls in their states, as they look.
class tst_GenericPictures : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theControlsLookAsTheyShould_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QSize>("size");
        QTest::newRow("generic_check_boxes") << checkBoxes << QSize(420, 210);
        QTest::newRow("generic_line_edits") << lineEdits << QSize(280, 300);
        QTest::newRow("generic_menu_buttons") << buttons << QSize(720, 190);
        QTest::newRow("generic_painted") << painted << QSize(600, 240);
    }
    void theControlsLookAsTheyShould()
    {
        QFETCH(QString, text);
        QFETCH(QSize, size);
        GenericScene scene(text, size, QColor("#0a1118"));
        QVERIFY(scene.item);
        if (QQuickItem *focused = scene.find("focus"))
            focused->forceActiveFocus();
        scene.stage.renderFrame();
        const QImage picture = scene.stage.picture();
        STB_COMPARE_GOLDEN(picture, QTest::currentDataTag());
    }
};

STB_TEST_MAIN(tst_GenericPictures)
#include "tst_genericpictures.moc"
