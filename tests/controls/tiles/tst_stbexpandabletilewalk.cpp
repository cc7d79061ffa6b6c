// SPDX-License-Identifier: MIT
#include "testkit/propertywalk.h"
#include "testkit/testcase.h"
#include "tilescene.h"

#include <QtQuick/private/qquickpixmapcache_p.h>

namespace {

using StyleObject = design_system::TileQmlStyle;

} // namespace

// Pictures that Qt Quick holds in memory are there at once: every change of the source swaps one in one frame.
class tst_StbExpandableTileWalk : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_settings.setValue("Animations", "fadeEffectEnabled", false);
        m_first.setStyle(oddTileStyle());
        design_system::TileStyle second = otherTileStyle();
        second.overlayColor = oddTileStyle().overlayColor;
        second.borderPen = oddTileStyle().borderPen;
        m_second.setStyle(second);
        second.overlayColor = QColor();
        second.borderPen = QPen(QBrush(QColor()), 0);
        m_frameless.setStyle(second);
    }

    void aMovedAndResizedTileIsPaintedAsAFreshOne()
    {
        stbtest::PropertyWalk walk([this] { return makeTile(); });
        declare(walk);
        walk.once("style", QVariant::fromValue(&m_first), "a new style writes width and focus rectangle")
                .property("customFocusRect", { QRect(0, 0, 201, 113), QRect(-23, -17, 253, 161), QRect(),
                                               QRect(5, 7, 100, 50), QRect(-3, 9, 31, 77) })
                .property("width", { 0, 1, 201, 77.5 });
        run(walk);
    }

    void aTileOfAnotherStyleIsPaintedAsAFreshOne()
    {
        stbtest::PropertyWalk walk([this] { return makeTile(); });
        declare(walk);
        walk.property("style", { QVariant::fromValue(&m_first), QVariant::fromValue(&m_second),
                                 QVariant::fromValue(&m_frameless), QVariant() })
                .exclude("customFocusRect", "a new style writes it")
                .exclude("width", "a new style writes it");
        run(walk);
    }

private:
    std::unique_ptr<QQuickItem> makeTile()
    {
        return m_qml.createItem<StbExpandableTile>("import Stbui.UI.Qml.Controls.Basic\nExpandableTile {}");
    }

    static void declare(stbtest::PropertyWalk &walk)
    {
        walk.stageSize(QSize(320, 240))
                .property("imageSource", { QUrl(), QUrl("itemgrabber:fields"), QUrl("itemgrabber:red") })
                .property("itemBackgroundColor", { QColor(), QColor(99, 1, 7), QColor(9, 99, 7, 99) })
                .exclude("enabled", "a tile has no disabled state")
                // A background colour alone schedules no repaint, on purpose.
                .settle([](QQuickItem *tile) { tile->update(); });
    }

    static void run(stbtest::PropertyWalk &walk)
    {
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 4);
    }

    stbtest::MemoryConfiguration m_settings;
    stbtest::QmlScene m_qml;
    const QQuickPixmap m_fields { QUrl("itemgrabber:fields"), fieldsPicture() };
    const QQuickPixmap m_red { QUrl("itemgrabber:red"), plainPicture(QColor(255, 0, 0, 99), QSize(3, 5)) };
    StyleObject m_first;
    StyleObject m_second;
    StyleObject m_frameless;
};

STB_TEST_MAIN(tst_StbExpandableTileWalk)
#include "tst_stbexpandabletilewalk.moc"
