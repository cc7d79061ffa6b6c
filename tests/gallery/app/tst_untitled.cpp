// SPDX-License-Identifier: MIT
#include "guides.h"
#include "screentest.h"

#include "gallery/data/programmemodel.h"
#include "screens/channelnowmodel.h"
#include "screens/mediaitem.h"

/*! Programmes of which a guide tells no title: all screens call them the same, and none loses them. Runs in UTC. */
class tst_Untitled : public ScreenTest
{
    Q_OBJECT

    static gallery::NewProgramme programme(const QString &title, const QString &subtitle, int hour)
    {
        gallery::NewProgramme programme;
        programme.channelId = "a";
        programme.start = guides::at(hour, 0).toSecsSinceEpoch();
        programme.stop = guides::at(hour + 1, 0).toSecsSinceEpoch();
        programme.title = title;
        programme.subTitle = subtitle;
        return programme;
    }

    /*! At 19:00 one with both texts, at 20:00 one without any, at 21:00 one with a subtitle, at 22:00 with a title. */
    static gallery::Guide guide()
    {
        gallery::GuideBuilder builder;
        builder.addChannel({ "a", "Channel a", {}, {} });
        builder.addProgramme(programme("Title", "Below", 19));
        builder.addProgramme(programme({}, {}, 20));
        builder.addProgramme(programme({}, "Subtitle", 21));
        builder.addProgramme(programme("Last", {}, 22));
        return builder.take();
    }

    static QString at(const QAbstractItemModel &model, int row, int role)
    {
        return model.index(row, 0).data(role).toString();
    }

    void start(const QString &screen, const QString &resolution = {})
    {
        gallery::Options options;
        options.screen = screen;
        options.resolution = resolution;
        ScreenTest::start(options);
        shell()->guide()->setGuide(guide());
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void theSubtitleOrAWordStandsInForTheTitle()
    {
        const gallery::Guide shown = guide();
        QCOMPARE(shown.programme(0, 0).shownTitle(), "Title");
        QCOMPARE(shown.programme(0, 0).shownSubtitle(), "Below");
        QCOMPARE(shown.programme(0, 1).shownTitle(), "Untitled");
        QCOMPARE(shown.programme(0, 1).shownSubtitle(), QString());
        QCOMPARE(shown.programme(0, 2).shownTitle(), "Subtitle");
        QCOMPARE(shown.programme(0, 2).shownSubtitle(), QString());
        QCOMPARE(shown.programme(0, 3).shownTitle(), "Last");
    }

    void theModelOfTheGuideNamesThem()
    {
        gallery::ProgrammeModel model;
        model.select(guide(), 0, guides::day);
        QCOMPARE(at(model, 0, gallery::ProgrammeModel::SubtitleRole), "Below");
        QCOMPARE(at(model, 1, gallery::ProgrammeModel::TitleRole), "Untitled");
        QCOMPARE(at(model, 2, gallery::ProgrammeModel::TitleRole), "Subtitle");
        QCOMPARE(at(model, 2, gallery::ProgrammeModel::SubtitleRole), QString());
    }

    void theModelsOfChannelsNameThem()
    {
        gallery::ChannelNowModel now;
        now.setGuide(guide());
        now.setNow(guides::at(20, 5));
        QCOMPARE(at(now, 0, gallery::ChannelNowModel::NowTitleRole), "Untitled");
        gallery::ChannelRows rows;
        rows.show(guide(), {});
        rows.setNow(guides::at(21, 5));
        QCOMPARE(at(rows, 0, gallery::ChannelRows::ProgrammeRole), "Subtitle");
    }

    void thePlayerNamesThemAndSaysNothingTwice()
    {
        gallery::PlayerProgrammes programmes;
        programmes.select(guide(), 0);
        QCOMPARE(at(programmes, 1, gallery::PlayerProgrammes::TitleRole), "Untitled");
        QCOMPARE(at(programmes, 2, gallery::PlayerProgrammes::TitleRole), "Subtitle");
        QCOMPARE(at(programmes, 2, gallery::PlayerProgrammes::DescriptionRole), QString());
        QCOMPARE(at(programmes, 0, gallery::PlayerProgrammes::DescriptionRole), "Below");
    }

    void whatIsOnHasTheNameOnPagesAndTiles()
    {
        const gallery::MediaItem item = gallery::programmeItem(guide(), 0, 2, guides::at(21, 5));
        QCOMPARE(item.title, "Subtitle");
        QCOMPARE(item.subtitle, QString());
    }

    void theWordIsTranslated()
    {
        QVERIFY(gallery::installLanguage(QStringLiteral("de")));
        QCOMPARE(guide().programme(0, 1).shownTitle(), "Ohne Titel");
    }

    void theGuidesRowIsAsHighAsItsCard_data()
    {
        QTest::addColumn<int>("down");
        QTest::newRow("no text") << 0;
        QTest::newRow("subtitle only") << 1;
        QTest::newRow("title only") << 2;
    }
    void theGuidesRowIsAsHighAsItsCard()
    {
        QFETCH(int, down);
        start("guide");
        for (int i = 0; i < down; ++i)
            press(Qt::Key_Down);
        QTRY_COMPARE(items("card").size(), 1);
        const QQuickItem *card = item("card");
        const QRectF picture = card->property("customFocusRect").toRectF();
        QVERIFY(picture.height() > 100);
        QTRY_VERIFY2(card->height() >= picture.bottom(), qPrintable(QString::number(card->height())));
        const QList<QQuickItem *> rows = items("programme");
        for (const QQuickItem *row : rows) {
            if (row != card->parentItem()->parentItem())
                QVERIFY(!sceneRect(row).intersects(sceneRect(card)));
        }
    }

    void thePlayerShowsThatSomethingIsOn()
    {
        start("player");
        shell()->openPlayer(0);
        QCOMPARE(shell()->player()->title(), "Untitled");
        QVERIFY(texts().contains("Untitled"));
        QVERIFY(!texts().contains("There is nothing on now"));
    }

    void theChannelsShowThatSomethingIsOn()
    {
        start("channels");
        QCOMPARE(shell()->channels()->title(), "Untitled");
        QCOMPARE(shell()->channels()->timeRange(), "20:00 – 21:00");
        QVERIFY(!texts().contains("Nothing is known of what is on"));
    }
};

STB_TEST_MAIN(tst_Untitled)
#include "tst_untitled.moc"
