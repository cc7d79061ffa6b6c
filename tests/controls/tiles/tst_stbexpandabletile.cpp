// SPDX-License-Identifier: MIT
#include "testkit/qmlscene.h"
#include "testkit/testcase.h"
#include "tilestyles.h"

#include <controls/tiles/stbexpandabletile.h>

class tst_StbExpandableTile : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshTileHasTheDefaults()
    {
        StbExpandableTile tile;
        QVERIFY(!tile.style());
        QVERIFY(tile.imageSource().isEmpty());
        QVERIFY(!tile.backgroundColor().isValid());
        QCOMPARE(tile.customFocusRect(), QRect());
        QVERIFY(tile.flags() & QQuickItem::ItemHasContents);
    }
    void theElementIsRegistered()
    {
        stbtest::QmlScene scene;
        QVERIFY(scene.createItem<StbExpandableTile>("import Stbui.UI.Qml.Controls.Basic\nExpandableTile {}"));
    }
};

STB_TEST_MAIN(tst_StbExpandableTile)
#include "tst_stbexpandabletile.moc"
