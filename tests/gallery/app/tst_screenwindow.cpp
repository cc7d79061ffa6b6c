// SPDX-License-Identifier: MIT
#include "app/options.h"
#include "app/screenwindow.h"
#include "testkit/testcase.h"

#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtQml/qqmlengine.h>
#include <QtTest/qtest.h>

using namespace Qt::StringLiterals;

class tst_ScreenWindow : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        m_root = write("Root.qml", "import QtQuick\nItem { width: 90; height: 70 }");
        m_later = { write("Later.qml", "import QtQuick\nItem {}"),
                    write("Broken.qml", "import QtQuick\nItem { width: }"),
                    QUrl::fromLocalFile(m_folder.filePath("Missing.qml")) };
    }

    void whatIsForLaterIsReadOnceThereIsAFrame()
    {
        gallery::ScreenWindow window(m_root, {}, m_later);
        QVERIFY(window.build({}));
        QCoreApplication::processEvents();
        QCOMPARE(window.documentCount(), 0);
        window.show();
        QTRY_COMPARE(window.documentCount(), 3);
        window.update(); // once, however many frames there are
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.documentCount(), 3);
    }

    void whatIsForLaterGoesWithTheScreensAndComesWithTheNext()
    {
        gallery::ScreenWindow window(m_root, {}, m_later);
        QVERIFY(window.build({}));
        window.show();
        QTRY_COMPARE(window.documentCount(), 3);
        window.clear();
        QCOMPARE(window.documentCount(), 0);
        window.update();
        QCoreApplication::processEvents();
        QCOMPARE(window.documentCount(), 0);
        QVERIFY(window.build({}));
        QTRY_COMPARE(window.documentCount(), 3);
    }

    // The screen is refused when it is wanted.
    void whatIsForLaterAndCannotBeReadHarmsNothing()
    {
        gallery::ScreenWindow window(m_root, {}, m_later);
        QVERIFY(window.build({}));
        window.show();
        QTRY_COMPARE(window.documentCount(), 3);
        QCOMPARE(window.error(), QString());
        QVERIFY(window.rootObject() != nullptr);
    }

    void allScreensHaveADocumentOfTheirName()
    {
        for (const QString &name : gallery::screenNames()) {
            const QString document = u":/Gallery/%1Screen.qml"_s.arg(name.first(1).toUpper() + name.sliced(1));
            QVERIFY2(QFile::exists(document), qPrintable(document));
        }
    }

private:
    QUrl write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
                       ? QUrl::fromLocalFile(file.fileName())
                       : QUrl();
    }

    QTemporaryDir m_folder;
    QUrl m_root;
    QList<QUrl> m_later;
};

STB_TEST_MAIN(tst_ScreenWindow)
#include "tst_screenwindow.moc"
