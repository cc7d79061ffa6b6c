// SPDX-License-Identifier: MIT
#include "screentest.h"
#include "testkit/counters.h"
#include "testkit/peakmemory.h"

#include "gallery/data/clock.h"

#include <QtCore/qelapsedtimer.h>
#include <QtGui/qimage.h>

namespace {

constexpr int channelCount = 1000;
constexpr int showsPerChannel = 250;

/*! Channels with \a shows of half an hour and 41 minutes by turns, from four days ago on. */
gallery::Guide generated(int channels, int shows)
{
    gallery::GuideBuilder builder;
    const qint64 begin = guides::at(0, 0).addDays(-4).toSecsSinceEpoch();
    for (int channel = 0; channel < channels; ++channel) {
        const QString id = QString::number(channel);
        builder.addChannel({ id, "Channel " + id, id, {} });
        const qint64 length = channel % 2 == 0 ? 1800 : 2460;
        for (int i = 0; i < shows; ++i) {
            gallery::NewProgramme programme;
            programme.channelId = id;
            programme.start = begin + i * length;
            programme.stop = programme.start + length;
            programme.title = QStringLiteral("Show %1").arg(i % 40);
            programme.description = "All of " + programme.title;
            builder.addProgramme(programme);
        }
    }
    return builder.take();
}

int itemsNamed(const QQuickItem *item, const QString &name)
{
    int count = item->objectName() == name ? 1 : 0;
    const QList<QQuickItem *> children = item->childItems();
    for (const QQuickItem *child : children)
        count += itemsNamed(child, name);
    return count;
}

} // namespace

/*! A guide of 1,000 channels with 250 programmes each: what its first screen and its keys take. */
class tst_LongGuide : public ScreenTest
{
    Q_OBJECT

    void show(const gallery::Guide &guide)
    {
        gallery::Options options;
        options.screen = "guide";
        start(options);
        shell()->guide()->setGuide(guide);
        shell()->guide()->start();
        // Whatever a key needs for the first time is there.
        for (const Qt::Key key : { Qt::Key_Right, Qt::Key_Down, Qt::Key_Up, Qt::Key_Left })
            press(key);
        settle();
    }
    void settle() const
    {
        view()->grabWindow();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QList<int> created(const QList<Qt::Key> &keys) const
    {
        QList<int> counts;
        for (const Qt::Key key : keys) {
            counts.append(stbtest::objectsCreated([this, key] { press(key); }));
            settle();
        }
        return counts;
    }

    gallery::Guide m_long;

private Q_SLOTS:
    void initTestCase()
    {
        m_long = generated(channelCount, showsPerChannel);
        QCOMPARE(m_long.programmeCount(), qint64(channelCount) * showsPerChannel);
    }
    void cleanup() { end(); }

    void modelsTakeNothingForEachProgramme()
    {
        gallery::Clock clock;
        clock.setFixed(guides::at(20, 5));
        const stbtest::PeakMemory memory;
        gallery::GuideController guide(&clock);
        guide.setGuide(m_long);
        QCOMPARE(guide.channels()->rowCount(), channelCount);
        QVERIFY(memory.isValid());
        // A pointer for each programme would be 2 MB; for each channel there may be something.
        QVERIFY2(memory.bytes() < 1000000, qPrintable(QString::number(memory.bytes())));
        qInfo("the guide takes %lld kB, its models %lld kB", m_long.memoryUsage() / 1024,
              memory.bytes() / 1024);
    }

    void theGuideItselfTakesLittleForEachProgramme()
    {
        // Texts that repeat are kept once; what is left are times and references to texts.
        QVERIFY2(m_long.memoryUsage() < m_long.programmeCount() * 80,
                 qPrintable(QString::number(m_long.memoryUsage())));
    }

    void onlyVisibleRowsAreItems()
    {
        gallery::Options options;
        options.screen = "guide";
        start(options);
        QElapsedTimer timer;
        timer.start();
        shell()->guide()->setGuide(m_long);
        shell()->guide()->start();
        const QImage first = view()->grabWindow();
        qInfo("the first screen is there after %lld ms", timer.elapsed());
        QVERIFY(!first.isNull());
        settle();
        const QQuickItem *root = view()->rootObject();
        QVERIFY(shell()->guide()->programmes()->rowCount() > 35);
        QVERIFY2(itemsNamed(root, "programme") <= 8,
                 qPrintable(QString::number(itemsNamed(root, "programme"))));
        QVERIFY2(itemsNamed(root, "channel") <= 9, qPrintable(QString::number(itemsNamed(root, "channel"))));
        QCOMPARE(itemsNamed(root, "card"), 1);
        // The list in sight, and nothing else, is what grows with its height.
        for (int i = 0; i < 30; ++i)
            press(Qt::Key_Right);
        settle();
        QVERIFY(itemsNamed(root, "programme") <= 8);
        QVERIFY(itemsNamed(root, "channel") <= 9);
    }

    void aKeyTakesAsMuchAsInAShortGuide()
    {
        const QList<Qt::Key> keys { Qt::Key_Down,          Qt::Key_Down,  Qt::Key_Up,
                                    Qt::Key_Right,         Qt::Key_Right, Qt::Key_MediaNext,
                                    Qt::Key_MediaPrevious, Qt::Key_Left };
        show(generated(20, showsPerChannel));
        const QList<int> inShort = created(keys);
        show(m_long);
        const QList<int> inLong = created(keys);
        qInfo() << "objects for each key:" << inShort << inLong;
        for (qsizetype i = 0; i < keys.size(); ++i) {
            // A picture that arrives meanwhile brings an object or two.
            QVERIFY2(inLong[i] <= inShort[i] + 30, qPrintable(QString::number(i)));
            QVERIFY2(inLong[i] <= 600, qPrintable(QString::number(i)));
        }
    }

    void theLastChannelIsReachedLikeTheFirst()
    {
        show(m_long);
        for (int i = 0; i < channelCount; ++i)
            shell()->guide()->press(Qt::Key_ChannelUp);
        settle();
        QCOMPARE(shell()->guide()->channelRow(), channelCount - 1);
        QCOMPARE(item("channels")->property("currentIndex").toInt(), channelCount - 1);
        QCOMPARE(plateProblem(sceneRect(item("programmes"))), QString());
    }
};

STB_TEST_MAIN(tst_LongGuide)
#include "tst_longguide.moc"
