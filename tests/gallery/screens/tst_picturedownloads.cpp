// SPDX-License-Identifier: MIT
#include "picturerequest.h"
#include "testkit/testcase.h"

#include <QtCore/qbuffer.h>
#include <QtNetwork/qtcpserver.h>
#include <QtNetwork/qtcpsocket.h>

#include <vector>

using namespace gallery;

class TestPictureDownloads : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aPictureComesFromAServer();
    void aPictureComesFromItsOwnAddress();
    void aRedirectionIsFollowed();
    void anAnswerThatIsNoPictureGivesNone_data();
    void anAnswerThatIsNoPictureGivesNone();
    void aServerThatNeverAnswersIsGivenUp();
    void aServerThatTricklesIsGivenUp();
    void aServerThatIsNotThereGivesNone();
    void aSlowServerHoldsNothingElseUp();
    void aDownloadTakenBackClosesItsConnection();
    void theEngineMayGoWhileAServerIsSlow();
    void manyDownloadsAtOnceAllArrive();
    void theBytesOfAllDownloadsAreBounded();
};

namespace {

QByteArray picture()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImage image(90, 60, QImage::Format_RGB32);
    image.fill(QColor(10, 200, 30));
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray answer(const QByteArray &body, const QByteArray &status = "200 OK", const QByteArray &more = {})
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size())
           + "\r\nConnection: close\r\n" + more + "\r\n" + body;
}

/*! A web server that gives every connection the same answer, or none. */
class Server : public QTcpServer
{
public:
    explicit Server(const QByteArray &reply = {})
        : m_reply(reply)
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = nextPendingConnection())
                serve(socket);
        });
    }

    QUrl url(const char *path = "/a.png") const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(QLatin1String(path)));
    }
    int connections() const { return m_connections; }
    int open() const { return m_open; }
    /*! Sends \a bytes to everybody who is waiting. */
    void send(const QByteArray &bytes)
    {
        for (QTcpSocket *socket : findChildren<QTcpSocket *>()) {
            socket->write(bytes);
            socket->flush();
        }
    }

private:
    void serve(QTcpSocket *socket)
    {
        ++m_connections;
        ++m_open;
        connect(socket, &QTcpSocket::disconnected, this, [this] { --m_open; });
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            if (m_reply.isEmpty() || !socket->readAll().contains("\r\n\r\n"))
                return;
            socket->write(m_reply);
            socket->disconnectFromHost();
        });
    }

    QByteArray m_reply;
    int m_connections = 0;
    int m_open = 0;
};

DownloadLimits patience(int silence, int total = 60000)
{
    DownloadLimits limits;
    limits.silence = std::chrono::milliseconds(silence);
    limits.total = std::chrono::milliseconds(total);
    return limits;
}

} // namespace

void TestPictureDownloads::aPictureComesFromAServer()
{
    const Server server(answer(picture()));
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::filling(server.url("/a%20b.png?c=d%26&e"), 30, 30));
    QTRY_VERIFY(request.isOver());
    QCOMPARE(request.image().size(), QSize(30, 30));
    QCOMPARE(QColor(request.image().pixel(15, 15)), QColor(10, 200, 30));
}

void TestPictureDownloads::aPictureComesFromItsOwnAddress()
{
    const QUrl url(QLatin1String("data:image/png;base64,") + QString::fromLatin1(picture().toBase64()));
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::filling(url, 20, 30));
    QTRY_VERIFY(request.isOver());
    QCOMPARE(request.image().size(), QSize(20, 30));
}

void TestPictureDownloads::aRedirectionIsFollowed()
{
    const Server target(answer(picture()));
    const Server server(answer({}, "302 Found", "Location: " + target.url().toEncoded() + "\r\n"));
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::filling(server.url(), 30, 30));
    QTRY_VERIFY(request.isOver());
    QCOMPARE(request.image().size(), QSize(30, 30));
}

void TestPictureDownloads::anAnswerThatIsNoPictureGivesNone_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("not found, with a picture") << answer(picture(), "404 Not Found");
    QTest::newRow("a page") << answer("<html>Welcome</html>", "200 OK", "Content-Type: image/png\r\n");
    QTest::newRow("nothing") << answer({});
    QTest::newRow("less than promised") << answer(picture()).replace("Content-Length: ", "Content-Length: 9");
    QTest::newRow("half a picture") << answer(picture().left(picture().size() / 2));
    QTest::newRow("no HTTP") << QByteArray("hello\r\n\r\n");
    QTest::newRow("too large") << answer(picture() + QByteArray(9 * 1024 * 1024, 'x'));
}

void TestPictureDownloads::anAnswerThatIsNoPictureGivesNone()
{
    QFETCH(QByteArray, reply);
    const Server server(reply);
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::filling(server.url(), 30, 30));
    QTRY_VERIFY(request.isOver());
    QVERIFY(request.failed());
}

void TestPictureDownloads::aServerThatNeverAnswersIsGivenUp()
{
    const Server server;
    PictureEngine engine(patience(30));
    const PictureRequest request(&engine, Pictures::filling(server.url(), 30, 30));
    QTRY_COMPARE(server.connections(), 1);
    QTRY_VERIFY(request.isOver());
    QVERIFY(request.failed());
    QTRY_COMPARE(server.open(), 0);
}

void TestPictureDownloads::aServerThatTricklesIsGivenUp()
{
    Server server;
    PictureEngine engine(patience(60000, 100));
    const PictureRequest request(&engine, Pictures::filling(server.url(), 30, 30));
    QTRY_COMPARE(server.connections(), 1);
    server.send("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n");
    QTRY_VERIFY((server.send("x"), request.isOver()));
    QVERIFY(request.failed());
    QTRY_COMPARE(server.open(), 0);
}

void TestPictureDownloads::aServerThatIsNotThereGivesNone()
{
    QUrl url;
    {
        const Server server;
        url = server.url();
    }
    PictureEngine engine;
    const PictureRequest request(&engine, Pictures::filling(url, 30, 30));
    QTRY_VERIFY(request.isOver());
    QVERIFY(request.failed());
}

void TestPictureDownloads::aSlowServerHoldsNothingElseUp()
{
    const Server slow;
    const Server quick(answer(picture()));
    PictureEngine engine;
    std::vector<std::unique_ptr<PictureRequest>> waiting;
    waiting.reserve(20);
    for (int i = 0; i < 20; ++i)
        waiting.push_back(std::make_unique<PictureRequest>(&engine, Pictures::filling(slow.url(), 30, i + 1)));
    QTRY_VERIFY(slow.connections() > 0);
    const PictureRequest request(&engine, Pictures::filling(quick.url(), 30, 30));
    QTRY_VERIFY(request.isOver());
    QCOMPARE(request.image().size(), QSize(30, 30));
    for (const auto &other : waiting)
        QVERIFY(!other->isOver());
}

void TestPictureDownloads::aDownloadTakenBackClosesItsConnection()
{
    const Server server;
    PictureEngine engine;
    PictureRequest request(&engine, Pictures::filling(server.url(), 30, 30));
    QTRY_COMPARE(server.open(), 1);
    request.takeBack();
    QTRY_COMPARE(server.open(), 0);
}

void TestPictureDownloads::theEngineMayGoWhileAServerIsSlow()
{
    const Server server;
    auto engine = std::make_unique<PictureEngine>();
    const PictureRequest first(engine.get(), Pictures::filling(server.url(), 30, 30));
    const PictureRequest second(engine.get(), Pictures::filling(server.url(), 30, 31));
    QTRY_COMPARE(server.open(), 2);
    engine.reset();
    QTRY_COMPARE(server.open(), 0);
}

void TestPictureDownloads::manyDownloadsAtOnceAllArrive()
{
    const Server server(answer(picture()));
    PictureEngine engine;
    std::vector<std::unique_ptr<PictureRequest>> requests;
    requests.reserve(100);
    for (int i = 0; i < 100; ++i)
        requests.push_back(
                std::make_unique<PictureRequest>(&engine, Pictures::filling(server.url(), 30, 1 + i % 60)));
    for (int i = 0; i < 100; ++i) {
        QTRY_VERIFY(requests[size_t(i)]->isOver());
        QCOMPARE(requests[size_t(i)]->image().size(), QSize(30, 1 + i % 60));
    }
}

void TestPictureDownloads::theBytesOfAllDownloadsAreBounded()
{
    // Two pictures of 60 KB each, neither of which ends, where 100 KB are allowed together.
    Server server;
    DownloadLimits limits;
    limits.bytesTogether = 100000;
    PictureEngine engine(limits);
    const PictureRequest first(&engine, Pictures::filling(server.url(), 30, 30));
    const PictureRequest second(&engine, Pictures::filling(server.url(), 30, 31));
    QTRY_COMPARE(server.connections(), 2);
    server.send("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n" + QByteArray(60000, 'x'));
    QTRY_VERIFY(first.isOver() != second.isOver());
    QVERIFY(first.failed() != second.failed());
}

STB_TEST_MAIN(TestPictureDownloads)
#include "tst_picturedownloads.moc"
