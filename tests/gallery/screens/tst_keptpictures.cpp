// SPDX-License-Identifier: MIT
#include "gallery/screens/picturestore.h"
#include "picturerequest.h"
#include "testkit/peakmemory.h"
#include "testkit/testcase.h"

#include <QtCore/qbuffer.h>
#include <QtCore/qdatetime.h>
#include <QtCore/qfile.h>
#include <QtCore/qloggingcategory.h>
#include <QtCore/qtemporarydir.h>

#include <unistd.h>

#include <deque>
#include <vector>

using namespace gallery;

namespace {

constexpr int kibibyte = 1024;
constexpr int mebibyte = 1024 * 1024;

QImage colored(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

} // namespace

class TestKeptPictures : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        // What cannot be read is refused with a warning of Qt's reader.
        QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.warning=false"));
    }

    void aPictureThatComesBackIsNotReadAgain()
    {
        const QUrl picture = write("again.png", Qt::red);
        PictureEngine engine;
        QImage first;
        {
            const PictureRequest request(&engine, Pictures::filling(picture, 60, 40));
            QTRY_VERIFY(request.isOver());
            first = request.image();
        }
        const PictureRequest request(&engine, Pictures::filling(picture, 60, 40));
        QTRY_VERIFY(request.isOver());
        QCOMPARE(request.image(), first);
        QCOMPARE(request.image().pixelColor(30, 20), QColor(Qt::red));
        QCOMPARE(engine.provider()->decodedPictures(), 1);
    }

    void tilesThatShowTheSameShareItsPixels()
    {
        const QUrl picture = Pictures::filling(write("shared.png", Qt::green), 60, 40);
        PictureEngine engine;
        std::vector<std::unique_ptr<PictureRequest>> requests;
        requests.reserve(20);
        for (int i = 0; i < 20; ++i)
            requests.push_back(std::make_unique<PictureRequest>(&engine, picture));
        for (const auto &request : requests) {
            QTRY_VERIFY(request->isOver());
            QCOMPARE(request->image().constBits(), requests.front()->image().constBits());
        }
        QVERIFY(requests.front()->image().constBits() != nullptr);
        QCOMPARE(engine.provider()->decodedPictures(), 1);
        QCOMPARE(engine.provider()->pendingPictures(), 0);
    }

    void whoStillWaitsGetsThePictureThatOthersTookBack()
    {
        const QUrl picture = Pictures::filling(write("waiting.png", Qt::blue, { 2000, 2000 }), 60, 40);
        PictureEngine engine;
        for (int round = 0; round < 20; ++round) {
            PictureRequest first(&engine, picture);
            PictureRequest second(&engine, picture);
            const PictureRequest third(&engine, picture);
            first.takeBack();
            for (int turn = 0; turn < round; ++turn)
                QCoreApplication::processEvents();
            second.takeBack();
            QTRY_VERIFY(third.isOver());
            QCOMPARE(third.image().size(), QSize(60, 40));
        }
        QTRY_COMPARE(engine.provider()->pendingPictures(), 0);
    }

    void aPictureThatAllTookBackCanBeAskedForAgain()
    {
        const QUrl picture = Pictures::filling(write("back.png", Qt::cyan, { 2000, 2000 }), 60, 40);
        PictureEngine engine;
        for (int round = 0; round < 20; ++round) {
            {
                const PictureRequest first(&engine, picture);
                const PictureRequest second(&engine, picture);
                for (int turn = 0; turn < round; ++turn)
                    QCoreApplication::processEvents();
            }
            const PictureRequest again(&engine, picture);
            QTRY_VERIFY(again.isOver());
            QCOMPARE(again.image().size(), QSize(60, 40));
        }
    }

    void aFileThatHasChangedIsReadAgain()
    {
        const QUrl picture = write("changed.png", Qt::red);
        PictureEngine engine;
        {
            const PictureRequest request(&engine, Pictures::filling(picture, 60, 40));
            QTRY_VERIFY(request.isOver());
        }
        write("changed.png", Qt::yellow);
        QFile file(picture.toLocalFile());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(5), QFileDevice::FileModificationTime));
        file.close();
        const PictureRequest request(&engine, Pictures::filling(picture, 60, 40));
        QTRY_VERIFY(request.isOver());
        QCOMPARE(request.image().pixelColor(30, 20), QColor(Qt::yellow));
        QCOMPARE(engine.provider()->decodedPictures(), 2);
    }

    void anotherSizeIsAnotherPicture()
    {
        const QUrl picture = write("sizes.png", Qt::red);
        PictureEngine engine;
        const PictureRequest small(&engine, Pictures::filling(picture, 30, 20));
        const PictureRequest large(&engine, Pictures::filling(picture, 60, 40));
        QTRY_VERIFY(small.isOver() && large.isOver());
        QCOMPARE(small.image().size(), QSize(30, 20));
        QCOMPARE(large.image().size(), QSize(60, 40));
        QCOMPARE(engine.provider()->decodedPictures(), 2);
    }

    void whatCouldNotBeReadIsTriedAgain()
    {
        const QString name = m_folder.filePath(QStringLiteral("late.png"));
        const QUrl picture = Pictures::filling(QUrl::fromLocalFile(name), 60, 40);
        PictureEngine engine;
        {
            const PictureRequest request(&engine, picture);
            QTRY_VERIFY(request.isOver());
            QVERIFY(request.failed());
        }
        write("late.png", Qt::red);
        const PictureRequest request(&engine, picture);
        QTRY_VERIFY(request.isOver());
        QCOMPARE(request.image().size(), QSize(60, 40));
    }

    void aDownloadThatIsKeptIsNotRepeated()
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::WriteOnly));
        QVERIFY(colored({ 80, 60 }, Qt::magenta).save(&buffer, "PNG"));
        const QUrl picture(QStringLiteral("data:image/png;base64,") + QString::fromLatin1(bytes.toBase64()));
        PictureEngine engine;
        for (int round = 0; round < 2; ++round) {
            const PictureRequest request(&engine, Pictures::filling(picture, 60, 40));
            QTRY_VERIFY(request.isOver());
            QCOMPARE(request.image().pixelColor(30, 20), QColor(Qt::magenta));
        }
        QCOMPARE(engine.provider()->decodedPictures(), 1);
    }

    void whatIsKeptStaysWithinTheBudget()
    {
        // Of 60 x 40 pixels a picture has 9,600 bytes, and its key some hundred.
        PictureEngine engine({}, 30 * kibibyte);
        const QUrl picture = write("budget.png", Qt::red);
        for (int height : { 40, 39, 38, 37 }) {
            const PictureRequest request(&engine, Pictures::filling(picture, 60, height));
            QTRY_VERIFY(request.isOver());
            QCOMPARE_LE(engine.provider()->keptBytes(), qsizetype(30) * kibibyte);
            QCOMPARE_GE(engine.provider()->keptBytes(), qsizetype(60) * 37 * 4);
        }
        QCOMPARE(engine.provider()->decodedPictures(), 4);
        for (int height : { 37, 38, 39 }) { // the latest, and what had to go for them
            const PictureRequest request(&engine, Pictures::filling(picture, 60, height));
            QTRY_VERIFY(request.isOver());
        }
        QCOMPARE(engine.provider()->decodedPictures(), 4);
        const PictureRequest request(&engine, Pictures::filling(picture, 60, 40));
        QTRY_VERIFY(request.isOver());
        QCOMPARE(engine.provider()->decodedPictures(), 5);
    }

    void aPictureAboveTheBudgetIsShownAndNotKept()
    {
        PictureStore store(kibibyte);
        store.insert(QStringLiteral("large"), colored({ 60, 40 }, Qt::red));
        QVERIFY(store.find(QStringLiteral("large")).isNull());
        QCOMPARE(store.bytes(), 0);
        store.insert(QStringLiteral("small"), colored({ 10, 10 }, Qt::red));
        QCOMPARE(store.find(QStringLiteral("small")).size(), QSize(10, 10));
        store.insert(QStringLiteral("null"), QImage());
        QCOMPARE(store.bytes(), 400 + 10);
    }

    void fiveThousandLargePostersStayWithinTheBudget();

private:
    QUrl write(const char *name, const QColor &color, const QSize &size = { 120, 80 }) const
    {
        const QString path = m_folder.filePath(QString::fromUtf8(name));
        return colored(size, color).save(path) ? QUrl::fromLocalFile(path) : QUrl();
    }

    QTemporaryDir m_folder;
};

/*!
    Scrolls a wall of 5,000 posters of 4000 x 3000 pixels, 24 of which are in sight: page by page to the end and back, with a stop at every
    tenth. What one flies past is taken back before it is read, as far as it has not begun.
*/
void TestKeptPictures::fiveThousandLargePostersStayWithinTheBudget()
{
    constexpr int posters = 5000;
    constexpr int inSight = 24;
    constexpr QSize shown(200, 150);
    const QByteArray original = m_folder.filePath(QStringLiteral("poster.jpg")).toLocal8Bit();
    QVERIFY(colored({ 4000, 3000 }, Qt::darkCyan).save(QString::fromLocal8Bit(original)));
    QList<QUrl> files;
    for (int i = 0; i < posters; ++i) {
        const QString name = m_folder.filePath(QStringLiteral("poster%1.jpg").arg(i));
        QCOMPARE(::link(original.constData(), name.toLocal8Bit().constData()), 0);
        files.append(Pictures::filling(QUrl::fromLocalFile(name), shown.width(), shown.height()));
    }

    constexpr int budget = 8 * mebibyte; // 69 posters
    PictureEngine engine({}, budget);
    const stbtest::PeakMemory peak;
    QVERIFY(peak.isValid());
    std::deque<std::unique_ptr<PictureRequest>> wall;
    int page = 0;
    const auto showPage = [&](int first) {
        wall.clear();
        for (int i = first; i < std::min(first + inSight, posters); ++i)
            wall.push_back(std::make_unique<PictureRequest>(&engine, files.at(i)));
        QCoreApplication::processEvents();
    };
    const auto scroll = [&](int first) {
        showPage(first);
        if (++page % 10 != 0)
            return true;
        for (const auto &request : wall) {
            if (!QTest::qWaitFor([&] { return request->isOver(); }, 30000) || request->image().size() != shown)
                return false;
        }
        return engine.provider()->keptBytes() <= budget;
    };
    for (int first = 0; first < posters; first += inSight)
        QVERIFY2(scroll(first), qPrintable(QString::number(first)));
    for (int first = posters - inSight; first >= 0; first -= inSight)
        QVERIFY2(scroll(first), qPrintable(QString::number(first)));
    QCOMPARE_GE(engine.provider()->keptBytes(), qsizetype(budget) / 2);
    qInfo() << engine.provider()->decodedPictures() << "decoded, peak" << peak.bytes() / kibibyte << "KiB";
    // Beside what is kept: a page in sight, and the decoders' work, as little as a JPEG picture of this size needs.
    QVERIFY2(peak.bytes() < budget + 16 * mebibyte, qPrintable(QString::number(peak.bytes())));
}

STB_TEST_MAIN(TestKeptPictures)
#include "tst_keptpictures.moc"
