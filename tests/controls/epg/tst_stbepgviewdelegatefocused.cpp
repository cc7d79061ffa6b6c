// SPDX-License-Identifier: MIT
#include "focusedscene.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepgviewdelegatefocused_p.h>

#include <QtTest/qsignalspy.h>

#include <limits>

using Style = design_system::PlayerEpgDelegateStyle;
using StyleObject = design_system::PlayerEpgDelegateQmlStyle;
using stbtest::NodeInfo;

namespace {

StbEpgViewDelegateFocusedPrivate *rowPrivate(StbEpgViewDelegateFocused *row)
{
    return static_cast<StbEpgViewDelegateFocusedPrivate *>(QQuickItemPrivate::get(row));
}

} // namespace

class tst_StbEpgViewDelegateFocused : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshRowHasTheDefaults()
    {
        StbEpgViewDelegateFocused row;
        QCOMPARE(row.customFocusRect(), QRect());
        QVERIFY(row.imageSource().isEmpty());
        QCOMPARE(row.progress(), 0.0);
        QVERIFY(!row.hasReminder());
        QVERIFY(!row.isPast());
        QVERIFY(!row.style());
        QVERIFY(row.flags() & QQuickItem::ItemHasContents);
    }

    void everyPropertyStoresAndSignalsOnce_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *property, const char *signal, const QVariant &value) {
            QTest::newRow(property) << QByteArray(property) << QByteArray(signal) << value;
        };
        row("imageSource", "imageSourceChanged", QUrl("file:///no/such/picture.png"));
        row("tvProgramProgress", "progressChanged", 0.3);
        row("tvProgramHasReminder", "reminderChanged", true);
        row("tvProgramIsPast", "pastChanged", true);
        row("tvProgramIsFuture", "futureChanged", true);
        row("tvProgramPlayable", "playableChanged", true);
        row("tvProgramIsLive", "liveChanged", true);
        row("itemTitle", "titleChanged", "a");
    }
    void everyPropertyStoresAndSignalsOnce()
    {
        QFETCH(QByteArray, property);
        QFETCH(QByteArray, signal);
        QFETCH(QVariant, value);
        FocusedScene scene;
        scene.row->setStyle(&scene.style);
        const QMetaObject *meta = scene.row->metaObject();
        QCOMPARE(meta->property(meta->indexOfProperty(property)).notifySignal().name(), signal);
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        for (int i = QQuickItem::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                spies.push_back(
                        std::make_unique<QSignalSpy>(scene.row.get(),
                                                     QByteArray('2' + meta->method(i).methodSignature())));
        }
        QVERIFY(spies.size() >= 12);
        const auto emitted = [&] {
            QByteArrayList names;
            for (const auto &spy : spies)
                names.insert(names.size(), spy->count(), spy->signal().chopped(2));
            return names;
        };
        QVERIFY(scene.row->setProperty(property, value));
        QCOMPARE(emitted(), QByteArrayList { signal });
        QCOMPARE(scene.row->property(property), value);
        scene.stage.renderFrame();
        QVERIFY(scene.row->setProperty(property, value));
        QCOMPARE(emitted(), QByteArrayList { signal });
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aProgressThatIsNoNumberSignalsOnce()
    {
        StbEpgViewDelegateFocused row;
        QSignalSpy changed(&row, &StbEpgViewDelegateFocused::progressChanged);
        row.setProgress(std::numeric_limits<double>::quiet_NaN());
        row.setProgress(std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(changed.count(), 1);
        row.setProgress(0.5);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(row.progress(), 0.5);
    }

    void theFocusRectangleIsTheStylesCardAndSignalledWithEveryStyle()
    {
        FocusedScene scene;
        StbEpgViewDelegateFocused *row = scene.row.get();
        const int index = row->metaObject()->indexOfProperty("customFocusRect");
        QVERIFY(!row->metaObject()->property(index).isWritable());
        QCOMPARE(row->metaObject()->property(index).notifySignal().name(), "customFocusRectChanged");
        QSignalSpy changed(row, &StbEpgViewDelegateFocused::customFocusRectChanged);
        QRect signalled;
        connect(row, &StbEpgViewDelegateFocused::customFocusRectChanged, row,
                [&] { signalled = row->customFocusRect(); });
        row->setStyle(&scene.style);
        row->setStyle(&scene.style);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(signalled, QRect(131, 53, 417, 211));
        QCOMPARE(row->property("customFocusRect"), QVariant(QRect(131, 53, 417, 211)));

        auto other = std::make_unique<StyleObject>();
        other->setStyle(otherEpgStyle());
        row->setStyle(other.get());
        QCOMPARE(changed.count(), 2);
        QCOMPARE(signalled, QRect(141, 1, 333, 7));
        other.reset(); // a style that dies counts as null
        QCOMPARE(changed.count(), 3);
        QCOMPARE(signalled, QRect());
        row->setStyle(&scene.style);
        row->resetStyle();
        QCOMPARE(changed.count(), 5);
        QCOMPARE(row->customFocusRect(), QRect());
    }

    void theIconsAreReadOnceThePlayIconAtCompletion()
    {
        FocusedScene scene;
        StbEpgViewDelegateFocusedPrivate *d = rowPrivate(scene.row.get());
        QVERIFY(d->m_playIcon.isLoaded());
        QCOMPARE(d->m_playIcon.source(), ":/resources/icons/single_epg/epg_preview_play.png");
        QVERIFY(d->m_liveIndicator.isLoaded());
        QVERIFY(!d->m_reminderIcon.isLoaded());
        scene.row->setStyle(&scene.style);
        QVERIFY(d->m_reminderIcon.isLoaded());
        QCOMPARE(d->m_reminderIcon.source(), ":/resources/icons/reminder_small.png");
        const qint64 key = d->m_reminderIcon.pixmap().cacheKey();
        scene.fill();
        QCOMPARE(d->m_reminderIcon.pixmap().cacheKey(), key);
    }

    void aRowMadeInCppReadsItsIconsWithTheFirstLayout()
    {
        StbEpgViewDelegateFocused row;
        StyleObject style;
        style.setStyle(oddEpgStyle());
        row.setWidth(580);
        QVERIFY(!rowPrivate(&row)->m_playIcon.isLoaded());
        row.setStyle(&style);
        QVERIFY(rowPrivate(&row)->m_playIcon.isLoaded());
        QVERIFY(rowPrivate(&row)->m_reminderIcon.isLoaded());
    }

    void theTextsFollowBelowTheCard()
    {
        FocusedScene scene;
        scene.fill();
        scene.stage.renderFrame();
        const QRect title = textExtent(oddEpgStyle().titleTextStyle, "Evening news", 417);
        const QRect subtitle = textExtent(oddEpgStyle().subtitleTextStyle, "With the weather", 417);
        const int top = 211 + 33; // wherever the card's own top is
        QCOMPARE(scene.children()[1].rect, QRectF(131, top, title.width(), title.height()));
        QCOMPARE(scene.row->height(), top + title.height() - 1 + 7 + subtitle.height() - 1);
        const QRect time = textExtent(oddEpgStyle().startTimeTextStyle, "20:05", 113);
        QCOMPARE(scene.children()[0].rect, QRectF(time)); // stays at the row's top
    }

    void theBadgeOfALiveRowHasTheExtendedMargins()
    {
        FocusedScene scene;
        scene.fill();
        scene.row->setLive(true);
        scene.stage.renderFrame();
        const NodeInfo badge = scene.children()[3];
        QCOMPARE(badge.color, QColor(171, 11, 31));
        QCOMPARE(badge.rect.top(), 211 + 33 + 23);
        QCOMPARE(scene.children()[1].rect.top(), badge.rect.bottom() + 29);
    }

    void theTitleHasItsOwnLineLimit()
    {
        const QString text(
                "A title so long that it would fill four lines of the row, were it not for the limit "
                "that is one of the focused row, and three lines are the limit in this style");
        FocusedScene scene;
        scene.fill();
        scene.row->setTitle(text);
        scene.stage.renderFrame();
        design_system::TextStyle style = oddEpgStyle().titleTextStyle;
        QCOMPARE(style.maxLineCount, 2);
        style.maxLineCount = 3;
        const QRect expected = textExtent(style, text, 417);
        QCOMPARE(scene.children()[1].rect.size(), QSizeF(expected.size()));
        style.maxLineCount = 4;
        QVERIFY(textExtent(style, text, 417).height() > expected.height());

        Style other = oddEpgStyle();
        other.focusedTitleMaxLineCount = 0; // counts as 1
        StyleObject object;
        object.setStyle(other);
        scene.row->setStyle(&object);
        scene.stage.renderFrame();
        style.maxLineCount = 1;
        QCOMPARE(scene.children()[1].rect.size(), QSizeF(textExtent(style, text, 417).size()));
    }

    void whatIsOnTheCardNeverMeasuresTheRow()
    {
        FocusedScene scene;
        scene.fill();
        scene.stage.renderFrame();
        scene.row->setHeight(500); // a relayout would write its own height back
        scene.setState(false, false, true, true, true);
        scene.stage.renderFrame();
        scene.row->setProgress(0.3);
        scene.row->setPlayable(true);
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        QCOMPARE(scene.row->height(), 500);
    }

    void everyStateAsksForAFrame()
    {
        FocusedScene scene;
        scene.fill();
        const std::vector<std::function<void()>> changes { [&] { scene.row->setProgress(0.3); },
                                                           [&] { scene.row->setReminder(true); },
                                                           [&] { scene.row->setPast(true); },
                                                           [&] { scene.row->setFuture(true); },
                                                           [&] { scene.row->setPlayable(true); } };
        for (const auto &change : changes) {
            scene.stage.renderFrame();
            QVERIFY(!scene.stage.wantsFrame());
            change();
            QVERIFY(scene.stage.wantsFrame());
        }
    }

    void oneRowIsOneObjectAndOneItem()
    {
        FocusedScene scene;
        scene.fill();
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        QCOMPARE(stbtest::objectCount(scene.row.get()), 1);
        QCOMPARE(stbtest::itemCount(scene.row.get()), 1);
        // Root, three texts, picture, card.
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(scene.row.get())), 6);
        scene.setState(true, true, false, false);
        scene.stage.renderFrame();
        // A badge with label and indicator, two parts of the bar, the play icon.
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(scene.row.get())), 12);
        scene.setState(false, false, false, true);
        scene.stage.renderFrame();
        // Status, bar and label, start time, icon.
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(scene.row.get())), 11);
        QCOMPARE(stbtest::objectCount(scene.row.get()), 1);
    }

    void aBareUpdatePaintsNothing_data()
    {
        QTest::addColumn<bool>("playable");
        QTest::addColumn<bool>("live");
        QTest::addColumn<bool>("past");
        QTest::addColumn<bool>("future");
        for (int state = 0; state < 16; ++state)
            QTest::addRow("%d", state)
                    << bool(state & 1) << bool(state & 2) << bool(state & 4) << bool(state & 8);
    }
    void aBareUpdatePaintsNothing()
    {
        QFETCH(bool, playable);
        QFETCH(bool, live);
        QFETCH(bool, past);
        QFETCH(bool, future);
        FocusedScene scene;
        scene.fill();
        QVERIFY(scene.show(fieldsPicture()));
        scene.row->setProgress(0.3);
        scene.setState(playable, live, past, future);
        scene.stage.renderFrame();
        scene.row->update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aProgressChangePaintsTheBarOnly()
    {
        FocusedScene scene;
        scene.fill();
        QVERIFY(scene.show(fieldsPicture()));
        scene.setState(true, true, false, false);
        scene.row->setProgress(0.3);
        scene.stage.renderFrame();
        QRegion bars = QRegion(onStage(scene.parts()[0])) + QRegion(onStage(scene.parts()[1]));
        scene.row->setProgress(0.4);
        const QRegion painted = scene.stage.renderFrame();
        bars += QRegion(onStage(scene.parts()[0])) + QRegion(onStage(scene.parts()[1]));
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted.subtracted(bars), QRegion());
        scene.row->setProgress(0.4001); // less than a pixel
        QCOMPARE(scene.stage.renderFrame(), QRegion());
    }

    void theReminderSwapPaintsStatusAndActionOnly()
    {
        FocusedScene scene;
        scene.fill();
        scene.setState(false, false, false, true);
        scene.stage.renderFrame();
        QRegion texts;
        const auto collect = [&] {
            texts += onStage(scene.parts()[0]);
            texts += onStage(stbtest::childNodes(scene.parts()[1].node)[0]);
        };
        collect();
        scene.row->setReminder(true);
        const QRegion painted = scene.stage.renderFrame();
        collect();
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted.subtracted(texts), QRegion());
    }

    void everyTextIsLaidOutOnce()
    {
        FocusedScene scene;
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.row->setStyle(&scene.style);
                     scene.row->setStartTimeText("20:15");
                     scene.row->setTitle("A title of its own on a focused row");
                     scene.row->setSubtitle("A subtitle of its own on a focused row");
                     scene.stage.renderFrame();
                 }),
                 3);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.row->setFuture(true); // status, action and start time
                     scene.stage.renderFrame();
                 }),
                 3);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.row->setPlayable(true);
                     scene.row->setProgress(0.7);
                     scene.stage.renderFrame();
                     scene.row->setPlayable(false); // the nodes are new, the texts are not
                     scene.row->setWidth(570);
                     scene.stage.renderFrame();
                     scene.row->update();
                     scene.stage.renderFrame();
                 }),
                 0);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.row->setReminder(true);
                     scene.stage.renderFrame();
                 }),
                 2);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.row->setReminder(false); // both texts are still in the cache
                     scene.stage.renderFrame();
                 }),
                 0);
    }

    void aSecondRowSharesStatusAndActionButNotTheStartTime()
    {
        FocusedScene one;
        FocusedScene two;
        for (FocusedScene *scene : { &one, &two }) {
            scene->fill();
            scene->setState(false, false, false, true);
            scene->stage.renderFrame();
        }
        const QList<NodeInfo> first = one.parts();
        const QList<NodeInfo> second = two.parts();
        QCOMPARE(first[0].pixmap.cacheKey(), second[0].pixmap.cacheKey());
        QCOMPARE(stbtest::childNodes(first[1].node)[0].pixmap.cacheKey(),
                 stbtest::childNodes(second[1].node)[0].pixmap.cacheKey());
        QVERIFY(first[2].pixmap.cacheKey() != second[2].pixmap.cacheKey());
    }

    void pictures_data()
    {
        QTest::addColumn<QList<bool>>("flags"); // playable, live, past, future, reminder
        QTest::addColumn<bool>("picture");
        QTest::newRow("live") << QList<bool> { true, true, false, false, false } << true;
        QTest::newRow("playable") << QList<bool> { true, false, true, false, false } << true;
        QTest::newRow("future") << QList<bool> { false, false, false, true, false } << true;
        QTest::newRow("reminder") << QList<bool> { false, false, false, true, true } << true;
        QTest::newRow("past") << QList<bool> { false, false, true, false, false } << true;
        QTest::newRow("no-picture") << QList<bool> { false, false, true, true, true } << false;
    }
    void pictures()
    {
        QFETCH(QList<bool>, flags);
        QFETCH(bool, picture);
        FocusedScene scene;
        Style style = oddEpgStyle();
        style.previewRect.moveTop(0);
        scene.style.setStyle(style);
        scene.fill();
        scene.row->setProgress(0.3);
        scene.setState(flags[0], flags[1], flags[2], flags[3], flags[4]);
        if (picture)
            QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        STB_COMPARE_GOLDEN(scene.stage.picture(),
                           QStringLiteral("epgviewdelegatefocused-") + QTest::currentDataTag(),
                           { 24, 60, "glyph edges differ a little between font rasterizers' versions" });
    }
};

STB_TEST_MAIN(tst_StbEpgViewDelegateFocused)
#include "tst_stbepgviewdelegatefocused.moc"
