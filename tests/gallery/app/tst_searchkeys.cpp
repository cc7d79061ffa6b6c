// SPDX-License-Identifier: MIT
#include "searchfixture.h"
#include "testkit/testcase.h"

#include <QtTest/qsignalspy.h>

using gallery::SearchController;

/*! What remote keys and those of a keyboard do in the search. */
class tst_SearchKeys : public stbtest::TestCase
{
    Q_OBJECT

    std::unique_ptr<SearchFixture> m;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m = std::make_unique<SearchFixture>();
    }
    void cleanup() { m.reset(); }

    void digitsAndRealKeysTypeAtTheCursor()
    {
        m->press({ Qt::Key_7, Qt::Key_0 });
        QCOMPARE(m->search.text(), "70");
        QCOMPARE(m->search.cursor(), 2);
        m->search.setCursor(1);
        QVERIFY(m->search.press(Qt::Key_A, "ä"));
        QCOMPARE(m->search.text(), "7ä0");
        QCOMPARE(m->search.cursor(), 2);
        QVERIFY(m->search.press(Qt::Key_Space, " "));
        QCOMPARE(m->search.text(), "7ä 0");
    }

    void keysWithCommandsOrWithoutTextDoNotType()
    {
        QVERIFY(!m->search.press(Qt::Key_A, "a", Qt::ControlModifier));
        QVERIFY(!m->search.press(Qt::Key_A, "\x01"));
        QVERIFY(!m->search.press(Qt::Key_A));
        QCOMPARE(m->search.text(), QString());
    }

    void theTextIsBounded()
    {
        m->search.setText(QString(SearchController::maximumLength() - 1, u'x'));
        m->press({ Qt::Key_7, Qt::Key_8 });
        QCOMPARE(m->search.text().size(), SearchController::maximumLength());
        QVERIFY(m->search.text().startsWith("7x"));
    }

    void theViewsCursorIsNotTakenWhileTheTextChanges()
    {
        m->search.setText("abc");
        m->search.setCursor(1);
        // As a line of text does: it goes to the end of a new text.
        connect(&m->search, &SearchController::textChanged, &m->search,
                [this] { m->search.setCursor(int(m->search.text().size())); });
        m->press({ Qt::Key_5 });
        QCOMPARE(m->search.text(), "a5bc");
        QCOMPARE(m->search.cursor(), 2);
        m->search.setCursor(99);
        m->press({ Qt::Key_6 });
        QCOMPARE(m->search.text(), "a5bc6");
        QCOMPARE(m->search.cursor(), 5);
    }

    void typingAmongTheResultsReturnsToTheKeyboard()
    {
        m->findFilms();
        m->search.setCursor(1);
        m->press({ Qt::Key_Right });
        QVERIFY(m->search.isInResults());
        m->press({ Qt::Key_3 });
        QVERIFY(!m->search.isInResults());
        QCOMPARE(m->titles(), QStringList { "F3" });
    }

    void theResultsAreReachedWhereReadingGoesOn()
    {
        m->findFilms();
        m->press({ Qt::Key_Left, Qt::Key_Up });
        QVERIFY(!m->search.isInResults());
        m->press({ Qt::Key_Right });
        QVERIFY(m->search.isInResults());
        QCOMPARE(m->chosen(), "F0");
        m->press({ Qt::Key_Right, Qt::Key_Left, Qt::Key_Left });
        QVERIFY(!m->search.isInResults());
    }

    void downBeyondTheLastRowLeadsToThemToo()
    {
        m->findFilms();
        m->press({ Qt::Key_Down });
        QVERIFY(m->search.isInResults());
        m->press({ Qt::Key_Up }); // the keyboard is beside them
        QVERIFY(m->search.isInResults());
        m->press({ Qt::Key_Left });
        QVERIFY(!m->search.isInResults());
    }

    void pageDownAndChannelDownLeadToThemAndBack_data()
    {
        QTest::addColumn<Qt::Key>("there");
        QTest::addColumn<Qt::Key>("back");
        QTest::newRow("page keys") << Qt::Key_PageDown << Qt::Key_PageUp;
        QTest::newRow("channel keys") << Qt::Key_ChannelDown << Qt::Key_ChannelUp;
    }
    void pageDownAndChannelDownLeadToThemAndBack()
    {
        QFETCH(Qt::Key, there);
        QFETCH(Qt::Key, back);
        m->press({ there });
        QVERIFY(!m->search.isInResults());
        m->findFilms();
        QVERIFY(!m->search.press(back)); // means nothing on the keyboard
        QVERIFY(!m->search.isInResults());
        m->press({ there });
        QVERIFY(m->search.isInResults());
        QCOMPARE(m->chosen(), "F0");
        m->press({ back });
        QVERIFY(!m->search.isInResults());
    }

    void channelUpLeadsBackFromAnyResult()
    {
        m->findFilms();
        m->press({ Qt::Key_PageDown, Qt::Key_End, Qt::Key_ChannelDown });
        QVERIFY(m->search.isInResults());
        QCOMPARE(m->chosen(), "F8");
        m->press({ Qt::Key_ChannelUp });
        QVERIFY(!m->search.isInResults());
    }

    void theKeyboardGoesAroundWhereNoArrowLeadsToResults()
    {
        QCOMPARE(m->search.openEdges(), 0);
        m->findFilms();
        QCOMPARE(m->search.openEdges(), int(Qt::BottomEdge | Qt::RightEdge));
        m->search.setMirrored(true);
        QCOMPARE(m->search.openEdges(), int(Qt::BottomEdge | Qt::LeftEdge));
        m->search.setResultsBelow(true);
        QCOMPARE(m->search.openEdges(), int(Qt::BottomEdge));
        m->search.setText("xyz");
        QCOMPARE(m->search.openEdges(), 0);
    }

    void theArrowToTheResultsIsToldWhereItLeadsThere()
    {
        m->search.setKeyEdges(Qt::BottomEdge);
        QCOMPARE(m->search.resultsArrow(), QString());
        QSignalSpy changes(&m->search, &SearchController::waysChanged);
        m->findFilms();
        QVERIFY(changes.count() > 0);
        QCOMPARE(m->search.resultsArrow(), "▼");
        m->search.setKeyEdges(Qt::TopEdge | Qt::LeftEdge);
        QCOMPARE(m->search.resultsArrow(), QString());
        m->search.setMirrored(true);
        QCOMPARE(m->search.resultsArrow(), "◀");
        m->search.setMirrored(false);
        m->search.setKeyEdges(Qt::BottomEdge | Qt::RightEdge);
        QCOMPARE(m->search.resultsArrow(), "▶");
        m->search.setResultsBelow(true);
        QCOMPARE(m->search.resultsArrow(), "▼");
        m->press({ Qt::Key_Down });
        QCOMPARE(m->search.resultsArrow(), QString());
    }

    void playWatchesAProgrammeThatHasBegunAndOpensAnythingElse()
    {
        QSignalSpy watched(&m->search, &SearchController::watchRequested);
        QSignalSpy opened(&m->search, &SearchController::itemOpened);
        m->search.setText("a40"); // is on
        m->press({ Qt::Key_Right, Qt::Key_MediaPlay });
        QCOMPARE(watched.count(), 1);
        m->search.setText("a39"); // is over
        m->press({ Qt::Key_Right, Qt::Key_MediaTogglePlayPause });
        QCOMPARE(watched.count(), 2);
        QCOMPARE(opened.count(), 0);
        m->search.setText("a41"); // is to come
        m->press({ Qt::Key_Right, Qt::Key_MediaPlay });
        m->findFilms();
        m->press({ Qt::Key_Right, Qt::Key_MediaPlay });
        QCOMPARE(watched.count(), 2);
        QCOMPARE(opened.count(), 2);
    }

    void whyAChannelIsNotPlayedIsToldUntilTheNextKey()
    {
        m->findFilms();
        m->press({ Qt::Key_Right });
        QSignalSpy changes(&m->search, &SearchController::noticeChanged);
        m->search.refuse();
        m->search.refuse();
        QCOMPARE(changes.count(), 1);
        QCOMPARE(m->search.notice(), "This channel is locked");
        m->press({ Qt::Key_Right });
        QCOMPARE(m->search.notice(), QString());
        QCOMPARE(m->chosen(), "F1");
    }

    void ofAProgrammeTheChannelIsMadeAFavourite()
    {
        m->search.setText("a4");
        QVERIFY(m->search.isOfChannel());
        const int role = m->search.results()->roleNames().key("favourite");
        m->press({ Qt::Key_Right, Qt::Key_Yellow });
        for (int row = 0; row < m->search.results()->rowCount(); ++row)
            QCOMPARE(m->search.results()->index(row, 0).data(role).toBool(), true);
        m->findFilms();
        QVERIFY(!m->search.isOfChannel());
    }

    void mirroredTheResultsAreAtTheLeft()
    {
        m->findFilms();
        QSignalSpy changes(&m->search, &SearchController::mirroredChanged);
        m->search.setMirrored(true);
        m->search.setMirrored(true);
        QCOMPARE(changes.count(), 1);
        m->press({ Qt::Key_Right });
        QVERIFY(!m->search.isInResults());
        m->press({ Qt::Key_Left, Qt::Key_Left });
        QCOMPARE(m->chosen(), "F1");
        m->press({ Qt::Key_Right, Qt::Key_Right });
        QVERIFY(!m->search.isInResults());
    }

    void belowTheKeyboardTheyAreReachedWithDown()
    {
        m->findFilms();
        m->search.setResultsBelow(true);
        m->press({ Qt::Key_Right, Qt::Key_Left });
        QVERIFY(!m->search.isInResults());
        m->press({ Qt::Key_Down, Qt::Key_Right, Qt::Key_Left, Qt::Key_Left });
        QVERIFY(m->search.isInResults());
        m->press({ Qt::Key_Down, Qt::Key_Up, Qt::Key_Up });
        QVERIFY(!m->search.isInResults());
        m->press({ Qt::Key_Down });
        QCOMPARE(m->chosen(), "F0");
    }

    void withoutResultsTheKeysStayOnTheKeyboard()
    {
        m->press({ Qt::Key_Right, Qt::Key_Down, Qt::Key_Return });
        QVERIFY(!m->search.isInResults());
    }

    void arrowsMoveInTheGridAndStopAtItsEdges()
    {
        m->search.setCatalogue(gallery::Catalogue(catalogues::films(8))); // 3, 3, 2
        m->search.setGuide({});
        m->search.setText("f");
        m->press({ Qt::Key_Right, Qt::Key_Up, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right });
        QCOMPARE(m->chosen(), "F2");
        m->press({ Qt::Key_Down });
        QCOMPARE(m->chosen(), "F5");
        m->press({ Qt::Key_Down }); // the last line is shorter
        QCOMPARE(m->chosen(), "F7");
        m->press({ Qt::Key_Down, Qt::Key_Right });
        QCOMPARE(m->chosen(), "F7");
        m->press({ Qt::Key_Up, Qt::Key_Up, Qt::Key_Up });
        QCOMPARE(m->chosen(), "F1");
    }

    void pageKeysGoByWhatIsInSightHomeAndEndToTheEnds()
    {
        m->findFilms();
        m->press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_PageDown });
        QCOMPARE(m->chosen(), "F7");
        m->press({ Qt::Key_PageUp });
        QCOMPARE(m->chosen(), "F1");
        m->press({ Qt::Key_End });
        QCOMPARE(m->chosen(), "F8");
        m->press({ Qt::Key_Home });
        QCOMPARE(m->chosen(), "F0");
    }

    void theLinesScrollNoFurtherThanTheyMust()
    {
        m->findFilms();
        m->press({ Qt::Key_Right, Qt::Key_Down });
        QCOMPARE(m->search.firstLine(), 0);
        m->press({ Qt::Key_Down });
        QCOMPARE(m->search.firstLine(), 1);
        m->press({ Qt::Key_Up });
        QCOMPARE(m->search.firstLine(), 1);
        m->press({ Qt::Key_Up });
        QCOMPARE(m->search.firstLine(), 0);
        m->press({ Qt::Key_End });
        m->search.setColumns(5);
        QCOMPARE(m->search.firstLine(), 0);
        m->search.setLines(0);
        QCOMPARE(m->search.lines(), 1);
        QCOMPARE(m->search.firstLine(), 1);
        m->search.setColumns(-3);
        QCOMPARE(m->search.columns(), 1);
        QCOMPARE(m->search.firstLine(), 8);
    }

    void okAndInfoOpenAResult()
    {
        m->findFilms();
        QSignalSpy opened(&m->search, &SearchController::itemOpened);
        m->press({ Qt::Key_Return });
        QCOMPARE(opened.count(), 0);
        m->press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Return, Qt::Key_Info });
        QCOMPARE(opened.count(), 2);
        QCOMPARE(m->search.item()->title, "F1");
    }

    void theYellowKeyMakesAResultAFavouriteOrNone()
    {
        m->findFilms();
        const int role = m->search.results()->roleNames().key("favourite");
        m->press({ Qt::Key_Right, Qt::Key_Yellow });
        QCOMPARE(m->search.results()->index(0, 0).data(role).toBool(), true);
        QCOMPARE(m->search.results()->index(1, 0).data(role).toBool(), false);
        m->press({ Qt::Key_Yellow });
        QCOMPARE(m->search.results()->index(0, 0).data(role).toBool(), false);
    }

    void backLeadsFromTheResultsToTheKeyboardAndFromThereAway()
    {
        m->findFilms();
        QSignalSpy leaving(&m->search, &SearchController::leaveRequested);
        m->press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Back });
        QVERIFY(!m->search.isInResults());
        QCOMPARE(leaving.count(), 0);
        m->press({ Qt::Key_Right });
        QCOMPARE(m->chosen(), "F1"); // as it was left
        m->press({ Qt::Key_Escape, Qt::Key_Back });
        QCOMPARE(leaving.count(), 1);
        QCOMPARE(m->search.text(), "f");
    }
};

STB_TEST_MAIN(tst_SearchKeys)
#include "tst_searchkeys.moc"
