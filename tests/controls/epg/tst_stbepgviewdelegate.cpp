// SPDX-License-Identifier: MIT
#include "epgstyles.h"
#include "testkit/counters.h"
#include "testkit/nodes.h"
#include "testkit/pictures.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"
#include "testkit/testcase.h"
#include "testkit/texts.h"

#include <controls/epg/stbepgviewdelegate.h>
#include <controls/epg/stbepgviewdelegate_p.h>
#include <controls/epg/stbepgviewdelegatelayout.h>

#include <QtQuick/qsgrectanglenode.h>
#include <QtTest/qsignalspy.h>

using Style = design_system::PlayerEpgDelegateStyle;
using StyleObject = design_system::PlayerEpgDelegateQmlStyle;
using stbtest::NodeInfo;
using stbtest::Stage;

namespace {

// A stage with one row on a coloured ground.
struct Scene
{
    Scene()
    {
        style.setStyle(oddEpgStyle());
        row.setParentItem(stage.contentItem());
        row.setPosition(QPointF(20, 30));
        row.setWidth(560);
    }

    void fill()
    {
        row.setStyle(&style);
        row.setStartTimeText("20:05");
        row.setTitle("Evening news");
        row.setSubtitle("With the weather");
    }
    QList<NodeInfo> children() { return stbtest::childNodes(stbtest::paintNode(&row)); }

    Stage stage { QSize(640, 300), QColor(0, 60, 40) };
    StyleObject style;
    StbEpgViewDelegate row;
};

} // namespace

class tst_StbEpgViewDelegate : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshRowHasTheDefaults()
    {
        StbEpgViewDelegate row;
        QVERIFY(!row.style());
        QVERIFY(row.title().isEmpty());
        QVERIFY(row.subtitle().isEmpty());
        QVERIFY(row.startTimeText().isEmpty());
        QVERIFY(!row.isLive());
        QVERIFY(!row.isFuture());
        QVERIFY(!row.isPlayable());
        QVERIFY(row.flags() & QQuickItem::ItemHasContents);
        QCOMPARE(row.height(), 0);
    }

    void everyPropertyStoresAndSignalsOnce_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *property, const char *signal, const QVariant &value) {
            QTest::newRow(property) << QByteArray(property) << QByteArray(signal) << value;
        };
        row("itemTitle", "titleChanged", "a");
        row("itemSubtitle", "subtitleChanged", "b");
        row("tvProgramStartTimeText", "startTimeTextChanged", "c");
        row("tvProgramIsLive", "liveChanged", true);
        row("tvProgramIsFuture", "futureChanged", true);
        row("tvProgramPlayable", "playableChanged", true);
    }
    void everyPropertyStoresAndSignalsOnce()
    {
        QFETCH(QByteArray, property);
        QFETCH(QByteArray, signal);
        QFETCH(QVariant, value);
        Scene scene;
        scene.row.setStyle(&scene.style);
        const QMetaObject *meta = scene.row.metaObject();
        const QMetaProperty metaProperty = meta->property(meta->indexOfProperty(property));
        QCOMPARE(metaProperty.notifySignal().name(), signal);
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        for (const char *name : { "styleChanged", "titleChanged", "subtitleChanged", "startTimeTextChanged",
                                  "liveChanged", "futureChanged", "playableChanged" })
            spies.push_back(
                    std::make_unique<QSignalSpy>(&scene.row, QByteArray('2' + QByteArray(name) + "()")));
        const auto emitted = [&] {
            QByteArrayList names;
            for (const auto &spy : spies)
                names.insert(names.size(), spy->count(), spy->signal().chopped(2));
            return names;
        };
        QVERIFY(scene.row.setProperty(property, value));
        QCOMPARE(emitted(), QByteArrayList { signal });
        QCOMPARE(scene.row.property(property), value);
        QVERIFY(scene.row.setProperty(property, value));
        QCOMPARE(emitted(), QByteArrayList { signal });
    }

    void theStyleIsStoredSignalledAndResettable()
    {
        Scene scene;
        QSignalSpy changed(&scene.row, &StbEpgViewDelegate::styleChanged);
        scene.row.setStyle(&scene.style);
        scene.row.setStyle(&scene.style);
        QCOMPARE(changed.count(), 1);
        const QMetaProperty property = scene.row.metaObject()->property(
                scene.row.metaObject()->indexOfProperty("style"));
        QVERIFY(property.isResettable());
        QVERIFY(property.reset(&scene.row));
        QVERIFY(!scene.row.style());
        QCOMPARE(changed.count(), 2);
    }

    void withoutStyleOrWidthTheRowKeepsItsHeightAndPaintsNothing()
    {
        Scene scene;
        scene.row.setHeight(77);
        scene.row.setTitle("Evening news");
        scene.stage.renderFrame();
        QCOMPARE(scene.row.height(), 77);
        QVERIFY(!stbtest::paintNode(&scene.row));

        scene.row.setWidth(0);
        scene.row.setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(scene.row.height(), 77);
        QVERIFY(!stbtest::paintNode(&scene.row));
    }

    void aRowOfHeightZeroPaintsNothing()
    {
        Scene scene;
        scene.row.setStyle(&scene.style);
        QCOMPARE(scene.row.height(), 0);
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(&scene.row));
    }

    void theHeightIsTheLowestInclusiveCorner()
    {
        Scene scene;
        scene.fill();
        const Style style = oddEpgStyle();
        const int title = stbtest::textExtent(style.titleTextStyle, "Evening news", 417).height();
        const int subtitle = stbtest::textExtent(style.subtitleTextStyle, "With the weather", 417).height();
        QCOMPARE(scene.row.height(), (title - 1) + 7 + (subtitle - 1));
    }

    void theTitleMayTakeTwoLinesOfThePreviewWidth()
    {
        Scene scene;
        scene.fill();
        const QString text = "The long evening news of this and of the other day";
        scene.row.setTitle(text);
        scene.stage.renderFrame();
        const QRect expected = stbtest::textExtent(oddEpgStyle().titleTextStyle, text, 417);
        QCOMPARE(scene.children()[1].rect, QRectF(131, 0, expected.width(), expected.height()));
        QVERIFY(expected.height() > stbtest::textExtent(oddEpgStyle().titleTextStyle, "x", 417).height());
    }

    void theStartTimeIsBoundedByItsOwnRectangle()
    {
        Scene scene;
        scene.fill();
        scene.row.setStartTimeText("20:05 in the evening");
        scene.stage.renderFrame();
        const QRect expected = stbtest::textExtent(oddEpgStyle().startTimeTextStyle, "20:05 in the evening",
                                                   113);
        QVERIFY(expected.width() <= 113);
        QCOMPARE(scene.children()[0].rect, QRectF(expected));
    }

    void theNodesStandInTheirOrder()
    {
        Scene scene;
        const NowInLive translator("LIVE");
        scene.fill();
        scene.stage.renderFrame();
        const QList<NodeInfo> plain = scene.children();
        QCOMPARE(plain.size(), 3);
        for (const NodeInfo &node : plain)
            QCOMPARE(node.type, "Image");
        const NodeInfo root = stbtest::nodeTree(stbtest::paintNode(&scene.row)).first();
        QCOMPARE(root.type, "Rectangle");
        QCOMPARE(root.color, QColor(Qt::transparent));
        QCOMPARE(root.rect, QRectF(0, 0, 560, scene.row.height()));

        scene.row.setLive(true);
        scene.stage.renderFrame();
        const QList<NodeInfo> live = scene.children();
        QCOMPARE(live.size(), 4);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(live[i].node, plain[i].node); // used again
        QCOMPARE(live[3].type, "Rectangle");
        QCOMPARE(live[3].color, QColor(171, 11, 31));
        const QList<NodeInfo> badge = stbtest::childNodes(live[3].node);
        QCOMPARE(badge.size(), 2);
        QVERIFY(stbtest::isPaintedIn(badge[0].pixmap, QColor(251, 241, 231))); // the label lies below the icon
        QCOMPARE(badge[1].pixmap.size(), QSize(15, 13));
    }

    void theLiveBadgeLiesAboveTheTextsAndGoesAgain()
    {
        Scene scene;
        const NowInLive translator("LIVE");
        scene.fill();
        const qreal plainHeight = scene.row.height();
        scene.row.setLive(true);
        scene.stage.renderFrame();
        const QRect label = stbtest::textExtent(oddEpgStyle().liveTextStyle, "LIVE", 417);
        const QSize icon(15, 13); // of the test's own resource
        const int badgeHeight = 10 + qMax(label.height(), icon.height());
        const QList<NodeInfo> live = scene.children();
        QCOMPARE(live[3].rect, QRectF(131, 3, label.width() + icon.width() + 10 + 9, badgeHeight));
        QCOMPARE(live[1].rect.top(), 3 + badgeHeight + 11);
        QCOMPARE(scene.row.height(), plainHeight + 3 + badgeHeight + 11);

        scene.row.setLive(false);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 3);
        QCOMPARE(scene.row.height(), plainHeight);
    }

    void anInvalidColourPaintsNothing()
    {
        const NowInLive translator("LIVE");
        Style colourless = oddEpgStyle();
        colourless.liveBadgeColor = QColor();
        StyleObject object;
        object.setStyle(colourless);
        for (const bool late : { false, true }) {
            Scene scene;
            scene.fill();
            scene.row.setLive(true);
            if (late)
                scene.stage.renderFrame();
            scene.row.setStyle(&object);
            scene.stage.renderFrame();
            QCOMPARE(scene.children().size(), 4);
            const QPoint corner = scene.children()[3].rect.topLeft().toPoint() + QPoint(20, 30);
            QCOMPARE(scene.stage.picture().pixelColor(corner), QColor(0, 60, 40));
        }
    }

    void coloursFollowTheState_data()
    {
        QTest::addColumn<bool>("live");
        QTest::addColumn<bool>("playable");
        QTest::addColumn<QColor>("startTime");
        QTest::addColumn<QColor>("title");
        const QColor liveColor(241, 31, 51);
        const QColor unavailable(101, 103, 107);
        const QColor playable(211, 213, 217);
        QTest::newRow("neither") << false << false << unavailable << unavailable;
        QTest::newRow("playable") << false << true << playable << playable;
        QTest::newRow("live") << true << false << liveColor << playable;
        QTest::newRow("live and playable") << true << true << liveColor << playable;
    }
    void coloursFollowTheState()
    {
        QFETCH(bool, live);
        QFETCH(bool, playable);
        QFETCH(QColor, startTime);
        QFETCH(QColor, title);
        Scene scene;
        scene.fill();
        scene.row.setLive(live);
        scene.row.setPlayable(playable);
        scene.stage.renderFrame();
        const QList<NodeInfo> nodes = scene.children();
        QVERIFY(stbtest::isPaintedIn(nodes[0].pixmap, startTime));
        QVERIFY(stbtest::isPaintedIn(nodes[1].pixmap, title));
        QVERIFY(stbtest::isPaintedIn(nodes[2].pixmap, QColor(91, 191, 111)));
    }

    void anEmptyTitleGivesItsPlaceToTheSubtitle()
    {
        Scene scene;
        scene.fill();
        scene.row.setTitle(QString());
        scene.stage.renderFrame();
        const QRect subtitle = stbtest::textExtent(oddEpgStyle().subtitleTextStyle, "With the weather", 417);
        QCOMPARE(scene.children()[2].rect, QRectF(131, 0, subtitle.width(), subtitle.height()));
        QVERIFY(scene.children()[1].rect.isEmpty());
    }

    void aTextThatBecomesEmptyLeavesNoHole()
    {
        Scene scene;
        scene.row.setStyle(&scene.style);
        scene.row.setSubtitle("With the weather");
        scene.stage.renderFrame();
        const QImage before = scene.stage.picture();
        const qreal heightBefore = scene.row.height();
        scene.row.setStartTimeText("20:05");
        scene.row.setTitle("Evening news");
        scene.stage.renderFrame();
        QVERIFY(scene.stage.picture() != before);
        scene.row.setStartTimeText(QString());
        scene.row.setTitle(QString());
        scene.stage.renderFrame();
        QCOMPARE(scene.row.height(), heightBefore);
        QCOMPARE(scene.stage.picture(), before);
        scene.row.setSubtitle(QString());
        scene.stage.renderFrame();
        QImage ground = before;
        ground.fill(QColor(0, 60, 40));
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), ground).pixels, 0);
    }

    void tvProgramIsFutureNeverMeasuresAnything()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        QSignalSpy height(&scene.row, &QQuickItem::heightChanged);
        scene.row.setHeight(200); // a relayout would write its own height back
        QCOMPARE(height.count(), 1);
        scene.row.setFuture(true);
        scene.row.setPlayable(true);
        QCOMPARE(height.count(), 1);
        scene.row.setSubtitle("And the sports");
        QCOMPARE(height.count(), 2);
    }

    void tvProgramIsFutureAsksForAFrame()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        QVERIFY(!scene.stage.wantsFrame());
        scene.row.setFuture(true); // a derived row paints it
        QVERIFY(scene.stage.wantsFrame());
    }

    void theSignalComesBeforeTheNewLayout()
    {
        Scene scene;
        scene.row.setStyle(&scene.style);
        qreal height = -1;
        QString title;
        connect(&scene.row, &StbEpgViewDelegate::titleChanged, &scene.row, [&] {
            height = scene.row.height();
            title = scene.row.title();
        });
        scene.row.setTitle("Evening news");
        QCOMPARE(height, 0);
        QCOMPARE(title, "Evening news");
        QVERIFY(scene.row.height() > 0);
    }

    void theLiveLabelIsBoundedByThePreviewWidth()
    {
        Scene scene;
        const NowInLive translator(
                "A label that is much longer than any label of a badge ought to be in any language");
        scene.fill();
        scene.row.setLive(true);
        scene.stage.renderFrame();
        const qreal width = stbtest::childNodes(scene.children()[3].node)[0].rect.width();
        QVERIFY(width > 300);
        QVERIFY(width <= 417);
    }

    void aTextChangedTwiceInAFrameLeavesNothingBehind()
    {
        Scene scene;
        scene.row.setStyle(&scene.style);
        scene.row.setTitle("Evening news");
        scene.stage.renderFrame();
        const QImage without = scene.stage.picture();
        scene.row.setSubtitle("Sports");
        scene.row.setSubtitle("Weather");
        scene.stage.renderFrame();
        scene.row.setSubtitle("Sports");
        scene.row.setSubtitle(QString());
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), without);
    }

    void aHandlerMayChangeTheRowWhileItIsLaidOut()
    {
        Scene scene;
        int changes = 0;
        connect(&scene.row, &QQuickItem::heightChanged, &scene.row, [&] {
            if (++changes == 1) {
                scene.row.setSubtitle("Of the whole week");
                scene.row.setWidth(550);
            }
        });
        scene.fill();
        scene.row.setSubtitle("Of the whole week");
        scene.stage.renderFrame();
        Scene fresh;
        fresh.fill();
        fresh.row.setSubtitle("Of the whole week");
        fresh.row.setWidth(550);
        fresh.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
        QCOMPARE(scene.row.height(), fresh.row.height());
    }

    void aStyleThatWasReplacedMayDieUnnoticed()
    {
        Scene scene;
        auto former = std::make_unique<StyleObject>();
        former->setStyle(otherEpgStyle());
        scene.row.setStyle(former.get());
        scene.row.setStyle(&scene.style);
        QSignalSpy changed(&scene.row, &StbEpgViewDelegate::styleChanged);
        former.reset();
        QCOMPARE(changed.count(), 0);
        QCOMPARE(scene.row.style(), &scene.style);
    }

    void aWidthThatComesFromABindingMeasuresToo()
    {
        stbtest::QmlScene qml;
        Stage stage;
        const auto item = qml.createItem("import QtQuick\n"
                                         "import Stbui.UI.Qml.Controls.Basic\n"
                                         "Item { id: list; property EpgViewDelegate row: row\n"
                                         "  EpgViewDelegate { id: row; width: list.width - 17\n"
                                         "                    itemTitle: 'Evening news' } }",
                                         stage.contentItem());
        QVERIFY(item);
        auto *row = item->property("row").value<StbEpgViewDelegate *>();
        QVERIFY(row);
        StyleObject style;
        style.setStyle(oddEpgStyle());
        row->setStyle(&style);
        QCOMPARE(row->height(), 0);
        item->setWidth(300);
        QCOMPARE(row->height(),
                 stbtest::textExtent(oddEpgStyle().titleTextStyle, "Evening news", 417).height() - 1);
    }

    void aWidthOfZeroDropsThePictureAndAWidthBringsItBack()
    {
        Scene scene;
        scene.fill();
        scene.row.setLive(true);
        scene.stage.renderFrame();
        const QImage before = scene.stage.picture();
        const qreal height = scene.row.height();
        scene.row.setWidth(0);
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(&scene.row));
        QCOMPARE(scene.row.height(), height);
        scene.row.setWidth(560);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), before);
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        const NowInLive translator("LIVE");
        scene.fill();
        scene.row.setLive(true);
        scene.stage.renderFrame();
        Stage other(scene.stage.size(), QColor(0, 60, 40));
        scene.row.setParentItem(other.contentItem());
        other.renderFrame();
        QCOMPARE(other.picture(), scene.stage.picture());
        scene.stage.renderFrame();
        scene.row.setParentItem(scene.stage.contentItem());
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), other.picture());
    }

    void aNullStyleAndAStyleThatDiesTakeThePictureAway()
    {
        Scene scene;
        scene.stage.renderFrame();
        const QImage ground = scene.stage.picture();
        scene.fill();
        scene.stage.renderFrame();
        const QImage painted = scene.stage.picture();
        QVERIFY(painted != ground);
        scene.row.setStyle(nullptr);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), ground);

        auto style = std::make_unique<StyleObject>();
        style->setStyle(oddEpgStyle());
        scene.row.setStyle(style.get());
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), painted);
        QSignalSpy changed(&scene.row, &StbEpgViewDelegate::styleChanged);
        style.reset();
        QCOMPARE(changed.count(), 1);
        QVERIFY(!scene.row.style());
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), ground);
    }

    void aNewStyleObjectIsTakenOverWhole()
    {
        Scene scene;
        const NowInLive translator("LIVE");
        scene.fill();
        scene.row.setLive(true);
        scene.stage.renderFrame();

        const Style other = otherEpgStyle();
        StyleObject object;
        object.setStyle(other);
        scene.row.setStyle(&object);
        scene.stage.renderFrame();

        Scene fresh;
        fresh.style.setStyle(other);
        fresh.fill();
        fresh.row.setLive(true);
        fresh.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
        QCOMPARE(scene.row.height(), fresh.row.height());
    }

    void changesInsideAStyleObjectAreNotListenedTo()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        Style other = oddEpgStyle();
        other.titleTextStyle.font = pixelFont(51);
        scene.style.setStyle(other);
        QVERIFY(!scene.stage.wantsFrame());
    }

    void startTimeAndTitleDoNotShareTheirPixmapsSubtitleAndLabelDo()
    {
        Scene one;
        Scene two;
        const NowInLive translator("LIVE");
        for (Scene *scene : { &one, &two }) {
            scene->fill();
            scene->row.setLive(true);
            scene->stage.renderFrame();
        }
        const QList<NodeInfo> first = one.children();
        const QList<NodeInfo> second = two.children();
        QVERIFY(first[0].pixmap.cacheKey() != second[0].pixmap.cacheKey());
        QVERIFY(first[1].pixmap.cacheKey() != second[1].pixmap.cacheKey());
        QCOMPARE(first[2].pixmap.cacheKey(), second[2].pixmap.cacheKey());
        QCOMPARE(stbtest::childNodes(first[3].node)[0].pixmap.cacheKey(),
                 stbtest::childNodes(second[3].node)[0].pixmap.cacheKey());
    }

    void theIndicatorIsLoadedWhenTheComponentIsComplete()
    {
        stbtest::QmlScene qml;
        const auto row = qml.createItem<StbEpgViewDelegate>(
                "import Stbui.UI.Qml.Controls.Basic\nEpgViewDelegate {}");
        QVERIFY(row);
        auto *d = static_cast<StbEpgViewDelegatePrivate *>(QQuickItemPrivate::get(row.get()));
        QVERIFY(d->m_liveIndicator.isLoaded());
        QCOMPARE(d->m_liveIndicator.source(), ":/resources/icons/live_status_on.png");
    }

    // A derived row, as the focused one is: something at the top, and a node behind the base's.
    void aDerivedRowPutsItsPartAtTheTopAndItsNodesBehindTheBases()
    {
        Scene scene;
        const NowInLive translator("LIVE");
        ExtendedRow row;
        row.setParentItem(scene.stage.contentItem());
        row.setWidth(560);
        row.setStyle(&scene.style);
        row.setTitle("Evening news");
        scene.stage.renderFrame();
        const QList<NodeInfo> plain = stbtest::childNodes(stbtest::paintNode(&row));
        QCOMPARE(plain.size(), 4);
        QCOMPARE(plain[3].color, QColor(Qt::cyan));
        QCOMPARE(row.lastBaseNode(), plain[2].node);
        QCOMPARE(row.titleAtFirst(), "unpainted"); // the hook comes before the texts are painted
        QCOMPARE(plain[1].rect.topLeft(), QPointF(131, 41));

        row.setLive(true);
        scene.stage.renderFrame();
        const QList<NodeInfo> live = stbtest::childNodes(stbtest::paintNode(&row));
        QCOMPARE(live.size(), 5);
        QCOMPARE(live[3].color, QColor(171, 11, 31)); // the late badge goes before the derived node
        QCOMPARE(live[4].node, plain[3].node);
        QCOMPARE(row.lastBaseNode(), live[3].node);
        QCOMPARE(live[3].rect.top(), 41 + 23);
        QCOMPARE(live[1].rect.top(), live[3].rect.bottom() + 29);
    }

    void anUpdateThatChangesNothingPaintsNothing()
    {
        Scene scene;
        const NowInLive translator("LIVE");
        scene.fill();
        scene.row.setLive(true);
        scene.stage.renderFrame();
        scene.row.update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        scene.row.setFuture(true); // stored and announced, not painted
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        scene.row.setPlayable(true); // live: the colours stay
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aChangedTextPaintsItsOwnRectangleOnly()
    {
        Scene scene;
        scene.fill();
        scene.row.setTitle("Evening news and all");
        scene.stage.renderFrame();
        const QRect before = scene.children()[1].rect.toRect().translated(20, 30);
        scene.row.setTitle("Evening film");
        const QRegion painted = scene.stage.renderFrame();
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted.subtracted(before), QRegion());

        const QRect time = scene.children()[0].rect.toRect().translated(20, 30);
        scene.row.setStartTimeText("20:08");
        QCOMPARE(scene.stage.renderFrame().subtracted(time), QRegion());
    }

    void aNewColourPaintsStartTimeAndTitleOnly()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        const QRect time = scene.children()[0].rect.toRect().translated(20, 30);
        const QRect title = scene.children()[1].rect.toRect().translated(20, 30);
        scene.row.setPlayable(true);
        QCOMPARE(scene.stage.renderFrame(), QRegion(time).united(title));
    }

    void pictures_data()
    {
        QTest::addColumn<bool>("live");
        QTest::addColumn<bool>("playable");
        QTest::addColumn<QString>("title");
        QTest::newRow("past") << false << false << "Evening news";
        QTest::newRow("playable") << false << true << "Evening news";
        QTest::newRow("live") << true << true << "Evening news";
        QTest::newRow("two-lines") << true << false << "The long evening news of this and of the other day";
        QTest::newRow("no-title") << true << true << "";
    }
    void pictures()
    {
        QFETCH(bool, live);
        QFETCH(bool, playable);
        QFETCH(QString, title);
        Scene scene;
        const NowInLive translator("LIVE");
        scene.fill();
        scene.row.setTitle(title);
        scene.row.setLive(live);
        scene.row.setPlayable(playable);
        scene.stage.renderFrame();
        STB_COMPARE_GOLDEN(scene.stage.picture(),
                           QStringLiteral("epgviewdelegate-") + QTest::currentDataTag(),
                           { 24, 60, "glyph edges differ a little between font rasterizers' versions" });
    }

    void oneRowIsOneObjectOneItemAndOneNodePerPart()
    {
        Scene scene;
        const NowInLive translator("LIVE");
        scene.fill();
        scene.stage.renderFrame();
        QCOMPARE(stbtest::objectCount(&scene.row), 1);
        QCOMPARE(stbtest::itemCount(&scene.row), 1);
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(&scene.row)), 4);
        scene.row.setLive(true);
        scene.stage.renderFrame();
        QCOMPARE(stbtest::objectCount(&scene.row), 1);
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(&scene.row)), 7);
    }

    void everyTextIsLaidOutOnce()
    {
        Scene scene;
        const NowInLive translator("LIVE");
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.row.setStyle(&scene.style);
                     scene.row.setStartTimeText("20:15");
                     scene.row.setTitle("A title of its own");
                     scene.row.setSubtitle("A subtitle of its own");
                     scene.stage.renderFrame();
                 }),
                 3);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.row.setPlayable(true); // another colour: painted again, not laid out
                     scene.row.setWidth(555);
                     scene.row.update();
                     scene.stage.renderFrame();
                 }),
                 0);
    }

private:
    class ExtendedRowPrivate : public StbEpgViewDelegatePrivate
    {
    public:
        void relayoutExtendedItem(const Style &, int &top) override { top += 41; }
        void updateExtendedNodes(const Style &, QSGNode *lastBaseNode) override
        {
            m_lastBaseNode = lastBaseNode;
            if (m_titleAtFirst.isNull())
                m_titleAtFirst = stbtest::childNodes(lastBaseNode->parent())[1].pixmap.isNull() ? "unpainted"
                                                                                                : "painted";
            if (lastBaseNode->nextSibling())
                return;
            QSGRectangleNode *node = sceneGraphContext()->createRectangleNode();
            node->setColor(Qt::cyan);
            node->setRect(QRectF(0, 0, 41, 41));
            lastBaseNode->parent()->appendChildNode(node);
        }
        QSGNode *m_lastBaseNode = nullptr;
        QString m_titleAtFirst; // what the base's texts are when the hook is called
    };
    class ExtendedRow : public StbEpgViewDelegate
    {
    public:
        ExtendedRow()
            : StbEpgViewDelegate(*new ExtendedRowPrivate, nullptr)
        {
        }
        QSGNode *lastBaseNode() { return row()->m_lastBaseNode; }
        QString titleAtFirst() { return row()->m_titleAtFirst; }

    private:
        ExtendedRowPrivate *row() { return static_cast<ExtendedRowPrivate *>(QQuickItemPrivate::get(this)); }
    };
};

STB_TEST_MAIN(tst_StbEpgViewDelegate)
#include "tst_stbepgviewdelegate.moc"
