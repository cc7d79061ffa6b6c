// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include "gallery/data/guidebuilder.h"
#include "gallery/data/programmesearch.h"

using gallery::Guide;
using gallery::GuideBuilder;
using gallery::ProgrammeSearch;
using gallery::searchWords;
using gallery::TitleIndex;

namespace {

constexpr qint64 now = 1'000'000;

struct Show
{
    QString title;
    qint64 start = 0; // seconds from now
    qint64 length = 600;
};

Guide guideOf(const QList<QList<Show>> &channels)
{
    GuideBuilder builder;
    for (int channel = 0; channel < channels.size(); ++channel) {
        const QString id = "c" + QString::number(channel);
        builder.addChannel({ id, id, {}, {} });
        for (const Show &show : channels.at(channel)) {
            gallery::NewProgramme programme;
            programme.channelId = id;
            programme.start = now + show.start;
            programme.stop = now + show.start + show.length;
            programme.title = show.title;
            builder.addProgramme(programme);
        }
    }
    return builder.take();
}

/*! \a count programmes on a hundred channels; the title of every \a same is the same. */
Guide longGuide(int count, int same)
{
    GuideBuilder builder;
    for (int i = 0; i < count; ++i) {
        gallery::NewProgramme programme;
        programme.channelId = "c" + QString::number(i % 100);
        programme.start = now + qint64(i / 100) * 600 - 36000;
        programme.stop = programme.start + 600;
        programme.title = "Title number " + QString::number(i / same);
        builder.addProgramme(programme);
    }
    return builder.take();
}

} // namespace

/*! Looking for programmes by their titles. */
class tst_ProgrammeSearch : public stbtest::TestCase
{
    Q_OBJECT

    /*! What is found, as "title@channel+seconds from now". */
    static QStringList found(const Guide &guide, const QString &query, int atOnce = 3)
    {
        TitleIndex index(guide);
        ProgrammeSearch search;
        search.start(searchWords(query), now);
        while (!search.step(index, atOnce)) {}
        QStringList result;
        for (const ProgrammeSearch::Hit &hit : search.hits())
            result.append(QStringLiteral("%1@%2%3%4")
                                  .arg(guide.title(hit.place.channel, hit.place.programme))
                                  .arg(hit.place.channel)
                                  .arg(hit.start < now ? "" : "+")
                                  .arg(hit.start - now));
        return result;
    }

private Q_SLOTS:
    void anIndexHasEveryProgrammeAndEachTitleOnce()
    {
        const Guide guide = guideOf(
                { { { "News", -60 }, { "Sea", 600 } }, {}, { { "NEWS", 0 }, { "News", 900 } } });
        TitleIndex index(guide);
        QVERIFY(!index.isComplete());
        index.read(3);
        QCOMPARE(index.programmeCount(), 3);
        QVERIFY(!index.isComplete());
        index.read(1);
        QVERIFY(index.isComplete());
        QCOMPARE(index.titleCount(), 2);
        QCOMPARE(index.title(index.titleOf(0)), "news");
        QCOMPARE(index.title(index.titleOf(1)), "sea");
        QCOMPARE(index.titleOf(2), index.titleOf(0));
        QCOMPARE(index.titleOf(3), index.titleOf(0));
        index.read(5);
        QCOMPARE(index.programmeCount(), 4);
    }

    void anIndexOfNothingIsComplete()
    {
        QVERIFY(TitleIndex().isComplete());
        QVERIFY(TitleIndex(guideOf({ {}, {} })).isComplete());
        QCOMPARE(found({}, "a"), QStringList());
    }

    void placesGoThroughTheChannels()
    {
        const TitleIndex index(guideOf({ {}, { { "A" }, { "B", 600 } }, {}, { { "C" } } }));
        TitleIndex::Place place { 0, -1 };
        QStringList titles;
        for (int i = 0; i < 3; ++i) {
            place = index.after(place);
            titles.append(index.guide().title(place.channel, place.programme));
        }
        QCOMPARE(titles, (QStringList { "A", "B", "C" }));
    }

    void whatIsOnComesFirstThenWhatComesThenWhatIsOver()
    {
        const Guide guide = guideOf({ { { "Sea over", -6000 }, { "Sea later", 7200 } },
                                      { { "Sea long over", -9000 }, { "Sea soon", 300 } },
                                      { { "Sea now", -60 } },
                                      { { "Sea now too", -500 } } });
        QCOMPARE(found(guide, "sea"),
                 (QStringList { "Sea now@2-60", "Sea now too@3-500", "Sea soon@1+300", "Sea later@0+7200",
                                "Sea over@0-6000", "Sea long over@1-9000" }));
    }

    void beginningsOfWordsComeBeforeAnythingInside()
    {
        const Guide guide = guideOf(
                { { { "Overseas", -60 } }, { { "By the sea", -9000 } }, { { "Seals", 300 } } });
        QCOMPARE(found(guide, "sea"), (QStringList { "Seals@2+300", "By the sea@1-9000", "Overseas@0-60" }));
    }

    void onAChannelATitleIsFoundOnce()
    {
        const QList<Show> all { { "News", -9000 }, { "News", -6000 }, { "News", 300 }, { "News", 900 } };
        QCOMPARE(found(guideOf({ all }), "news"), QStringList { "News@0+300" });
        QCOMPARE(found(guideOf({ all + QList<Show> { { "News", -60, 300 } } }), "news"),
                 QStringList { "News@0-60" });
        QCOMPARE(found(guideOf({ { all[0], all[1] } }), "news"), QStringList { "News@0-6000" });
        QCOMPARE(found(guideOf({ all, all }), "news"), (QStringList { "News@0+300", "News@1+300" }));
    }

    void aProgrammeThatEndsNowIsOver()
    {
        QCOMPARE(found(guideOf({ { { "Ends", -600, 600 }, { "Ends", 500 } } }), "ends"),
                 QStringList { "Ends@0+500" });
        QCOMPARE(found(guideOf({ { { "Begins", 0, 600 }, { "Begins", -600, 600 } } }), "begins"),
                 QStringList { "Begins@0+0" });
    }

    void theNumberIsBoundedAndTheBestStay()
    {
        QList<QList<Show>> channels;
        for (int i = 0; i < 2000; ++i)
            channels.append({ { "Sea " + QString::number(i), 100000 - i } });
        const QStringList hits = found(guideOf(channels), "sea", 1000);
        QCOMPARE(hits.size(), ProgrammeSearch::limit);
        QCOMPARE(hits.constFirst(), "Sea 1999@1999+98001");
        QCOMPARE(hits.constLast(), "Sea 1970@1970+98030");
    }

    void theStepsDoNotChangeWhatIsFound()
    {
        const Guide guide = longGuide(5000, 7);
        const QStringList all = found(guide, "9", 1'000'000);
        QCOMPARE(all.size(), ProgrammeSearch::limit);
        for (const int atOnce : { 1, 99, 100, 101, 4999 })
            QCOMPARE(found(guide, "9", atOnce), all);
    }

    void aStepLooksAtNoMoreThanItIsAllowed()
    {
        TitleIndex index(longGuide(250'000, 5));
        ProgrammeSearch search;
        search.start(searchWords("number 12"), now);
        int steps = 1;
        while (!search.step(index, 1000)) {
            QCOMPARE(index.programmeCount(), qsizetype(steps) * 1000);
            ++steps;
        }
        QCOMPARE(steps, 250);
        QCOMPARE(search.hits().size(), size_t(ProgrammeSearch::limit));
    }

    void anotherSearchBeginsAnew()
    {
        const Guide guide = guideOf({ { { "News", -60 } }, { { "Sea", -60 } } });
        TitleIndex index(guide);
        ProgrammeSearch search;
        search.start(searchWords("news"), now);
        QVERIFY(!search.step(index, 1));
        search.start(searchWords("sea"), now);
        QVERIFY(search.step(index, 9));
        QCOMPARE(search.hits().size(), 1U);
        QCOMPARE(search.hits().front().place.channel, 1);
    }

    void programmesThatTwoChannelsShareAreFoundOnBoth()
    {
        const Guide guide = guideOf({ { { "News", -60 } } });
        const Guide twice = guide.withChannels({ { { "x", "X", {}, {} }, 0 }, { { "y", "Y", {}, {} }, 0 } });
        QCOMPARE(found(twice, "new"), (QStringList { "News@0-60", "News@1-60" }));
    }
};

STB_TEST_MAIN(tst_ProgrammeSearch)
#include "tst_programmesearch.moc"
