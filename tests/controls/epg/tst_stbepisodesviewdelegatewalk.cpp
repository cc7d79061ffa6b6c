// SPDX-License-Identifier: MIT
#include "episodesscene.h"
#include "testkit/propertywalk.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepisodesviewdelegate_p.h>

#include <QtCore/qtemporarydir.h>

using stbtest::PropertyWalk;

// On purpose a cell is filled once and painted once: what fills it is given to each cell at its beginning, and
// sizes, windows and states are walked over.
class tst_StbEpisodesViewDelegateWalk : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_style.setStyle(oddEpisodesStyle());
        QVERIFY(m_folder.isValid());
        QVERIFY(episodePicture().save(m_folder.filePath("still.png")));
    }

    void whatIsPaintedStepByStepIsWhatAFreshCellPaints_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("picture");
        for (const char *type : { "defaultTile", "unViewedTile", "viewedTile", "comingSoonTile" }) {
            QTest::addRow("%s with a picture", type) << type << true;
            QTest::addRow("%s without one", type) << type << false;
        }
    }
    void whatIsPaintedStepByStepIsWhatAFreshCellPaints()
    {
        QFETCH(QString, type);
        QFETCH(bool, picture);
        const QString accepted = "is accepted once";
        const QString painted = "is painted once";
        PropertyWalk walk([this]() -> std::unique_ptr<QQuickItem> { return makeEpisode(m_qml); });
        walk.stageSize(QSize(580, 190))
                .steps(100)
                .once("itemStatus", statusOf(type), accepted)
                .once("itemTitle", "The first evening of the year", painted)
                .once("itemSubtitle", QString::fromUtf8("الموسم الأول"), painted)
                .once("mediaPositionsProgressBarViewed", 20, accepted)
                .once("mediaPositionsProgressBarValue", 50, accepted)
                .once("style", QVariant::fromValue(&m_style), accepted)
                .once("listItemType", type, accepted)
                .once("imageSource", picture ? QUrl::fromLocalFile(m_folder.filePath("still.png")) : QUrl(),
                      accepted)
                .property("width", { 541, 541, 300, 0 })
                .property("height", { 131, 131, 160, 0 })
                .exclude("enabled", "a cell has no disabled state");
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 4);
    }

    // What comes later than the first frame is seen as soon as the cell is made anew.
    void aCellMadeAnewShowsWhatItsPropertiesHold()
    {
        PropertyWalk walk([this]() -> std::unique_ptr<QQuickItem> { return makeEpisode(m_qml); });
        const QString accepted = "is accepted once";
        walk.stageSize(QSize(580, 190))
                .once("style", QVariant::fromValue(&m_style), accepted)
                .once("listItemType", "unViewedTile", accepted)
                .once("itemStatus", "12 min left", accepted)
                .once("imageSource", QUrl::fromLocalFile(m_folder.filePath("still.png")), accepted)
                .once("mediaPositionsProgressBarViewed", 20, accepted)
                .once("mediaPositionsProgressBarValue", 50, accepted)
                .property("itemTitle", { "", "One", "The first evening of the year" })
                .property("itemSubtitle", { "", "Two\nthree", "Season 1, episode 3" })
                .property("width", { 541, 0, 300 })
                .property("height", { 131 })
                .exclude("enabled", "a cell has no disabled state")
                .exclude("window", "is walked over above")
                .settle([](QQuickItem *item) { remake(item); });
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 4);
    }

private:
    // Takes the cell out of its window and puts it back: it loses its nodes.
    static void remake(QQuickItem *item)
    {
        QQuickItem *parent = item->parentItem();
        item->setParentItem(nullptr);
        item->setParentItem(parent);
    }

    design_system::PlayerEpisodesItemQmlStyle m_style;
    QTemporaryDir m_folder;
    stbtest::QmlScene m_qml;
};

STB_TEST_MAIN(tst_StbEpisodesViewDelegateWalk)
#include "tst_stbepisodesviewdelegatewalk.moc"
