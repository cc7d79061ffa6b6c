// SPDX-License-Identifier: MIT
#include "crawl.h"

#include "smallworld.h"
#include "testkit/testcase.h"

#include <QtCore/qelapsedtimer.h>
#include <QtGui/qaccessible.h>

using namespace Qt::StringLiterals;

namespace {

/*! How many states of a screen are tried with all keys. */
QMap<QString, int> limits()
{
    return { { {}, 200 }, { u"components"_s, 350 }, { u"player"_s, 350 }, { u"search"_s, 350 } };
}

/*! What these keys cannot bring about, and why. */
const QMap<QString, QString> &exceptions()
{
    static const QMap<QString, QString> list {
        { "detail.opening = FavouriteButton", "marks at once" },
        { "detail.opening = GuideButton", "leads to another screen" },
        { "detail.opening = EpisodesButton", "leads to another screen" },
        { "detail.opening = RateButton", "marks at once" },
        { "detail.button = NoButton", "some button always has the keys" },
        { "guide.loading = true", "no file is read" },
        { "channels.detailsRequested", "by the key Info; the home screen leads to the same page" },
        { "channels.hasNumbers = false", "a guide whose channels have numbers" },
        { "menu.open = true", "by the key Menu; the home screen has the same menu" },
        { "player.locked = true", "a locked channel is not played" },
        { "search.searching = true", "a small guide is searched at once" },
        { "search.watchRequested", "by the key Play; the page that OK opens plays the same" },
        { "search.resultsBelow = true", "a narrow screen" },
        { "settings.unsaved = true", "there is no store that could fail" },
    };
    return list;
}

// The language decides, not a key.
bool isLanguage(const QString &event)
{
    return event.endsWith(".mirrored = true"_L1);
}

} // namespace

/*! All of the gallery by four arrows, OK and Back alone, from the home screen on. */
class tst_Crawler : public stbtest::TestCase
{
    Q_OBJECT

    std::unique_ptr<GalleryWindow> m_window;
    std::unique_ptr<Crawl> m_crawl;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        if (m_crawl)
            return;
        QAccessible::setActive(true);
        m_window = std::make_unique<GalleryWindow>();
        m_window->shell()->clock()->setFixed(smallworld::now());
        m_window->shell()->setCatalogue(smallworld::catalogue());
        m_window->shell()->guide()->setGuide(smallworld::guide());
        m_window->start(u"home"_s);
        m_crawl = std::make_unique<Crawl>(m_window.get(), limits());
        QElapsedTimer timer;
        timer.start();
        m_crawl->run();
        report(timer.elapsed());
    }

    void cleanupTestCase()
    {
        m_crawl.reset();
        m_window.reset();
        QAccessible::setActive(false);
    }

    void everyScreenAndActionIsReached()
    {
        QStringList missing = m_crawl->missing();
        missing.removeIf(
                [](const QString &event) { return exceptions().contains(event) || isLanguage(event); });
        QVERIFY2(missing.isEmpty(), qPrintable(u"never seen:\n"_s + missing.join(u'\n')));
    }

    void everySettingIsChanged()
    {
        QStringList missing;
        for (const QString key :
             { "UI, language", "UI, resolution", "UI, theme", "UI, textScale", "UI, roundingEnabled",
               "Animations, focusingEnabled", "Animations, layoutScrollingEnabled",
               "Animations, viewportScrollingEnabled", "Animations, fadeEffectEnabled",
               "Animations, slidingEnabled" }) {
            if (!m_crawl->events().contains("settings.changed("_L1 + key + ')'_L1))
                missing.append(key);
        }
        QCOMPARE(missing, QStringList());
    }

    void noExceptionIsMadeForWhatIsReached()
    {
        for (auto it = exceptions().cbegin(); it != exceptions().cend(); ++it)
            QVERIFY2(!m_crawl->events().contains(it.key()), qPrintable(it.key()));
    }

    void whatIsSwitchedOnCanBeSwitchedOff()
    {
        const QMap<QString, QString> events = m_crawl->events();
        QStringList on;
        for (auto it = events.cbegin(); it != events.cend(); ++it) {
            // What is live ends by a pause, or by going back to the start.
            if (it.key().endsWith(" is switched on"_L1) && it.key() != "player: Live is switched on"_L1
                && !it.key().startsWith("components: "_L1)) // examples
                on.append(it.key());
        }
        for (const QString &event : on)
            QVERIFY2(events.contains(event.chopped(2) + "off"_L1), qPrintable(event));
        for (const QString wanted : { "guide: 12:00", "guide: 18:00", "detail: Like", "player: Pause" }) {
            QVERIFY2(std::any_of(on.cbegin(), on.cend(),
                                 [&](const QString &event) { return event.startsWith(wanted); }),
                     qPrintable(wanted + u'\n' + on.join(u'\n')));
        }
    }

    void backAgainAndAgainLeadsHomeFromEverywhere()
    {
        const QStringList traps = m_crawl->traps();
        QVERIFY2(traps.isEmpty(), qPrintable(traps.join(u'\n')));
    }

    void somethingIsChosenInEveryState()
    {
        const QStringList problems = m_crawl->focusProblems();
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
    }

private:
    void report(qint64 milliseconds) const
    {
        int states = 0;
        const QMap<QString, int> byScreen = m_crawl->statesByScreen();
        for (auto it = byScreen.cbegin(); it != byScreen.cend(); ++it) {
            qInfo("%4d states of %s", it.value(), qPrintable(it.key()));
            states += it.value();
        }
        qInfo("%d states, %d keys, %lld ms", states, m_crawl->presses(), static_cast<long long>(milliseconds));
        const QMap<QString, QString> events = m_crawl->events();
        for (auto it = events.cbegin(); it != events.cend(); ++it)
            qInfo("%s: %s", qPrintable(it.key()), qPrintable(it.value()));
    }
};

STB_TEST_MAIN(tst_Crawler)
#include "tst_crawler.moc"
