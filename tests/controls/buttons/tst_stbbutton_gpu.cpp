// SPDX-License-Identifier: MIT
#include "buttonpictures.h"
#include "testkit/pictures.h"
#include "testkit/shownstage.h"
#include "testkit/testcase.h"

#include <QtQml/qqmlparserstatus.h>

using stbtest::ShownStage;

namespace {

const stbtest::Tolerance sameGlyphs { 26, 60,
                                      "blending rounds differently by a step or two, and the pictures were "
                                      "made by the software adaptation" };

struct Scene
{
    Scene()
    {
        style.setStyle(oddButtonStyle());
        other.setStyle(otherButtonStyle());
        static_cast<QQmlParserStatus &>(button).componentComplete();
        button.setParentItem(stage.contentItem());
        button.setPosition(QPointF(20, 30));
    }
    void show(const ButtonPicture &picture)
    {
        button.setStyle(picture.otherStyle ? &other : &style);
        picture.set(button);
    }

    ShownStage stage { QSize(640, 150), QColor(0, 60, 40) };
    design_system::ButtonQmlStyle style;
    design_system::ButtonQmlStyle other;
    StbButtonWithCheckIndicator button;
};

} // namespace

// The button on an adaptation whose textures are no pixmaps: the same pictures as under the software adaptation.
class tst_StbButtonGpu : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        Scene scene;
        QVERIFY(!scene.stage.isSoftware());
    }

    void everyStateShowsThePictureOfTheSoftwareAdaptation_data()
    {
        QTest::addColumn<qsizetype>("index");
        for (qsizetype i = 0; i < buttonPictures().size(); ++i)
            QTest::newRow(buttonPictures()[i].name) << i;
    }
    void everyStateShowsThePictureOfTheSoftwareAdaptation()
    {
        QFETCH(qsizetype, index);
        const ButtonPicture &picture = buttonPictures()[index];
        Scene scene;
        scene.show(picture);
        // The throbber's first frame stands still until the window is up and for as long as no event is handled.
        STB_COMPARE_GOLDEN(scene.stage.picture(), QStringLiteral("button-") + picture.name, sameGlyphs);
    }

    void oneStateAfterTheOtherLeavesNothingBehind()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        buttonPictures()[0].set(scene.button);
        const auto compare = [&scene](const char *name) {
            return stbtest::compareWithGolden(scene.stage.picture(), QStringLiteral("button-") + name,
                                              sameGlyphs);
        };
        QCOMPARE(compare("normal"), QString());
        scene.button.setFocused(true);
        QCOMPARE(compare("focused"), QString());
        scene.button.setChecked(true);
        QCOMPARE(compare("checked"), QString());
        scene.button.setThrobberVisible(true);
        QVERIFY(!scene.stage.picture().isNull());
        scene.button.setThrobberVisible(false);
        QCOMPARE(compare("checked"), QString());
        scene.button.setChecked(false);
        scene.button.setEnabled(false);
        QCOMPARE(compare("disabled"), QString());
        scene.button.setEnabled(true);
        scene.button.setFocused(false);
        QCOMPARE(compare("normal"), QString());
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        scene.show(buttonPictures()[2]);
        QVERIFY(!scene.stage.picture().isNull());
        ShownStage other(QSize(640, 150), QColor(0, 60, 40));
        scene.button.setParentItem(other.contentItem());
        STB_COMPARE_GOLDEN(other.picture(), "button-checked", sameGlyphs);
        scene.button.setParentItem(scene.stage.contentItem());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "button-checked", sameGlyphs);
    }
};

STB_TEST_MAIN(tst_StbButtonGpu)
#include "tst_stbbutton_gpu.moc"
