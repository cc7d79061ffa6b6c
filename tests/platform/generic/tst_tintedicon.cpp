// SPDX-License-Identifier: MIT
#include "genericscene.h"
#include "testkit/testcase.h"

#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtGui/qpixmapcache.h>

namespace {

const QString icon = QStringLiteral("TintedIcon { width: 20; height: 20; path: ':/icons/wide.png'\n");

} // namespace

class tst_TintedIcon : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        stbtest::TestCase::init();
        QPixmapCache::clear();
    }

    void anIconIsShownWholeAndInItsOwnColours()
    {
        GenericScene scene(icon + "}");
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(2, 10), QColor(Qt::red));
        QCOMPARE(scene.pixel(17, 10), QColor(Qt::blue));
        QCOMPARE(scene.pixel(2, 3), QColor(Qt::white)); // it is half as high as wide
        QCOMPARE(scene.pixel(2, 16), QColor(Qt::white));
    }

    void anIconTakesTheColour()
    {
        GenericScene scene(icon + "color: '#00c000' }");
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(2, 10), QColor("#00c000"));
        QCOMPARE(scene.pixel(17, 10), QColor("#00c000"));
        QCOMPARE(scene.pixel(2, 3), QColor(Qt::white));
        scene.item->setProperty("color", QColor("#8000ff"));
        QCOMPARE(scene.stage.renderFrame().boundingRect(), QRect(0, 0, 20, 20));
        QCOMPARE(scene.pixel(2, 10), QColor("#8000ff"));
    }

    void aRoundIconFillsItsPlace()
    {
        GenericScene scene(icon + "radius: 10 }");
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(5, 4), QColor(Qt::red));
        QCOMPARE(scene.pixel(14, 15), QColor(Qt::blue));
        QCOMPARE(scene.pixel(1, 1), QColor(Qt::white));
        QCOMPARE(scene.pixel(18, 18), QColor(Qt::white));
    }

    void anIconFollowsItsSizeAndPath()
    {
        GenericScene scene(icon + "}");
        scene.stage.renderFrame();
        scene.item->setSize(QSizeF(40, 20));
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(2, 2), QColor(Qt::red));
        QCOMPARE(scene.pixel(38, 18), QColor(Qt::blue));
        scene.item->setProperty("path", QString());
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(2, 2), QColor(Qt::white));
        for (const char *path : { "qrc:/icons/wide.png", ":/icons/wide.png" }) {
            scene.item->setProperty("path", path);
            scene.stage.renderFrame();
            QCOMPARE(scene.pixel(2, 2), QColor(Qt::red));
        }
        scene.item->update();
        QVERIFY(scene.stage.renderFrame().isEmpty());
    }

    void iconsThatAreAlikeAreReadOnce()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("icon.png");
        QVERIFY(QFile::copy(":/icons/wide.png", path));
        GenericScene scene("Row { property string path; TintedIcon { path: parent.path }\n"
                           "TintedIcon { path: parent.path; visible: false } }");
        scene.item->setProperty("path", QUrl::fromLocalFile(path).toString());
        scene.stage.renderFrame();
        QVERIFY(QFile::remove(path));
        scene.item->childItems().last()->setVisible(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(26, 12), QColor(Qt::red));
    }

    void aMissingIconIsToldOnceForAllIcons()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Cannot open: :/icons/nowhere.png"));
        GenericScene scene(
                "Row { TintedIcon { path: ':/icons/nowhere.png' } TintedIcon { path: ':/icons/nowhere.png' } }");
        scene.stage.renderFrame();
        scene.item->childItems().first()->setProperty("path", "");
        scene.item->childItems().first()->setProperty("path", ":/icons/nowhere.png");
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(10, 10), QColor(Qt::white));
    }

    void aMissingIconIsToldOnceAndOnlyWhenItIsSeen()
    {
        GenericScene scene("TintedIcon { visible: false; path: ':/icons/none.png' }");
        scene.stage.renderFrame(); // says nothing
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Cannot open: :/icons/none.png"));
        scene.item->setVisible(true);
        scene.stage.renderFrame();
        scene.item->setProperty("color", QColor(Qt::red));
        scene.item->setSize(QSizeF(30, 30));
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(10, 10), QColor(Qt::white));
        scene.item->setProperty("path", ":/icons/mark.png");
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(15, 15), QColor(Qt::red));
    }
};

STB_TEST_MAIN(tst_TintedIcon)
#include "tst_tintedicon.moc"
