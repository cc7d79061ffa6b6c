// SPDX-License-Identifier: MIT
#include "guidetext.h"
#include "testkit/peakmemory.h"
#include "testkit/testcase.h"

#include <QtCore/qiodevice.h>
#include <QtCore/qtimezone.h>

using namespace gallery;

namespace {

constexpr qint64 megabyte = 1024 * 1024;

/*! A guide file of a given size that is nowhere as a whole: it is written while it is read. */
class Generator : public QIODevice
{
public:
    explicit Generator(qint64 size)
        : m_left(size)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }
    qint64 programmes() const { return m_programmes; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        if (m_text.isEmpty() && m_left <= 0)
            return -1;
        while (m_text.size() < maxSize && m_left > 0)
            write();
        const qsizetype size = std::min<qsizetype>(maxSize, m_text.size());
        std::copy_n(m_text.constData(), size, data);
        m_text.remove(0, size);
        return size;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    void write()
    {
        const qsizetype before = m_text.size();
        if (m_programmes == 0)
            m_text += "<?xml version=\"1.0\"?>\n<tv>\n";
        const QByteArray number = QByteArray::number(m_programmes);
        const QDateTime start = QDateTime::fromSecsSinceEpoch(1448568000 + (m_programmes / 40) * 1800,
                                                              QTimeZone::utc());
        const QByteArray channel = "channel" + QByteArray::number(m_programmes % 40);
        m_text += "<programme start=\"" + start.toString(QStringLiteral("yyyyMMddHHmmss")).toLatin1()
                  + " +0000\" channel=\"" + channel + "\"><title lang=\"en\">Title "
                  + QByteArray::number(m_programmes % 997) + "</title><sub-title>Part " + number
                  + "</sub-title><desc lang=\"en\">" + ("Text " + number + ' ').repeated(33)
                  + "</desc><credits><actor>Somebody Else</actor></credits></programme>\n";
        ++m_programmes;
        m_left -= m_text.size() - before;
        if (m_left <= 0)
            m_text += "</tv>\n";
    }

    QByteArray m_text;
    qint64 m_left = 0;
    qint64 m_programmes = 0;
};

} // namespace

class TestGuideMemory : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void readingNeedsLittleMoreThanTheGuideItself_data();
    void readingNeedsLittleMoreThanTheGuideItself();
    void equalTextsAreKeptOnce();
};

void TestGuideMemory::readingNeedsLittleMoreThanTheGuideItself_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<qint64>("allowed");
    // Blocks, the XML reader and the allocator take about 2 MB whatever the file's size, and the table of
    // known texts about 24 bytes for each text, of which there are 90,000 in 20 MB. The file itself, or a
    // second copy of the guide, would not fit.
    QTest::newRow("20 MB") << 20 * megabyte << 8 * megabyte;
    QTest::newRow("200 MB") << 200 * megabyte << 64 * megabyte;
}

void TestGuideMemory::readingNeedsLittleMoreThanTheGuideItself()
{
    QFETCH(qint64, size);
    QFETCH(qint64, allowed);
    Generator file(size);
    const stbtest::PeakMemory memory;
    QVERIFY(memory.isValid());
    const GuideReport report = readGuide(&file, QStringLiteral("generated"));
    const qint64 peak = memory.bytes();
    QCOMPARE(report.error, QString());
    QCOMPARE(report.guide.programmeCount(), file.programmes());
    const qint64 kept = report.guide.memoryUsage();
    qInfo("%lld programmes, kept %lld kB, peak %lld kB", file.programmes(), kept / 1024, peak / 1024);
    QVERIFY(kept > size * 2 / 5); // the descriptions alone
    QVERIFY(peak > kept);
    QVERIFY2(peak - kept < allowed, QByteArray::number((peak - kept) / 1024) + " kB");
}

void TestGuideMemory::equalTextsAreKeptOnce()
{
    const QByteArray description = QByteArray(5000, 'x');
    QByteArray body;
    for (int i = 0; i < 500; ++i)
        body += R"(<programme channel="c" start="2015" clumpidx=")" + QByteArray::number(i)
                + R"("><title>A</title><desc>)" + description + "</desc></programme>";
    const GuideReport report = guidetext::read(guidetext::tv(body));
    QCOMPARE(report.guide.programmeCount(), 500);
    QCOMPARE(report.guide.programme(0, 499).description.size(), description.size());
    QVERIFY(report.guide.memoryUsage() < 500000); // 2.5 million when each is kept
}

STB_TEST_MAIN(TestGuideMemory)
#include "tst_guidememory.moc"
