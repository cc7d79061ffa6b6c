// SPDX-License-Identifier: MIT
#include "changingguide.h"
#include "screentest.h"

/*!
    Ten thousand steps of keys, guides and times at random, on the guide in its window: the focus is never lost. They are
    made in four programs (STBUI_PART is 1 to 4), each with a seed and a language of its own.
*/
class tst_GuideFocus : public ScreenTest
{
    Q_OBJECT

    static constexpr int steps = 2500;

    gallery::GuideController *guide() const { return shell()->guide(); }

    /*! Why the focus cannot be seen, or why a list shows another row than the controller; nothing when all is well. */
    QString problem() const
    {
        const QString list = guide()->isInDays() ? "days" : "programmes";
        const QQuickItem *place = guide()->isDetailsOpen() ? view()->rootObject() : item(list);
        if (place == nullptr)
            return "there is no list";
        QString found = plateProblem(sceneRect(place));
        for (const char *name : { "days", "channels", "programmes" }) {
            const int row = guide()->property(QByteArray(name).chopped(1) + "Row").toInt();
            if (item(name)->property("currentIndex").toInt() != row)
                found += QLatin1String(name);
        }
        if (guide()->detailsPage() < 0 || guide()->detailsPage() >= guide()->detailsPages())
            found += "page";
        return found;
    }

    /*! Keys may lead to another screen; the guide is where the next step is made. */
    void backToTheGuide() const
    {
        if (shell()->screen() == "player")
            shell()->goBack();
        if (shell()->screen() != "guide")
            shell()->start("guide");
    }

    QString step(guides::ChangingGuide &data, QRandomGenerator &random) const
    {
        const int what = random.bounded(100);
        if (what < 25) {
            const QString changed = data.change();
            guide()->setGuide(data.guide());
            return changed;
        }
        if (what < 30) {
            const int minutes = random.bounded(-3000, 3000);
            shell()->clock()->setFixed(guides::at(20, 5).addSecs(60 * qint64(minutes)));
            return QStringLiteral("time");
        }
        const QList<int> keys = guides::allRemoteKeys() + QList<int> { Qt::Key_Tab, Qt::Key_Backtab };
        const int key = keys.at(random.bounded(int(keys.size())));
        press(Qt::Key(key));
        return QStringLiteral("key %1").arg(key);
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void theFocusIsSeenAfterAnyKeysAndChanges()
    {
        constexpr quint32 seed = 20260306 + STBUI_PART;
        const QString language = QStringList { "en", "de", "ar", "ru" }.at(STBUI_PART - 1);
        gallery::Options options;
        options.screen = "guide";
        options.language = language;
        start(options);
        guides::ChangingGuide data(seed);
        QRandomGenerator random(seed + 1000);
        int left = 0;
        for (int i = 0; i < steps; ++i) {
            const QString done = step(data, random);
            left += int(shell()->screen() != "guide");
            backToTheGuide();
            QCoreApplication::processEvents();
            const QString found = problem();
            QVERIFY2(found.isEmpty(), qPrintable(QStringLiteral("step %1, %2: %3").arg(i).arg(done, found)));
        }
        QVERIFY(left > 20); // Back and Play were among the keys
    }
};

STB_TEST_MAIN(tst_GuideFocus)
#include "tst_guidefocus.moc"
