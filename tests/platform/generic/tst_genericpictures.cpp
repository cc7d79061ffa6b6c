// SPDX-License-Identifier: MIT
#include "genericscene.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

// The controls in their states, as they look.
class tst_GenericPictures : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theControlsLookAsTheyShould_data()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<QSize>("size");
        QTest::newRow("generic_check_boxes") << "check_boxes" << QSize(420, 210);
        QTest::newRow("generic_line_edits") << "line_edits" << QSize(280, 300);
        QTest::newRow("generic_menu_buttons") << "menu_buttons" << QSize(720, 190);
        QTest::newRow("generic_painted") << "painted" << QSize(600, 240);
    }
    void theControlsLookAsTheyShould()
    {
        QFETCH(QString, scene);
        QFETCH(QSize, size);
        GenericScene shown(QUrl(QStringLiteral("qrc:/scenes/%1.qml").arg(scene)), size, QColor("#0a1118"));
        QVERIFY(shown.item);
        if (QQuickItem *focused = shown.find("focus"))
            focused->forceActiveFocus();
        shown.stage.renderFrame();
        const QImage picture = shown.stage.picture();
        STB_COMPARE_GOLDEN(picture, QTest::currentDataTag());
    }
};

STB_TEST_MAIN(tst_GenericPictures)
#include "tst_genericpictures.moc"
