// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "viewscene.h"

using namespace Qt::StringLiterals;

namespace {

// What a row of the model looks like.
const QString fields = u"FocusScope { objectName: 'field' + modelData; width: 50; height: 40 }"_s;
const QString tabs = u"TabButton { objectName: 'field' + modelData; text: modelData }"_s;
const QString plain =
        u"Rectangle { objectName: 'field' + modelData; activeFocusOnTab: true; width: 9; height: 9 }"_s;
const QString lists = u"ScrolledListView { objectName: 'field' + modelData; width: 50; height: 40; model: 3\n"
                      "delegate: Item { width: 9; height: 9 } }"_s;
// The first field in a row is the one that is asked for.
const QString pairs = u"Row { FocusScope { objectName: 'field' + modelData; width: 50; height: 40 }\n"
                      "FocusScope { width: 50; height: 40 } }"_s;

struct Scene : stbtest::ViewScene
{
    /*! A block with a \a delegate for each of the numbers 1 to 3, and a field elsewhere. */
    bool showRows(const QString &delegate)
    {
        return show(u"FocusScope { focus: true; width: 640; height: 360\n"
                    "property alias block: block; property alias rows: rows; property alias model: numbers\n"
                    "function remove(index, count) { numbers.remove(index, count) }\n"
                    "function append(number) { numbers.append({ modelData: number }) }\n"
                    "ListModel { id: numbers; ListElement { modelData: 1 } ListElement { modelData: 2 }\n"
                    "ListElement { modelData: 3 } }\n"
                    "FocusScope { objectName: 'other'; width: 9; height: 9 }\n"
                    "MediaBlock { id: block; width: 640; height: 200\n"
                    "Row { Repeater { id: rows; model: numbers; delegate: "_s
                    + delegate + u"} } } }"_s);
    }

    void remove(int index, int count = 1)
    {
        QVERIFY(QMetaObject::invokeMethod(item.get(), "remove", Q_ARG(QVariant, index),
                                          Q_ARG(QVariant, count)));
        stage.renderFrame();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        stage.renderFrame();
    }
    void append(int number)
    {
        QVERIFY(QMetaObject::invokeMethod(item.get(), "append", Q_ARG(QVariant, number)));
        stage.renderFrame();
    }

    QQuickItem *part(const char *name) const { return item->property(name).value<QQuickItem *>(); }
    QQuickItem *block() const { return part("block"); }
    /*! The item with this objectName, which a Repeater may have made. */
    QQuickItem *named(const QString &name) const { return named(item.get(), name); }
    QString focused() const
    {
        for (const QQuickItem *it = focusItem(); it; it = it->parentItem()) {
            if (!it->objectName().isEmpty())
                return it->objectName();
        }
        return {};
    }

    /*! An empty block that has the focus, with this \a content. */
    bool showBlock(const QString &content)
    {
        return show(u"MediaBlock { objectName: 'block'; width: 640; height: 200; focus: true\n"_s + content
                    + u"}"_s);
    }
    /*! Sets a property of the object with this objectName and shows what comes of it. */
    void change(const char *name, const char *property, const QVariant &value)
    {
        QObject *object = item->findChild<QObject *>(QLatin1String(name));
        QVERIFY(object);
        QVERIFY(object->setProperty(property, value));
        stage.renderFrame();
        stage.renderFrame(); // a view makes its items in the first one
    }

private:
    static QQuickItem *named(QQuickItem *root, const QString &name)
    {
        const QList<QQuickItem *> children = root->childItems();
        for (QQuickItem *child : children) {
            if (child->objectName() == name)
                return child;
            if (QQuickItem *found = named(child, name))
                return found;
        }
        return nullptr;
    }
};

} // namespace

class tst_MediaBlockFocus : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    // --- an item that goes ---

    void whenTheItemInFocusIsRemovedAnotherGetsTheFocus_data()
    {
        QTest::addColumn<QString>("delegate");
        QTest::addColumn<int>("removed"); // from 1
        QTest::addColumn<QString>("next");
        const std::pair<const char *, QString> delegates[] = {
            { "field", fields }, { "tab", tabs }, { "plain", plain }, { "list", lists }, { "pair", pairs }
        };
        for (const auto &[name, delegate] : delegates) {
            QTest::addRow("first %s", name) << delegate << 1 << u"field2"_s;
            QTest::addRow("middle %s", name) << delegate << 2 << u"field1"_s;
            QTest::addRow("last %s", name) << delegate << 3 << u"field1"_s;
        }
    }

    void whenTheItemInFocusIsRemovedAnotherGetsTheFocus()
    {
        QFETCH(QString, delegate);
        QFETCH(int, removed);
        QFETCH(QString, next);
        Scene scene;
        QVERIFY(scene.showRows(delegate));
        scene.named(u"field%1"_s.arg(removed))->forceActiveFocus();
        QCOMPARE(scene.focused(), u"field%1"_s.arg(removed));
        scene.remove(removed - 1);
        QCOMPARE(scene.focused(), next);
    }

    void whenAllItemsAreRemovedTheBlockWaitsForNewOnes_data()
    {
        QTest::addColumn<QString>("delegate");
        QTest::newRow("fields") << fields;
        QTest::newRow("tabs") << tabs;
        QTest::newRow("plain items") << plain;
        QTest::newRow("lists") << lists;
        QTest::newRow("pairs") << pairs;
    }

    void whenAllItemsAreRemovedTheBlockWaitsForNewOnes()
    {
        QFETCH(QString, delegate);
        Scene scene;
        QVERIFY(scene.showRows(delegate));
        scene.named(u"field2"_s)->forceActiveFocus();
        scene.remove(0, 3);
        QVERIFY(scene.block()->hasActiveFocus());
        scene.append(7);
        scene.append(8);
        QCOMPARE(scene.focused(), u"field7"_s);
    }

    void aModelThatIsResetKeepsTheFocusInTheBlock()
    {
        Scene scene;
        QVERIFY(scene.showRows(fields));
        scene.named(u"field1"_s)->forceActiveFocus();
        QObject *rows = scene.item->property("rows").value<QObject *>();
        QVERIFY(rows->setProperty("model", QStringList { u"8"_s, u"9"_s }));
        scene.stage.renderFrame();
        QCOMPARE(scene.focused(), u"field8"_s);
    }

    void anItemThatIsDestroyedLeavesTheFocusToAnother()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"FocusScope { objectName: 'a'; width: 9; height: 9 }\n"
                                "FocusScope { objectName: 'b'; width: 9; height: 9 }"_s));
        QCOMPARE(scene.focused(), u"a"_s);
        delete scene.named(u"a"_s);
        scene.stage.renderFrame();
        QCOMPARE(scene.focused(), u"b"_s);
    }

    void anItemThatIsRemovedElsewhereMovesNothing()
    {
        Scene scene;
        QVERIFY(scene.showRows(fields));
        scene.named(u"field3"_s)->forceActiveFocus();
        scene.remove(0);
        QCOMPARE(scene.focused(), u"field3"_s);
    }

    void aBlockThatIsHiddenRemembersItsFocus()
    {
        Scene scene;
        QVERIFY(scene.showRows(fields));
        scene.named(u"field2"_s)->forceActiveFocus();
        scene.block()->setVisible(false);
        scene.stage.renderFrame();
        scene.named(u"other"_s)->forceActiveFocus();
        scene.block()->setVisible(true);
        scene.block()->forceActiveFocus();
        QCOMPARE(scene.focused(), u"field2"_s);
    }

    // --- an item that comes ---

    void contentThatComesLaterGetsTheFocus_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        const QString list = u"ScrolledListView { objectName: 'late'; width: 600; height: 50\n"
                             "orientation: ListView.Horizontal; delegate: Item { width: 9; height: 9 }\n"_s;
        QTest::newRow("a list that is shown when it has items")
                << list + u"model: 0; visible: count > 0 }"_s << QByteArray("model") << QVariant(5);
        QTest::newRow("an item that is shown") << u"FocusScope { objectName: 'late'; width: 9; height: 9\n"
                                                  "visible: false }"_s
                                               << QByteArray("visible") << QVariant(true);
        QTest::newRow("one beside a plain item")
                << u"Item { width: 9; height: 9 }\n"
                   "Item { width: 9; height: 9; FocusScope { objectName: 'late'; width: 9; height: 9\n"
                   "visible: false } }"_s
                << QByteArray("visible") << QVariant(true);
        QTest::newRow("an item that is enabled") << u"FocusScope { objectName: 'late'; width: 9; height: 9\n"
                                                    "enabled: false }"_s
                                                 << QByteArray("enabled") << QVariant(true);
        QTest::newRow("an item that gets a width")
                << u"FocusScope { objectName: 'late'; height: 9 }"_s << QByteArray("width") << QVariant(9);
        QTest::newRow("an item that gets a height")
                << u"FocusScope { objectName: 'late'; width: 9 }"_s << QByteArray("height") << QVariant(9);
        QTest::newRow("an item that takes the focus by tab now")
                << u"Item { width: 5; height: 5 }\nItem { objectName: 'late'; width: 9; height: 9 }"_s
                << QByteArray("activeFocusOnTab") << QVariant(true);
    }

    void contentThatComesLaterGetsTheFocus()
    {
        QFETCH(QString, content);
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        Scene scene;
        QVERIFY(scene.showBlock(content));
        QVERIFY(scene.focused() != u"late"_s);
        scene.change("late", property, value);
        QCOMPARE(scene.focused(), u"late"_s);
    }

    void itemsOfARepeaterThatComeLaterGetTheFocus()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"Row { Repeater { objectName: 'repeater'; model: 0\n"
                                "FocusScope { objectName: 'late'; width: 9; height: 9 } } }"_s));
        QCOMPARE(scene.focused(), u"block"_s);
        scene.change("repeater", "model", 2);
        QCOMPARE(scene.focused(), u"late"_s);
    }

    void anItemThatIsHiddenAndShownAgainGetsTheFocusBack()
    {
        Scene scene;
        QVERIFY(scene.showBlock(
                u"Row { height: 9; FocusScope { objectName: 'only'; width: 9; height: 9 } }"_s));
        scene.change("only", "visible", false);
        scene.change("only", "visible", true);
        QCOMPARE(scene.focused(), u"only"_s);
        QVERIFY(scene.focusItem()->isVisible());
    }

    void theContentOfALoaderGetsTheFocus_data()
    {
        QTest::addColumn<QString>("focus");
        QTest::newRow("content that asks for it") << u"focus: true"_s;
        QTest::newRow("content that does not") << u"focus: false"_s;
    }

    void theContentOfALoaderGetsTheFocus()
    {
        QFETCH(QString, focus);
        Scene scene;
        QVERIFY(scene.showBlock(u"Loader { objectName: 'loader'; sourceComponent: FocusScope { "_s + focus
                                + u"; objectName: 'loaded'; width: 9; height: 9 } }"_s));
        QCOMPARE(scene.focused(), u"loaded"_s);
        scene.change("loader", "active", false);
        QVERIFY(scene.item->hasActiveFocus());
        QVERIFY(scene.focused() != u"loaded"_s);
        scene.change("loader", "active", true);
        QCOMPARE(scene.focused(), u"loaded"_s);
    }

    void whatTheApplicationChoseKeepsTheFocus()
    {
        Scene scene;
        QVERIFY(scene.showBlock(u"Item { objectName: 'chosen'; width: 9; height: 9 }\n"
                                "Item { width: 9; height: 9 }\n"
                                "FocusScope { objectName: 'late'; width: 9; height: 9 }"_s));
        QCOMPARE(scene.focused(), u"late"_s);
        scene.named(u"chosen"_s)->forceActiveFocus();
        scene.change("late", "visible", false);
        scene.change("late", "visible", true);
        QCOMPARE(scene.focused(), u"chosen"_s);
    }

    void contentThatComesToABlockWithoutFocusTakesNone()
    {
        Scene scene;
        QVERIFY(scene.showRows(fields));
        scene.block()->forceActiveFocus();
        scene.remove(0, 3);
        scene.named(u"other"_s)->forceActiveFocus();
        scene.append(5);
        QCOMPARE(scene.focused(), u"other"_s);
        scene.block()->forceActiveFocus();
        QCOMPARE(scene.focused(), u"field5"_s);
    }
};

STB_TEST_MAIN(tst_MediaBlockFocus)
#include "tst_mediablockfocus.moc"
