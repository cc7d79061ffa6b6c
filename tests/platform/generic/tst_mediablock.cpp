// SPDX-License-Identifier: MIT
#include "generic/focusmemory.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"
#include "viewscene.h"

using namespace Qt::StringLiterals;

namespace {

struct Scene : stbtest::ViewScene
{
    /*! Two blocks, one above the other: the upper one with two fields, the lower one with a row of tiles. */
    bool showBlocks()
    {
        return show(u"FocusScope { focus: true; width: 640; height: 360\n"
                    "property alias upper: upper; property alias lower: lower\n"
                    "property alias row: row; property alias first: first; property alias second: second\n"
                    "MediaBlock { id: upper; width: 640; title: 'News'; focus: true\n"
                    "Item { width: 9; height: 9 }\n"
                    "FocusScope { id: first; width: 20; height: 20 }\n"
                    "FocusScope { id: second; width: 20; height: 20 } }\n"
                    "MediaBlock { id: lower; y: 100; width: 640; title: 'Films'\n"
                    "ScrolledListView { id: row; width: 640; height: 50; orientation: ListView.Horizontal\n"
                    "model: 9; delegate: Rectangle { width: 40; height: 40 } } } }"_s);
    }

    QQuickItem *part(const char *name) const { return item->property(name).value<QQuickItem *>(); }

    /*! A block with these \a properties and content. */
    bool showBlock(const QString &properties, int width = 301)
    {
        return show(
                u"MediaBlock { width: %1; titleFont { family: 'DejaVu Sans'; pixelSize: 17 }\n"_s.arg(width)
                + properties + u"}"_s);
    }
};

} // namespace

class tst_MediaBlock : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theFirstItemThatCanHaveTheFocusGetsIt()
    {
        Scene scene;
        QVERIFY(scene.showBlocks());
        QCOMPARE(scene.focusItem(), scene.part("first"));
    }

    void aBlockRemembersItsFocus()
    {
        Scene scene;
        QVERIFY(scene.showBlocks());
        scene.part("second")->forceActiveFocus();
        scene.part("lower")->forceActiveFocus();
        QVERIFY(scene.part("row")->hasActiveFocus());
        scene.part("upper")->forceActiveFocus();
        QCOMPARE(scene.focusItem(), scene.part("second"));
    }

    void aRowInABlockRemembersItsItem()
    {
        Scene scene;
        QVERIFY(scene.showBlocks());
        scene.part("lower")->forceActiveFocus();
        scene.press(Qt::Key_Right);
        scene.press(Qt::Key_Right);
        scene.part("upper")->forceActiveFocus();
        scene.part("lower")->forceActiveFocus();
        QCOMPARE(scene.part("row")->property("currentIndex").toInt(), 2);
        QVERIFY(scene.press(Qt::Key_Right));
        QCOMPARE(scene.part("row")->property("currentIndex").toInt(), 3);
    }

    void whenTheRememberedItemIsGoneTheFirstOneGetsTheFocus_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::newRow("disabled") << QByteArray("enabled");
        QTest::newRow("hidden") << QByteArray("visible");
    }

    void whenTheRememberedItemIsGoneTheFirstOneGetsTheFocus()
    {
        QFETCH(QByteArray, property);
        Scene scene;
        QVERIFY(scene.showBlocks());
        scene.part("second")->forceActiveFocus();
        scene.part("lower")->forceActiveFocus();
        scene.part("second")->setProperty(property, false);
        scene.part("upper")->forceActiveFocus();
        QCOMPARE(scene.focusItem(), scene.part("first"));
    }

    void whenTheItemInFocusGoesTheFirstOneGetsTheFocus_data()
    {
        whenTheRememberedItemIsGoneTheFirstOneGetsTheFocus_data();
    }

    void whenTheItemInFocusGoesTheFirstOneGetsTheFocus()
    {
        QFETCH(QByteArray, property);
        Scene scene;
        QVERIFY(scene.showBlocks());
        scene.part("second")->forceActiveFocus();
        scene.part("second")->setProperty(property, false);
        QCOMPARE(scene.focusItem(), scene.part("first"));
    }

    void aBlockWithoutFocusableContentKeepsTheFocus()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"title: 'Empty'; focus: true"_s));
        QCOMPARE(scene.focusItem(), scene.item.get());
    }

    void plainContentGetsTheFocusWhenThereIsNoOther()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"focus: true; Item { width: 5; height: 5; visible: false }\n"
                                "Item { objectName: 'seen'; width: 5; height: 5 }"_s));
        QCOMPARE(scene.focusItem()->objectName(), u"seen"_s);
    }

    void anItemWithinAnotherGetsTheFocus()
    {
        Scene scene;
        QVERIFY(scene.showBlock(
                u"focus: true; Item { width: 5; height: 5 }\n"
                "Item { width: 50; height: 5\n"
                "Item { objectName: 'inner'; activeFocusOnTab: true; width: 5; height: 5 } }"_s));
        QCOMPARE(scene.focusItem()->objectName(), u"inner"_s);
    }

    // --- places ---

    void theContentStandsBelowTheTitle()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"title: 'News'; titleSpacing: 7\n"
                                "Item { objectName: 'content'; width: 20; height: 31 }"_s));
        auto *content = scene.item->findChild<QQuickItem *>(u"content"_s);
        const QQuickItem *title = stbtest::findItem(scene.item.get(), "QQuickText");
        QVERIFY(content && title);
        QVERIFY(title->height() > 17);
        QCOMPARE(content->mapToItem(scene.item.get(), QPointF()), QPointF(0, title->height() + 7));
        QCOMPARE(scene.item->implicitHeight(), title->height() + 7 + 31);
    }

    void withoutTitleTheContentStandsAtTheTop()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"Item { objectName: 'content'; width: 20; height: 31 }"_s));
        auto *content = scene.item->findChild<QQuickItem *>(u"content"_s);
        QCOMPARE(content->mapToItem(scene.item.get(), QPointF()), QPointF());
        QCOMPARE(scene.item->implicitHeight(), 31);
    }

    void contentCanFillABlockOfAGivenHeight()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"height: 200; Item { objectName: 'content'; anchors.fill: parent }"_s));
        QCOMPARE(scene.item->findChild<QQuickItem *>(u"content"_s)->size(), QSizeF(301, 200));
    }

    void aBlockWithoutHeightIsAsHighAsTheContentThatDoesNotFillIt()
    {
        Scene scene; // a loop of bindings would be a warning
        QVERIFY(scene.showBlock(u"Item { objectName: 'filling'; anchors.fill: parent }"_s));
        QCOMPARE(scene.item->height(), 0);
        QVERIFY(scene.showBlock(u"Item { objectName: 'filling'; anchors.fill: parent }\n"
                                "Item { objectName: 'other'; y: 5; width: 20; height: 31 }"_s));
        QCOMPARE(scene.item->height(), 36);
        QCOMPARE(scene.item->findChild<QQuickItem *>(u"filling"_s)->height(), 36);
        scene.item->findChild<QQuickItem *>(u"other"_s)->setHeight(42);
        QCOMPARE(scene.item->height(), 47);
        QVERIFY(scene.showBlock(
                u"title: 'News'; titleSpacing: 7\n"
                "ScrolledListView { anchors.fill: parent; model: 3; delegate: Item { height: 9 } }"_s));
        const QQuickItem *title = stbtest::findItem(scene.item.get(), "QQuickText");
        QCOMPARE(scene.item->height(), title->height() + 7);
    }

    void contentMayBeBoundToTheHeightOfItsPlace()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"title: 'News'; Item { width: 20; height: parent.height }"_s));
        QVERIFY(scene.item->height() > 17);
        scene.item->setProperty("title", QString());
        scene.item->setHeight(80);
        QCOMPARE(scene.item->height(), 80);
    }

    void aBlockGrowsWithATextThatIsWrapped()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"Text { width: parent.width; wrapMode: Text.Wrap; text: 'one two three'\n"
                                "font { family: 'DejaVu Sans'; pixelSize: 17 } }"_s));
        const qreal oneLine = scene.item->height();
        QVERIFY(oneLine > 0);
        scene.item->setWidth(60);
        QVERIFY(scene.item->height() > 2 * oneLine);
        scene.item->setWidth(301);
        QCOMPARE(scene.item->height(), oneLine);
    }

    void aBlockFollowsTheHeightOfItsContent()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"Item { objectName: 'content'; width: 20; height: 31 }"_s));
        auto *content = scene.item->findChild<QQuickItem *>(u"content"_s);
        content->setHeight(53);
        QCOMPARE(scene.item->height(), 53);
        content->setHeight(17);
        QCOMPARE(scene.item->height(), 17);
        content->setVisible(false);
        content->setParentItem(nullptr);
        QCOMPARE(scene.item->height(), 0);
        content->setParentItem(scene.item.get());
    }

    void aTitleThatIsTooLongIsElided()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"title: 'The most beautiful rivers of all continents'; leftMargin: 13;"
                                "rightMargin: 29"_s));
        const QQuickItem *title = stbtest::findItem(scene.item.get(), "QQuickText");
        QCOMPARE(title->x(), 13);
        QCOMPARE(title->width(), 301 - 13 - 29);
        QCOMPARE(title->property("truncated").toBool(), true);
    }

    void markupInATitleIsShownAsItIs()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"title: '<b>1 < 2</b>'"_s));
        QCOMPARE(stbtest::findItem(scene.item.get(), "QQuickText")->property("textFormat").toInt(), 0);
    }

    void lookOfABlock_data()
    {
        QTest::addColumn<QString>("properties");
        QTest::newRow("mediablock") << u"title: 'News'"_s;
        QTest::newRow("mediablock-focused") << u"title: 'News'; focus: true"_s;
        QTest::newRow("mediablock-mirrored")
                << u"title: 'أخبار'; LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true"_s;
    }

    void lookOfABlock()
    {
        QFETCH(QString, properties);
        Scene scene;
        QVERIFY(scene.showBlock(
                properties
                        + u"; leftMargin: 23; titleColor: '#9fb0c0'; focusedTitleColor: '#ffffff'; height: 90\n"
                          "ScrolledListView { width: 640; height: 61; orientation: ListView.Horizontal; spacing: 11\n"
                          "leftMargin: 23; rightMargin: 23; model: 5\n"
                          "delegate: Rectangle { width: 101; height: 61; color: activeFocus ? 'white' : 'teal' } }"_s,
                640));
        STB_COMPARE_GOLDEN(scene.stage.picture().copy(0, 0, 640, 100),
                           QString::fromLatin1(QTest::currentDataTag()));
    }

    // --- for people who do not see it ---

    void aBlockIsAGroupWithItsTitleAsName()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"title: 'News'"_s));
        QAccessibleInterface *block = stbtest::accessible(scene.item.get());
        QVERIFY(block);
        QCOMPARE(block->role(), QAccessible::Grouping);
        QCOMPARE(block->text(QAccessible::Name), u"News"_s);
    }
};

STB_TEST_MAIN(tst_MediaBlock)
#include "tst_mediablock.moc"
