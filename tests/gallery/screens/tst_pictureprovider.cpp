// SPDX-License-Identifier: MIT
#include "gallery/screens/picturedecoder.h"
#include "picturerequest.h"
#include "testkit/peakmemory.h"
#include "testkit/testcase.h"

#include <QtCore/qbuffer.h>
#include <QtCore/qfile.h>
#include <QtCore/qloggingcategory.h>
#include <QtCore/qscopeguard.h>
#include <QtCore/qtemporarydir.h>

#include <sys/stat.h>

#include <vector>

using namespace gallery;

class TestPictureProvider : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void aPictureFillsTheSizeFromItsMiddle_data();
    void aPictureFillsTheSizeFromItsMiddle();
    void aWholePictureFitsTheSize();
    void aFramedPictureStandsWholeInTheMiddle();
    void aFrameWithoutRoomLeavesAPixel();
    void aPictureIsNeverMadeLarger_data();
    void aPictureIsNeverMadeLarger();
    void withoutASizeAPictureIsAsLargeAsAScreen();
    void aNamePassesWithAllItsCharacters();
    void anEmptyAddressStaysEmpty();
    void whatIsNoPictureGivesNone_data();
    void whatIsNoPictureGivesNone();
    void aPictureCutOffAnywhereGivesNone_data();
    void aPictureCutOffAnywhereGivesNone();
    void aCameraTurnedOnItsSideIsTurnedBack();
    void aHugePictureTakesNoMemory_data();
    void aHugePictureTakesNoMemory();
    void theLargestPictureTakesLittleMemory_data();
    void theLargestPictureTakesLittleMemory();
    void manyPicturesAtOnceAllArrive();
    void requestsTakenBackLeaveTheOthersAlone();
    void theEngineMayGoWhilePicturesAreRead();

private:
    QString write(const char *name, const QByteArray &content) const;

    QTemporaryDir m_folder;
    QString m_stripes; // 300 x 100: a third red, green and blue
    QString m_large; // 4000 x 4000
};

namespace {

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, format) ? bytes : QByteArray();
}

QImage stripes()
{
    QImage image(300, 100, QImage::Format_RGB32);
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 300; ++x)
            image.setPixel(x, y, x < 100 ? qRgb(255, 0, 0) : x < 200 ? qRgb(0, 255, 0) : qRgb(0, 0, 255));
    }
    return image;
}

// A picture that is not all one colour, so that it has a size when packed.
QImage speckled(int side, QImage::Format format)
{
    QImage image(side, side, format);
    for (int y = 0; y < side; ++y) {
        uchar *line = image.scanLine(y);
        for (qsizetype i = 0; i < image.bytesPerLine(); ++i)
            line[i] = uchar((i * 7 + y * (y % 13)) % 251);
    }
    return image;
}

QUrl file(const QString &name)
{
    return QUrl::fromLocalFile(name);
}

} // namespace

QString TestPictureProvider::write(const char *name, const QByteArray &content) const
{
    QFile file(m_folder.filePath(QString::fromUtf8(name)));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName()
                                                                                    : QString();
}

void TestPictureProvider::initTestCase()
{
    m_stripes = write("stripes.png", encoded(stripes(), "PNG"));
    m_large = write("large.jpg", encoded(speckled(4000, QImage::Format_RGB888), "JPEG"));
    QVERIFY(!m_stripes.isEmpty());
    QVERIFY(!m_large.isEmpty());
}

void TestPictureProvider::aPictureFillsTheSizeFromItsMiddle_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("PNG") << QByteArray("PNG");
    QTest::newRow("JPEG") << QByteArray("JPEG");
    QTest::newRow("BMP") << QByteArray("BMP");
}

void TestPictureProvider::aPictureFillsTheSizeFromItsMiddle()
{
    QFETCH(QByteArray, format);
    const QString name = write("middle", encoded(stripes(), format));
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::filling(file(name), 47, 31));
    QTRY_VERIFY(request.isOver());
    const QImage image = request.image();
    QCOMPARE(image.size(), QSize(47, 31));
    // 300 x 100 becomes 93 x 31, of which the middle 47 begin in the red third and end in the blue one.
    QVERIFY(qRed(image.pixel(2, 15)) > 200 && qGreen(image.pixel(2, 15)) < 50);
    QVERIFY(qGreen(image.pixel(23, 15)) > 200 && qRed(image.pixel(23, 15)) < 50);
    QVERIFY(qBlue(image.pixel(44, 15)) > 200 && qGreen(image.pixel(44, 15)) < 50);
}

void TestPictureProvider::aWholePictureFitsTheSize()
{
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::fitting(file(m_stripes), 60, 60));
    QTRY_VERIFY(request.isOver());
    QCOMPARE(request.image().size(), QSize(60, 20));
}

void TestPictureProvider::aFramedPictureStandsWholeInTheMiddle()
{
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::framed(file(m_stripes), 70, 50, 5));
    QTRY_VERIFY(request.isOver());
    const QImage image = request.image();
    QCOMPARE(image.size(), QSize(70, 50));
    QCOMPARE(image.pixelColor(35, 14), QColor(Qt::transparent)); // 60 x 20 pixels from 5, 15
    QCOMPARE(image.pixelColor(35, 35), QColor(Qt::transparent));
    QCOMPARE(image.pixelColor(4, 25), QColor(Qt::transparent));
    QCOMPARE(image.pixelColor(65, 25), QColor(Qt::transparent));
    QCOMPARE(image.pixelColor(8, 25), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(35, 25), QColor(0, 255, 0));
    QCOMPARE(image.pixelColor(62, 25), QColor(0, 0, 255));
}

void TestPictureProvider::aFrameWithoutRoomLeavesAPixel()
{
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::framed(file(m_stripes), 20, 10, 300));
    QTRY_VERIFY(request.isOver());
    QCOMPARE(request.image().size(), QSize(20, 10));
}

void TestPictureProvider::aPictureIsNeverMadeLarger_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QSize>("size");
    QTest::newRow("its middle") << Pictures::filling(file(m_stripes), 500, 500) << QSize(100, 100);
    QTest::newRow("its whole width") << Pictures::filling(file(m_stripes), 900, 100) << QSize(300, 33);
    QTest::newRow("whole") << Pictures::fitting(file(m_stripes), 900, 900) << QSize(300, 100);
    QTest::newRow("far too large") << Pictures::filling(file(m_stripes), 2000000000, 2000000000)
                                   << QSize(100, 100);
}

void TestPictureProvider::aPictureIsNeverMadeLarger()
{
    QFETCH(QUrl, url);
    PictureEngine engine;
    const PictureRequest request(&engine, url);
    QTRY_VERIFY(request.isOver());
    QTEST(request.image().size(), "size");
}

void TestPictureProvider::withoutASizeAPictureIsAsLargeAsAScreen()
{
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::filling(file(m_large), 0, -5));
    QTRY_VERIFY(request.isOver());
    QCOMPARE(request.image().size(), QSize(1080, 1080));
}

void TestPictureProvider::aNamePassesWithAllItsCharacters()
{
    const QString name = write("a b#c?d%20e&f=g+h;Ж.png", encoded(stripes(), "PNG"));
    QVERIFY(!name.isEmpty());
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::filling(file(name), 30, 30));
    QTRY_VERIFY(request.isOver());
    QCOMPARE(request.image().size(), QSize(30, 30));
}

void TestPictureProvider::anEmptyAddressStaysEmpty()
{
    QCOMPARE(Pictures::filling(QUrl(), 30, 30), QUrl());
    QCOMPARE(Pictures::fitting(QUrl(), 30, 30), QUrl());
    QCOMPARE(Pictures::framed(QUrl(), 30, 30, 3), QUrl());
}

void TestPictureProvider::whatIsNoPictureGivesNone_data()
{
    QTest::addColumn<QUrl>("picture");
    const QByteArray png = encoded(stripes(), "PNG");
    QByteArray damaged = png;
    damaged[png.size() / 2] = char(~damaged[png.size() / 2]);
    QByteArray boundless = png;
    boundless.replace(16, 8, QByteArray::fromHex("7fffffff7fffffff")); // width and height
    QTest::newRow("missing") << file(m_folder.filePath(QStringLiteral("none.png")));
    QTest::newRow("a folder") << file(m_folder.path());
    QTest::newRow("empty") << file(write("empty.png", ""));
    QTest::newRow("text") << file(write("text.png", "This is no picture.\n"));
    QTest::newRow("only the first bytes") << file(write("start.png", png.left(8)));
    QTest::newRow("damaged") << file(write("damaged.png", damaged));
    QTest::newRow("boundless") << file(write("boundless.png", boundless));
    QTest::newRow("a drawing") << file(
            write("a.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"));
    QTest::newRow("another scheme") << QUrl(QStringLiteral("ftp://127.0.0.1/a.png"));
    QTest::newRow("no resource") << QUrl(QStringLiteral("qrc:/none.png"));
    QTest::newRow("itself") << Pictures::filling(file(m_stripes), 30, 30);
    const QString pipe = m_folder.filePath(QStringLiteral("pipe.png"));
    if (::mkfifo(qPrintable(pipe), 0600) == 0)
        QTest::newRow("a pipe") << file(pipe);
}

void TestPictureProvider::whatIsNoPictureGivesNone()
{
    QFETCH(QUrl, picture);
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::filling(picture, 30, 30));
    QTRY_VERIFY(request.isOver());
    QVERIFY(request.failed());
    QVERIFY(request.image().isNull());
}

void TestPictureProvider::aPictureCutOffAnywhereGivesNone_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("PNG") << QByteArray("PNG");
    QTest::newRow("JPEG") << QByteArray("JPEG");
}

void TestPictureProvider::aPictureCutOffAnywhereGivesNone()
{
    QFETCH(QByteArray, format);
    // The decoder has words of its own for each way to be cut off.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false"));
    const auto restore = qScopeGuard([] { QLoggingCategory::setFilterRules(QString()); });
    QByteArray whole = encoded(speckled(64, QImage::Format_RGB888), format);
    for (qsizetype size = 0; size < whole.size() - 12; size += 1 + size / 16) {
        QByteArray part = whole.left(size);
        QBuffer buffer(&part);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        const DecodedPicture picture = decodePicture(&buffer, { QSize(16, 16), false });
        QVERIFY2(picture.image.isNull(), qPrintable(QString::number(size)));
        QVERIFY(!picture.error.isEmpty());
    }
    QBuffer buffer(&whole);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QCOMPARE(decodePicture(&buffer, { QSize(16, 16), false }).image.size(), QSize(16, 16));
}

// An EXIF block that says "turned by 90 degrees".
void TestPictureProvider::aCameraTurnedOnItsSideIsTurnedBack()
{
    const QByteArray exif = QByteArray::fromHex("ffe10022"
                                                "457869660000"
                                                "4d4d002a00000008"
                                                "0001"
                                                "0112"
                                                "0003"
                                                "00000001"
                                                "00060000"
                                                "00000000");
    QByteArray picture = encoded(stripes(), "JPEG");
    picture.insert(2, exif);
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::filling(file(write("turned.jpg", picture)), 20, 60));
    QTRY_VERIFY(request.isOver());
    const QImage image = request.image();
    QCOMPARE(image.size(), QSize(20, 60));
    QVERIFY(qRed(image.pixel(10, 5)) > 200);
    QVERIFY(qBlue(image.pixel(10, 55)) > 200);
}

void TestPictureProvider::aHugePictureTakesNoMemory_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("PNG") << QByteArray("PNG");
    QTest::newRow("JPEG") << QByteArray("JPEG");
}

void TestPictureProvider::aHugePictureTakesNoMemory()
{
    QFETCH(QByteArray, format);
    const QString name = write("huge", encoded(speckled(8000, QImage::Format_Grayscale8), format));
    QVERIFY(!name.isEmpty());
    PictureEngine engine;
    const stbtest::PeakMemory peak;
    QVERIFY(peak.isValid());
    const PictureRequest request(&engine, Pictures::filling(file(name), 270, 152));
    QTRY_VERIFY(request.isOver());
    QVERIFY(request.failed());
    QVERIFY2(peak.bytes() < 8 * 1024 * 1024, qPrintable(QString::number(peak.bytes())));
}

void TestPictureProvider::theLargestPictureTakesLittleMemory_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<int>("pictureFormat");
    QTest::addColumn<int>("megabytes");
    // Up to Qt 6.4 a PNG picture is scaled row by row while it is read; 6.8 holds the whole of it, 64 MiB.
    const int png = QT_VERSION < QT_VERSION_CHECK(6, 5, 0) ? 32 : 80;
    QTest::newRow("PNG") << QByteArray("PNG") << int(QImage::Format_RGB888) << png;
    QTest::newRow("grey PNG") << QByteArray("PNG") << int(QImage::Format_Grayscale8) << 112;
    QTest::newRow("JPEG") << QByteArray("JPEG") << int(QImage::Format_RGB888) << 32;
}

void TestPictureProvider::theLargestPictureTakesLittleMemory()
{
    QFETCH(QByteArray, format);
    QFETCH(int, pictureFormat);
    QFETCH(int, megabytes);
    const QString name = write("largest", encoded(speckled(4096, QImage::Format(pictureFormat)), format));
    QVERIFY(!name.isEmpty());
    PictureEngine engine;
    const stbtest::PeakMemory peak;
    const PictureRequest request(&engine, Pictures::filling(file(name), 270, 152));
    QTRY_VERIFY_WITH_TIMEOUT(request.isOver(), 60000);
    QCOMPARE(request.image().size(), QSize(270, 152));
    qInfo() << "peak:" << peak.bytes() / 1024 << "KiB";
    QVERIFY2(peak.bytes() < qint64(megabytes) * 1024 * 1024, qPrintable(QString::number(peak.bytes())));
}

void TestPictureProvider::manyPicturesAtOnceAllArrive()
{
    PictureEngine engine;
    std::vector<std::unique_ptr<PictureRequest>> requests;
    requests.reserve(300);
    for (int i = 0; i < 300; ++i)
        requests.push_back(
                std::make_unique<PictureRequest>(&engine, Pictures::filling(file(m_stripes), i + 1, 20)));
    for (int i = 0; i < 300; ++i) {
        QTRY_VERIFY(requests[size_t(i)]->isOver());
        QCOMPARE(requests[size_t(i)]->image().size(), QSize(i + 1, 20));
    }
}

void TestPictureProvider::requestsTakenBackLeaveTheOthersAlone()
{
    PictureEngine engine;
    std::vector<std::unique_ptr<PictureRequest>> requests;
    requests.reserve(60);
    for (int i = 0; i < 60; ++i)
        requests.push_back(
                std::make_unique<PictureRequest>(&engine, Pictures::filling(file(m_large), 30, i + 1)));
    for (size_t i = 0; i < 60; ++i) {
        if (i != 30)
            requests[i]->takeBack();
    }
    QTRY_VERIFY(requests[30]->isOver());
    QCOMPARE(requests[30]->image().size(), QSize(30, 31));
}

void TestPictureProvider::theEngineMayGoWhilePicturesAreRead()
{
    for (int round = 0; round < 10; ++round) {
        std::vector<std::unique_ptr<PictureRequest>> requests;
        requests.reserve(30);
        auto engine = std::make_unique<PictureEngine>();
        for (int i = 0; i < 30; ++i)
            requests.push_back(std::make_unique<PictureRequest>(engine.get(),
                                                                Pictures::filling(file(m_large), 30, i + 1)));
        for (int turn = 0; turn < round; ++turn)
            QCoreApplication::processEvents();
        // Items are gone before their engine is, in part.
        requests.resize(15);
        engine.reset();
        QCoreApplication::processEvents();
    }
}

STB_TEST_MAIN(TestPictureProvider)
#include "tst_pictureprovider.moc"
