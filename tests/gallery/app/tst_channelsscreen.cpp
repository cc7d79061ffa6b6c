// SPDX-License-Identifier: MIT
#include "channels.h"
#include "screentest.h"

#include "screens/logosheet.h"

#include <QtCore/qtemporarydir.h>
#include <QtGui/qimage.h>

namespace {

QObject *controlOf(const QQuickItem *row)
{
    const QList<QQuickItem *> children = row->childItems();
    for (QQuickItem *child : children) {
        if (child->property("channelListChannelName").isValid())
            return child;
    }
    return nullptr;
}

} // namespace

/*! The screen of channels in its window, steered with key events. */
class tst_ChannelsScreen : public ScreenTest
{
    Q_OBJECT

    void start(const gallery::Guide &guide, gallery::Options options = {})
    {
        options.screen = "channels";
        ScreenTest::start(options);
        shell()->guide()->setGuide(guide);
        shell()->channels()->start();
    }
    void start() { start(channels::guide(channels::seven())); }

    gallery::ChannelsController *controller() const { return shell()->channels(); }
    QString chosen() const { return controller()->guide().channel(controller()->channel()).name; }

    /*! Why the focus cannot be seen, or nothing when it can. */
    QString focusProblem() const
    {
        const bool empty = controller()->channelRow() < 0;
        return plateProblem(sceneRect(empty ? view()->rootObject() : item("channelRows")));
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void startsWithTheFocusOnTheChannelThatPlays()
    {
        start();
        QCOMPARE(chosen(), "Channel n1");
        QCOMPARE(focusProblem(), QString());
        QCOMPARE(item("channelRows")->property("currentIndex").toInt(), 0);
        QVERIFY(controlOf(items("channelRow").constFirst())->property("channelListChannelLive").toBool());
    }

    void aRowShowsAllOfItsChannel()
    {
        QList<channels::Spec> specs = channels::seven();
        specs[0].locked = true;
        start(channels::guide(specs));
        const QObject *row = controlOf(items("channelRow").constFirst());
        QVERIFY(row != nullptr);
        QCOMPARE(row->property("channelListChannelName"), "Channel n1");
        QCOMPARE(row->property("channelListChannelNumber"), "1");
        QCOMPARE(row->property("channelListChannelQuality"), "HD");
        QCOMPARE(row->property("channelListProgramName"), "n140");
        QCOMPARE(row->property("channelListProgramProgress"), 5.0 / 30);
        QCOMPARE(row->property("channelListLockIconVisible"), true);
        QCOMPARE(row->property("cachedChannelRect").toRect(), QRect(0, 0, 128, 72));
        QVERIFY(!row->property("canvas").value<QPixmap>().isNull());
    }

    void allRowsShareTheSheetThatIsDrawnOnce()
    {
        start();
        const auto *sheet = item("channelRows")->findChild<gallery::LogoSheet *>();
        QVERIFY(sheet != nullptr);
        const int before = sheet->drawnSheets();
        shell()->guide()->setGuide(channels::many(40)); // of sixteen a sheet
        QTRY_VERIFY(items("channelRow").size() >= 4);
        const QList<QQuickItem *> rows = items("channelRow");
        for (const QQuickItem *row : rows)
            QCOMPARE(controlOf(row)->property("canvas").value<QPixmap>().cacheKey(),
                     controlOf(rows[0])->property("canvas").value<QPixmap>().cacheKey());
        QCOMPARE(sheet->drawnSheets(), before + 1);
        press(Qt::Key_Down);
        press(Qt::Key_PageDown);
        QCOMPARE(sheet->drawnSheets(), before + 1);
        press(Qt::Key_End);
        QTRY_COMPARE(controller()->channelRow(), 39);
        QCOMPARE(sheet->drawnSheets(), before + 2);
        press(Qt::Key_Home);
        press(Qt::Key_End);
        QCOMPARE(sheet->drawnSheets(), before + 2);
    }

    void theLogoTakesThePlaceOfItsCell()
    {
        const QTemporaryDir folder;
        QImage logo(300, 100, QImage::Format_RGB32);
        logo.fill(QColor(200, 30, 40));
        QVERIFY(logo.save(folder.filePath("logo.png")));
        QList<channels::Spec> specs = channels::seven();
        specs[1].logo = QUrl::fromLocalFile(folder.filePath("logo.png"));
        start(channels::guide(specs));
        const QPoint middle = sceneRect(items("channelRow").at(1)).topLeft().toPoint()
                              + QPoint(16 + 64, 12 + 36);
        QTRY_COMPARE(view()->grabWindow().pixelColor(middle), QColor(200, 30, 40));
    }

    void aPageIsWhatFitsIntoTheList()
    {
        start();
        QVERIFY2(controller()->rowsPerPage() >= 4 && controller()->rowsPerPage() <= 6,
                 qPrintable(QString::number(controller()->rowsPerPage())));
    }

    void ofAThousandChannelsOnlyVisibleRowsExist()
    {
        start(channels::many(1000));
        for (const Qt::Key key : { Qt::Key_Home, Qt::Key_PageDown, Qt::Key_Down, Qt::Key_End, Qt::Key_Up }) {
            press(key);
            QCOMPARE(focusProblem(), QString());
            const auto *content = item("channelRows")->property("contentItem").value<QQuickItem *>();
            QVERIFY(content->childItems().size() <= controller()->rowsPerPage() + 3);
        }
    }

    void aNumberLeadsThroughAThousandChannels()
    {
        start(channels::many(1000));
        for (const Qt::Key key : { Qt::Key_7, Qt::Key_3, Qt::Key_4 })
            press(key);
        QCOMPARE(chosen(), "Channel c733");
        QVERIFY(texts().contains("734"));
        QCOMPARE(focusProblem(), QString());
    }

    void aLockedChannelSaysSo()
    {
        start();
        press(Qt::Key_End);
        press(Qt::Key_Return);
        QVERIFY(texts().contains("This channel is locked"));
        press(Qt::Key_Up);
        QVERIFY(!texts().contains("This channel is locked"));
    }

    void theGroupThatIsShownIsInSight()
    {
        QList<channels::Spec> specs;
        for (int i = 0; i < 40; ++i)
            specs.append({ "c" + QString::number(i), {}, "A group called " + QString::number(i) });
        start(channels::guide(specs));
        for (int i = 0; i < 41; ++i) {
            const QQuickItem *list = item("groups");
            const auto *tab = list->property("currentItem").value<QQuickItem *>();
            QVERIFY(tab != nullptr);
            QVERIFY(sceneRect(list).adjusted(-1, -1, 1, 1).contains(sceneRect(tab)));
            press(Qt::Key_Right);
            QCOMPARE(focusProblem(), QString());
        }
        QCOMPARE(controller()->groupIndex(), 40);
    }

    void withoutChannelsItSaysSoAndKeepsTheFocus()
    {
        start({});
        QVERIFY(texts().contains("There are no channels"));
        QCOMPARE(focusProblem(), QString());
    }

    void backLeadsHome()
    {
        start();
        press(Qt::Key_Back);
        QCOMPARE(shell()->screen(), "home");
    }

    void okLeadsToThePlayerAndBackToTheRow()
    {
        start();
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        QCOMPARE(shell()->screen(), "player");
        shell()->goBack();
        QCOMPARE(shell()->screen(), "channels");
        QCOMPARE(chosen(), "Channel s1");
        QVERIFY(controlOf(items("channelRow").at(1))->property("channelListChannelLive").toBool());
        QCOMPARE(focusProblem(), QString());
    }

    void anotherGuideKeepsTheChannelInItsPlace()
    {
        start(channels::many(300));
        for (int i = 0; i < 7; ++i)
            press(Qt::Key_PageDown);
        const QString before = chosen();
        const QRectF plate = sceneRect(item("focusPlate"));
        shell()->guide()->setGuide(channels::many(300, 45));
        QCOMPARE(chosen(), before);
        QCOMPARE(sceneRect(item("focusPlate")), plate);
    }

    void inArabicTheRowsAreOnTheRight()
    {
        gallery::Options arabic;
        arabic.language = "ar";
        start(channels::guide(channels::seven()), arabic);
        QVERIFY(sceneRect(item("channelRows")).center().x() > view()->width() / 2.0);
        press(Qt::Key_Left);
        QCOMPARE(controller()->groupIndex(), 1);
        QCOMPARE(focusProblem(), QString());
    }

    void theFocusIsSeenAfterAnyKeysAndAnyGuides()
    {
        start();
        QList<Qt::Key> keys = remoteKeys() + QList<Qt::Key> { Qt::Key_1, Qt::Key_4, Qt::Key_0 };
        keys.removeOne(Qt::Key_Back); // leads to the home screen
        keys.removeOne(Qt::Key_Return); // leads to the player
        QRandomGenerator random(20261121);
        for (int step = 0; step < 2000; ++step) {
            if (random.bounded(10) == 0) {
                QList<channels::Spec> specs = channels::seven();
                for (int gone = random.bounded(8); gone > 0; --gone)
                    specs.removeAt(random.bounded(int(specs.size())));
                shell()->guide()->setGuide(channels::guide(specs));
            } else {
                press(keys.at(random.bounded(int(keys.size()))));
            }
            const QString problem = focusProblem();
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(problem)));
        }
    }
};

STB_TEST_MAIN(tst_ChannelsScreen)
#include "tst_channelsscreen.moc"
