// SPDX-License-Identifier: MIT
#include "focusedstates.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepgviewdelegatefocusedlayout.h>

#include <array>
#include <limits>

using Layout = StbEpgViewDelegateFocusedLayout;
using Style = design_system::PlayerEpgDelegateStyle;
using StyleObject = design_system::PlayerEpgDelegateQmlStyle;
using stbtest::NodeInfo;

class tst_StbEpgViewDelegateFocusedCard : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void everyStateShowsItsParts_data()
    {
        QTest::addColumn<int>("bits");
        for (int bits = 0; bits < 32; ++bits) {
            QByteArrayList words;
            const std::array names { "playable", "live", "past", "future", "reminder" };
            for (int i = 0; i < 5; ++i) {
                if (bits >> i & 1)
                    words << names[i];
            }
            QTest::newRow(bits ? words.join(", ").constData() : "nothing") << bits;
        }
    }
    void everyStateShowsItsParts()
    {
        QFETCH(int, bits);
        const State state { bool(bits & 1), bool(bits & 2), bool(bits & 4), bool(bits & 8), bool(bits & 16) };
        FocusedScene scene;
        scene.fill();
        apply(scene, state);
        scene.stage.renderFrame();
        QCOMPARE(shownParts(scene), expectedParts(state));
    }

    void aCardIsThereInEveryState()
    {
        FocusedScene scene;
        scene.fill();
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 4);
        QCOMPARE(scene.card().type, "Rectangle");
        QCOMPARE(scene.card().color, QColor(13, 17, 61, 117));
        QCOMPARE(scene.card().rect, QRectF(131, 53, 417, 211));
        QCOMPARE(scene.parts().size(), 0);
    }

    void everyPartIsInItsPlace_data()
    {
        QTest::addColumn<bool>("withReminder");
        QTest::newRow("without a reminder") << false;
        QTest::newRow("with a reminder") << true;
    }
    void everyPartIsInItsPlace()
    {
        QFETCH(bool, withReminder);
        FocusedScene scene;
        const Style style = oddEpgStyle();
        scene.fill();
        apply(scene, withReminder ? reminded : future);
        scene.stage.renderFrame();
        const QString action = withReminder ? "Forget the reminder" : "Remind me";
        Layout::Content content;
        content.reminderIcon = QSize(21, 23);
        content.status = textExtent(style.statusTextStyle, withReminder ? "Reminder is set" : "On air soon",
                                    417);
        content.startsAt = textExtent(style.startsAtTextStyle, "From 20:05", 417);
        content.reminderAction = textExtent(style.reminderActionTextStyle, action, 417);
        const Layout layout = Layout::compute(style, content);
        const QList<NodeInfo> parts = scene.parts();
        QCOMPARE(parts[0].rect, QRectF(layout.status));
        QCOMPARE(parts[1].rect, QRectF(131, 164, 417, 47));
        QCOMPARE(stbtest::childNodes(parts[1].node)[0].rect, QRectF(layout.reminderAction));
        QCOMPARE(parts[2].rect, QRectF(layout.startsAt));
        QCOMPARE(parts[3].rect, QRectF(layout.reminderIcon));
    }

    void theCardsTextsKeepToItsWidthAndTheirLines()
    {
        const QString longSoon = "The broadcast of this programme begins in not so many minutes from now on";
        const QString longAction =
                "Please be so kind as to remind me of this programme in time before it begins";
        FocusedScene scene;
        design_system::PlayerEpgDelegateStyle style = oddEpgStyle();
        style.statusTextStyle.maxLineCount = 2;
        scene.style.setStyle(style);
        auto &words = const_cast<EpgWords &>(scene.words).words;
        words[{ "QObject", "LIVE_SOON" }] = longSoon;
        words[{ "QObject", "ADD_REMINDER" }] = longAction;
        scene.fill();
        scene.row->setStartTimeText("20:05 in the evening of the day before the last one of this long year");
        apply(scene, future);
        scene.stage.renderFrame();
        const auto laidOut = [](const design_system::TextStyle &text, const QString &string) {
            return textExtent(text, string, 417).size();
        };
        const QString startsAt = "From " + scene.row->startTimeText();
        QVERIFY(textExtent(style.statusTextStyle, longSoon).width() > 417);
        QVERIFY(textExtent(style.startsAtTextStyle, startsAt).width() > 417);
        QVERIFY(textExtent(style.reminderActionTextStyle, longAction).width() > 417);
        QCOMPARE(scene.parts()[0].pixmap.size(), laidOut(style.statusTextStyle, longSoon));
        QCOMPARE(stbtest::childNodes(scene.parts()[1].node)[0].pixmap.size(),
                 laidOut(style.reminderActionTextStyle, longAction));
        QCOMPARE(scene.parts()[2].pixmap.size(), laidOut(style.startsAtTextStyle, startsAt));
    }

    void theNoticeStandsInTheMiddle()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, past);
        scene.stage.renderFrame();
        const QRect text = textExtent(oddEpgStyle().statusTextStyle, "Not available any more", 417);
        QCOMPARE(scene.parts()[0].rect, QRectF(131 + (417 - text.width()) / 2, (211 - text.height()) / 2,
                                               text.width(), text.height()));
    }

    void theNoticeOfAProgrammeThatIsAlsoFutureStandsInTheStack()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, pastAndFuture);
        scene.stage.renderFrame();
        const QList<NodeInfo> parts = scene.parts();
        QCOMPARE(parts[0].rect.top(), parts[3].rect.bottom() + 19);
        QCOMPARE(parts[2].rect.top(), parts[0].rect.bottom());
    }

    void everyTextHasItsColour()
    {
        const Style style = oddEpgStyle();
        FocusedScene scene;
        scene.fill();
        apply(scene, future);
        scene.stage.renderFrame();
        const QList<NodeInfo> parts = scene.parts();
        QCOMPARE(parts[0].pixmap.toImage(),
                 textPicture(style.statusTextStyle, "On air soon", 417, style.statusTextStyle.color));
        QCOMPARE(stbtest::childNodes(parts[1].node)[0].pixmap.toImage(),
                 textPicture(style.reminderActionTextStyle, "Remind me", 417,
                             style.reminderActionTextStyle.color));
        QCOMPARE(parts[2].pixmap.toImage(),
                 textPicture(style.startsAtTextStyle, "From 20:05", 417, style.startsAtTextStyle.color));
        const QImage bell(":/resources/icons/reminder_small.png");
        QCOMPARE(parts[3].pixmap.toImage().convertToFormat(bell.format()), bell); // in its own colours
    }

    void thePlayIconIsTintedWithTheStylesColour()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, playable);
        scene.stage.renderFrame();
        const NodeInfo icon = scene.parts()[0];
        QCOMPARE(icon.rect, QRectF(131 + (417 - 41) / 2, (211 - 43) / 2, 41, 43));
        QCOMPARE(icon.pixmap.toImage().pixelColor(15, 21), QColor(101, 231, 141));
        QCOMPARE(icon.pixmap.toImage().pixelColor(2, 21), QColor(0, 0, 0)); // black stays black
        StyleObject other;
        Style values = oddEpgStyle();
        values.playIconColor = QColor(231, 101, 41);
        other.setStyle(values);
        scene.row->setStyle(&other);
        scene.stage.renderFrame();
        QCOMPARE(scene.parts()[0].node, icon.node);
        QCOMPARE(scene.parts()[0].pixmap.toImage().pixelColor(15, 21), QColor(231, 101, 41));
    }

    void theStartTimeLineFollowsTheRowsStartTime()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, future);
        scene.stage.renderFrame();
        scene.row->setStartTimeText("23:55 tomorrow");
        scene.stage.renderFrame();
        const QRect text = textExtent(oddEpgStyle().startsAtTextStyle, "From 23:55 tomorrow", 417);
        const NodeInfo line = scene.parts()[2];
        QCOMPARE(line.pixmap.size(), text.size());
        QCOMPARE(line.rect.left(), 131 + (417 - text.width()) / 2);
        QCOMPARE(line.rect.size(), QSizeF(text.size()));
    }

    void aStartTimeWithAPlaceholderIsShownAsItIs()
    {
        FocusedScene scene;
        scene.fill();
        scene.row->setStartTimeText("%1 %2");
        apply(scene, future);
        scene.stage.renderFrame();
        QCOMPARE(scene.parts()[2].pixmap.size(),
                 textExtent(oddEpgStyle().startsAtTextStyle, "From %1 %2", 417).size());
    }

    void aProgrammeThatBeginsAnewLeavesNoPixelOfTheFullBar()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, playableLive);
        scene.row->setProgress(1);
        scene.stage.renderFrame();
        scene.row->setProgress(0);
        scene.stage.renderFrame();
        QVERIFY(scene.parts()[0].rect.isEmpty());
        QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
    }

    void theBarShowsTheProgress_data()
    {
        QTest::addColumn<double>("progress");
        QTest::addColumn<int>("filled");
        constexpr double infinity = std::numeric_limits<double>::infinity();
        QTest::newRow("0") << 0.0 << 0;
        QTest::newRow("0.5") << 0.5 << 181;
        QTest::newRow("1") << 1.0 << 363;
        QTest::newRow("outside") << 7.0 << 363;
        QTest::newRow("below") << -7.0 << 0;
        QTest::newRow("infinity") << infinity << 363;
        QTest::newRow("negative infinity") << -infinity << 0;
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
    }
    void theBarShowsTheProgress()
    {
        QFETCH(double, progress);
        QFETCH(int, filled);
        FocusedScene scene;
        scene.fill();
        apply(scene, playableLive);
        scene.row->setProgress(progress);
        scene.stage.renderFrame();
        const auto bar = [](int left, int length) { // nothing has no height either
            return QRectF(left, 175, length, length == 0 ? 0 : 9);
        };
        QCOMPARE(scene.parts()[0].rect, bar(158, filled));
        QCOMPARE(scene.parts()[1].rect, bar(158 + filled - 1, 363 - filled));
    }

    void theRemainderLiesOverTheLastPixelOfThePlayedPart()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, playableLive);
        scene.row->setProgress(0.5);
        scene.stage.renderFrame();
        const auto pixel = [&](int x) {
            return scene.stage.picture().pixelColor(rowPosition + QPoint(x, 179));
        };
        QCOMPARE(pixel(158 + 179), QColor(221, 41, 61));
        QCOMPARE(pixel(158 + 180), QColor(151, 153, 157)); // the overlap
        QCOMPARE(pixel(158 + 361), QColor(151, 153, 157));
        QVERIFY(pixel(158 + 362) != QColor(151, 153, 157)); // which is missing at the end
    }

    void aBarWiderThanItsCardPaintsNothing()
    {
        Style style = oddEpgStyle();
        style.progressBarRect.moveLeft(300);
        StyleObject object;
        object.setStyle(style);
        FocusedScene scene;
        scene.fill();
        apply(scene, playableLive);
        scene.row->setProgress(0.5);
        scene.row->setStyle(&object);
        scene.stage.renderFrame();
        QVERIFY(scene.parts()[0].rect.isEmpty());
        QVERIFY(scene.parts()[1].rect.isEmpty());
    }

    void theReminderSwapNeedsNoLayoutOfTheRow()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, future);
        scene.stage.renderFrame();
        scene.row->setHeight(300);
        scene.row->setReminder(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.row->height(), 300); // a relayout would write its own height back
        QCOMPARE(shownParts(scene), expectedParts(reminded));
        scene.row->setReminder(false);
        scene.stage.renderFrame();
        QCOMPARE(shownParts(scene), expectedParts(future));
    }

    void anotherLanguageIsThereWithTheNextPaint()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, future);
        scene.stage.renderFrame();
        const QList<NodeInfo> before = scene.parts();
        EpgWords german;
        german.words = { { { "QObject", "LIVE_SOON" }, "Bald live auf Sendung" },
                         { { "QObject", "ADD_REMINDER" }, "Erinnern" },
                         { { "stbui::EpgListModel", "ON" }, "Um" } };
        scene.row->update();
        scene.stage.renderFrame();
        const QList<NodeInfo> after = scene.parts();
        const Style style = oddEpgStyle();
        QCOMPARE(after[0].rect.width(),
                 textExtent(style.statusTextStyle, "Bald live auf Sendung", 417).width());
        QCOMPARE(stbtest::childNodes(after[1].node)[0].rect.width(),
                 textExtent(style.reminderActionTextStyle, "Erinnern", 417).width());
        QCOMPARE(after[2].rect.width(), textExtent(style.startsAtTextStyle, "Um 20:05", 417).width());
        for (int i = 0; i < 4; ++i)
            QCOMPARE(after[i].node, before[i].node);
    }

    void withoutTranslationsTheKeysAreShown()
    {
        FocusedScene scene;
        scene.fill();
        EpgWords none;
        none.words = { { { "QObject", "LIVE_SOON" }, "LIVE_SOON" },
                       { { "QObject", "ADD_REMINDER" }, "ADD_REMINDER" },
                       { { "stbui::EpgListModel", "ON" }, "ON" } };
        apply(scene, future);
        scene.stage.renderFrame();
        QCOMPARE(scene.parts()[0].pixmap.size(),
                 textExtent(oddEpgStyle().statusTextStyle, "LIVE_SOON", 417).size());
    }

    void aColourThatIsNotSetPaintsNothing()
    {
        Style style = oddEpgStyle();
        style.cardColor = QColor();
        style.reminderActionTextStyle.backgroundColor = QColor();
        style.progressPlayedColor = QColor();
        style.progressRemainderColor = QColor();
        StyleObject object;
        object.setStyle(style);
        FocusedScene scene;
        scene.fill();
        scene.row->setStyle(&object);
        for (const State &state : { playableLive, future }) {
            apply(scene, state);
            scene.row->setProgress(0.5);
            scene.stage.renderFrame();
            QCOMPARE(scene.stage.picture().pixelColor(rowPosition + QPoint(531, 100)), stageGround);
            QCOMPARE(scene.stage.picture().pixelColor(rowPosition + QPoint(531, 179)), stageGround);
            QCOMPARE(scene.stage.picture().pixelColor(rowPosition + QPoint(201, 179)), stageGround);
        }
    }
};

STB_TEST_MAIN(tst_StbEpgViewDelegateFocusedCard)
#include "tst_stbepgviewdelegatefocusedcard.moc"
