// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <scenegraph/childnodes.h>

#include <memory>

using namespace qml_basic_plugin;

namespace {

class NamedNode : public QSGNode
{
public:
    explicit NamedNode(char nodeName)
        : name(nodeName)
    {
    }
    ~NamedNode() override { deleted += name; }

    char name;
    static inline QByteArray deleted;
};

QByteArray childNames(QSGNode *root)
{
    QByteArray names;
    for (QSGNode *child = root->firstChild(); child; child = child->nextSibling())
        names += static_cast<NamedNode *>(child)->name;
    return names;
}

auto maker(char name)
{
    return [name](QSGNode *root, QSGNode *before) {
        auto *node = new NamedNode(name);
        if (before)
            root->insertChildNodeBefore(node, before);
        else
            root->appendChildNode(node);
        return node;
    };
}

} // namespace

class tst_ChildNodes : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void everyComingAndGoingKeepsTheOrder_data()
    {
        QTest::addColumn<int>("former");
        QTest::addColumn<int>("wanted");
        for (int former = 0; former < 16; ++former) {
            for (int wanted = 0; wanted < 16; ++wanted)
                QTest::addRow("%d to %d", former, wanted) << former << wanted;
        }
    }
    void everyComingAndGoingKeepsTheOrder()
    {
        QFETCH(int, former);
        QFETCH(int, wanted);
        NamedNode root('r');
        bool present[4] = {};
        const auto walk = [&](int mask) {
            ChildNodes children(&root);
            for (int i = 0; i < 4; ++i)
                children.place<NamedNode>(mask & (1 << i), present[i], maker(char('a' + i)));
            return children.last();
        };
        walk(former);
        root.appendChildNode(new NamedNode('x')); // a derived class's node
        QSGNode *last = walk(wanted);

        QByteArray expected;
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(present[i], bool(wanted & (1 << i)));
            if (present[i])
                expected += char('a' + i);
        }
        QCOMPARE(last ? static_cast<NamedNode *>(last)->name : '-',
                 expected.isEmpty() ? '-' : expected.back());
        QCOMPARE(childNames(&root), expected + 'x');
    }

    void aNodeThatStaysIsTheSameNodeAndOneThatGoesIsDeleted()
    {
        NamedNode root('r');
        bool a = false;
        bool b = false;
        ChildNodes first(&root);
        first.place<NamedNode>(true, a, maker('a'));
        QVERIFY(first.created());
        NamedNode *made = first.place<NamedNode>(true, b, maker('b'));

        NamedNode::deleted.clear();
        ChildNodes second(&root);
        QVERIFY(!second.place<NamedNode>(false, a, maker('a')));
        QVERIFY(!second.created());
        QCOMPARE(second.place<NamedNode>(true, b, maker('b')), made);
        QVERIFY(!second.created());
        QCOMPARE(NamedNode::deleted, "a");
    }

    void nextStepsOverNodesThatAreAlwaysThere()
    {
        NamedNode root('r');
        root.appendChildNode(new NamedNode('1'));
        root.appendChildNode(new NamedNode('2'));
        bool a = false;
        ChildNodes children(&root);
        QCOMPARE(children.next<NamedNode>()->name, '1');
        children.place<NamedNode>(true, a, maker('a'));
        QCOMPARE(children.next<NamedNode>()->name, '2');
        QCOMPARE(childNames(&root), "1a2");
    }

    void aDerivedClassWalksBehindTheLastNodeOfItsBase()
    {
        NamedNode root('r');
        root.appendChildNode(new NamedNode('1'));
        root.appendChildNode(new NamedNode('2'));
        bool a = false;
        bool b = false;
        ChildNodes none(&root, root.lastChild());
        QCOMPARE(none.last(), root.lastChild());
        none.place<NamedNode>(true, b, maker('b'));
        ChildNodes children(&root, root.childAtIndex(1));
        children.place<NamedNode>(true, a, maker('a'));
        children.place<NamedNode>(true, b, maker('b'));
        QCOMPARE(childNames(&root), "12ab");
        QCOMPARE(children.last(), root.lastChild());
    }

    void flagsThatOutlivedTheirRootDoNoHarm()
    {
        bool a = true;
        bool b = true;
        NamedNode root('r');
        ChildNodes children(&root);
        QVERIFY(!children.place<NamedNode>(false, a, maker('a')));
        QVERIFY(children.place<NamedNode>(true, b, maker('b')));
        QVERIFY(children.created());
        QVERIFY(!a);
        QCOMPARE(childNames(&root), "b");
    }
};

STB_TEST_MAIN(tst_ChildNodes)
#include "tst_childnodes.moc"
