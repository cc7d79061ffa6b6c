// SPDX-License-Identifier: MIT
#include "buttonpictures.h"
#include "buttonscene.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

class tst_StbButtonPictures : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void everyStateLooksAsItDid_data()
    {
        QTest::addColumn<qsizetype>("index");
        for (qsizetype i = 0; i < buttonPictures().size(); ++i)
            QTest::newRow(buttonPictures()[i].name) << i;
    }
    void everyStateLooksAsItDid()
    {
        QFETCH(qsizetype, index);
        const ButtonPicture &picture = buttonPictures()[index];
        ButtonScene<StbButtonWithCheckIndicator> scene;
        if (picture.otherStyle)
            scene.style.setStyle(otherButtonStyle());
        scene.button.setStyle(&scene.style);
        picture.set(scene.button);
        scene.stage.renderFrame();
        STB_COMPARE_GOLDEN(scene.stage.picture().copy(0, 0, 640, 150),
                           QStringLiteral("button-") + picture.name,
                           { 24, 60, "glyph edges differ a little between font rasterizers' versions" });
    }
};

STB_TEST_MAIN(tst_StbButtonPictures)
#include "tst_stbbuttonpictures.moc"
