// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <plugin/versionguard.h>

class tst_VersionGuard : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void onlyTheSameMinorVersionWillDo_data()
    {
        QTest::addColumn<QByteArray>("running");
        QTest::addColumn<bool>("works");
        QTest::newRow("the very version") << QByteArray("6.4.2") << true;
        QTest::newRow("another patch") << QByteArray("6.4.11") << true;
        QTest::newRow("a later minor") << QByteArray("6.5.0") << false;
        QTest::newRow("an earlier minor") << QByteArray("6.3.9") << false;
        QTest::newRow("a minor that begins alike") << QByteArray("6.40.0") << false;
        QTest::newRow("another major") << QByteArray("7.4.2") << false;
        QTest::newRow("no version at all") << QByteArray("") << false;
    }
    void onlyTheSameMinorVersionWillDo()
    {
        QFETCH(QByteArray, running);
        QFETCH(bool, works);
        const QString message = stbui::versionMismatch(running, 6, 4);
        QCOMPARE(message.isEmpty(), works);
        if (!works) {
            QVERIFY(message.contains("Stbui.UI.Qml.Controls.Basic"));
            QVERIFY(message.contains("6.4"));
            QVERIFY(message.contains(QLatin1String(running)));
        }
    }

    void theRunningQtIsTheOneBuiltFor()
    {
        QCOMPARE(stbui::versionMismatch(qVersion(), QT_VERSION_MAJOR, QT_VERSION_MINOR), QString());
    }
};

STB_TEST_MAIN(tst_VersionGuard)
#include "tst_versionguard.moc"
