// SPDX-License-Identifier: MIT
#include "searchfixture.h"
#include "testkit/testcase.h"

#include <QtCore/qrandom.h>
#include <QtTest/qsignalspy.h>

#include <algorithm>

using gallery::SearchController;

/*! The search among guides and catalogues of any kind, after any keys. Every state is checked. */
class tst_SearchWalk : public stbtest::TestCase
{
    Q_OBJECT

    static constexpr int steps = 4000;

    QRandomGenerator m_random;
    std::unique_ptr<SearchFixture> m;
    QList<std::pair<QString, QString>> m_shows; // channel and title, of all programmes
    QStringList m_videos; // titles

    int upTo(int end) { return m_random.bounded(end); }

    // Few letters, so that much is found by chance.
    QString word()
    {
        QString result;
        for (int i = upTo(4) + 1; i > 0; --i)
            result += QChar(u'a' + upTo(4));
        return result;
    }
    QString title()
    {
        QString result = word();
        for (int i = upTo(3); i > 0; --i)
            result += u' ' + word();
        return result;
    }

    gallery::Guide someGuide()
    {
        m_shows.clear();
        gallery::GuideBuilder builder;
        for (int channel = upTo(5); channel > 0; --channel) {
            const QString id = "c" + QString::number(channel);
            QList<guides::Show> shows;
            QDateTime start = guides::at(18, 0);
            for (int i = upTo(30); i > 0; --i) {
                const QDateTime stop = start.addSecs(60 * (1 + upTo(90)));
                shows.append({ title(), start, stop });
                m_shows.append({ id, shows.constLast().title });
                start = stop.addSecs(upTo(2) * 600);
            }
            guides::addChannel(builder, id, shows);
        }
        return builder.take();
    }
    gallery::Catalogue someCatalogue()
    {
        m_videos.clear();
        QList<gallery::CatalogueEntry> entries;
        for (int i = upTo(40); i > 0; --i) {
            entries.append(catalogues::film(title()));
            m_videos.append(entries.constLast().title);
        }
        return gallery::Catalogue(entries);
    }

    static bool fits(const QString &title, const QString &query)
    {
        const QStringList words = query.split(u' ', Qt::SkipEmptyParts);
        return !words.isEmpty() && std::all_of(words.cbegin(), words.cend(), [&title](const QString &word) {
            return title.contains(word);
        });
    }

    /*! How many results there must be: of a channel's programmes with the same title there is one. */
    int expectedCount(const QString &query) const
    {
        QList<std::pair<QString, QString>> known;
        for (const auto &show : m_shows) {
            if (fits(show.second, query) && !known.contains(show))
                known.append(show);
        }
        const auto videos = std::count_if(m_videos.cbegin(), m_videos.cend(),
                                          [&query](const QString &title) { return fits(title, query); });
        return std::min(int(known.size()), gallery::ProgrammeSearch::limit)
               + std::min(int(videos), SearchController::videoLimit);
    }

    QString typeSomething()
    {
        // What is long fits nothing.
        if (m->search.text().size() > 2)
            m->search.setText({});
        const QString typed = upTo(5) == 0 ? QStringLiteral(" ") : QString(QChar(u'a' + upTo(4)));
        m->search.press(Qt::Key_unknown, typed);
        return "types " + typed;
    }

    QString pressSomething()
    {
        static const QList<Qt::Key> keys {
            Qt::Key_Up,     Qt::Key_Down,        Qt::Key_Left,      Qt::Key_Right,  Qt::Key_Up,
            Qt::Key_Down,   Qt::Key_Left,        Qt::Key_Right,     Qt::Key_Return, Qt::Key_Back,
            Qt::Key_PageUp, Qt::Key_PageDown,    Qt::Key_Home,      Qt::Key_End,    Qt::Key_ChannelUp,
            Qt::Key_Yellow, Qt::Key_ChannelDown, Qt::Key_MediaPlay, Qt::Key_Info,   Qt::Key_7,
            Qt::Key_Shift,  Qt::Key_Red,         Qt::Key_Tab,       Qt::Key_Plus,   Qt::Key_Minus,
        };
        const Qt::Key key = keys.at(upTo(int(keys.size())));
        m->search.press(key);
        return "presses " + QString::number(key, 16);
    }

    // What the view, the guide's reader and the clock do.
    QString changeSomething()
    {
        SearchController &search = m->search;
        switch (upTo(9)) {
        case 0:
            search.setText(title().repeated(1 + upTo(9)));
            return "another text";
        case 1: // the backspace of the on-screen keyboard
            search.setText(search.text().chopped(std::min<qsizetype>(1, search.text().size())));
            return "a shorter text";
        case 2:
            search.setCursor(upTo(SearchController::maximumLength() + 4) - 2);
            return "another cursor";
        case 3:
            search.setGuide(someGuide());
            return "another guide";
        case 4:
            search.setCatalogue(someCatalogue());
            return "another catalogue";
        case 5:
            m->clock.setFixed(guides::at(18, 0).addSecs(60 * upTo(600)));
            return "another time";
        case 6:
            search.setColumns(upTo(5));
            search.setLines(upTo(4));
            return "another layout";
        case 7:
            search.setResultsBelow(upTo(2) == 0);
            search.setMirrored(upTo(2) == 0);
            search.setKeyEdges(upTo(16));
            return "another keyboard";
        default:
            search.start();
            return "a new start";
        }
    }

    /*! What is wrong now, or nothing. */
    QString problem()
    {
        SearchController &search = m->search;
        const QStringList found = m->titles();
        const int count = int(found.size());
        if (count == 0 ? search.resultRow() != -1 : search.resultRow() < 0 || search.resultRow() >= count)
            return QStringLiteral("row %1 of %2").arg(search.resultRow()).arg(count);
        if ((search.item() == nullptr) != (count == 0) || (search.isInResults() && count == 0))
            return "something of nothing is chosen";
        if (search.text().size() > SearchController::maximumLength())
            return "the text is too long";
        const int line = std::max(0, search.resultRow()) / search.columns();
        if (search.firstLine() < 0 || line < search.firstLine() || line >= search.firstLine() + search.lines())
            return QStringLiteral("line %1 is not in sight").arg(line);
        if (search.isSearching())
            return "a small guide is not searched at once";
        for (const QString &title : found) {
            if (!fits(title, search.text()))
                return QStringLiteral("\"%1\" is found").arg(title);
        }
        if (count != expectedCount(search.text()))
            return QStringLiteral("%1 results in the place of %2").arg(count).arg(expectedCount(search.text()));
        if ((search.openEdges() != 0) != (count > 0) || search.message().isEmpty() != (count > 0))
            return "what is told does not go with the results";
        if (!search.resultsArrow().isEmpty() && (search.isInResults() || count == 0))
            return "an arrow leads to where there is nothing";
        return {};
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m = std::make_unique<SearchFixture>();
    }
    void cleanup() { m.reset(); }

    void everyStateIsInOrder_data()
    {
        QTest::addColumn<quint32>("seed");
        if (const auto asked = stbtest::randomOptions().seed) {
            QTest::newRow("asked for") << quint32(*asked);
            return;
        }
        for (const quint32 seed : { 1u, 20261121u, 77u })
            QTest::addRow("%u", seed) << seed;
    }
    void everyStateIsInOrder()
    {
        QFETCH(quint32, seed);
        m_random.seed(seed);
        m->search.setGuide(someGuide());
        m->search.setCatalogue(someCatalogue());
        // Whoever opens a result does so while it is there.
        connect(&m->search, &SearchController::itemOpened, this, [this] { QVERIFY(m->search.item()); });
        connect(&m->search, &SearchController::watchRequested, this,
                [this] { QVERIFY(m->search.isOfChannel()); });
        QSignalSpy opened(&m->search, &SearchController::itemOpened);
        QSignalSpy watched(&m->search, &SearchController::watchRequested);
        QSignalSpy left(&m->search, &SearchController::leaveRequested);
        int most = 0;
        for (int step = 0; step < steps; ++step) {
            const int what = upTo(10);
            const QString done = what < 2 ? typeSomething() : what < 8 ? pressSomething() : changeSomething();
            const QString found = problem();
            QVERIFY2(found.isEmpty(),
                     qPrintable(QStringLiteral("step %1, %2, text \"%3\": %4")
                                        .arg(QString::number(step), done, m->search.text(), found)));
            most = std::max(most, int(m->titles().size()));
        }
        // Otherwise the walk would not have got anywhere.
        QVERIFY(most > 20);
        const QString counts = QStringLiteral("%1 opened, %2 watched, %3 times left")
                                       .arg(opened.count())
                                       .arg(watched.count())
                                       .arg(left.count());
        QVERIFY2(opened.count() > 10 && watched.count() > 0 && left.count() > 10, qPrintable(counts));
    }
};

STB_TEST_MAIN(tst_SearchWalk)
#include "tst_searchwalk.moc"
