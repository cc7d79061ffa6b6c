// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include "app/remotekeys.h"
#include "screens/remotekey.h"

#include <QtCore/qfile.h>

/*! The keys of remote controls: their names, what stands for them on a keyboard, and what they mean. */
class tst_RemoteKeys : public stbtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyNameIsDocumented()
    {
        QFile file(QStringLiteral(STBUI_GALLERY_KEYS));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString document = QString::fromUtf8(file.readAll());
        for (const QString &name : gallery::remoteKeyNames())
            QVERIFY2(document.contains(u'`' + name + u'`'), qPrintable(name));
    }

    void everyNameIsAKeyOfItsOwn()
    {
        const QStringList names = gallery::remoteKeyNames();
        const QList<Qt::Key> keys = gallery::parseRemoteKeys(names.join(u' ')).keys;
        QCOMPARE(QSet<Qt::Key>(keys.cbegin(), keys.cend()).size(), names.size());
    }

    void theColouredKeysHaveNames()
    {
        QCOMPARE(gallery::parseRemoteKeys("red Green YELLOW blue").keys,
                 (QList { Qt::Key_Red, Qt::Key_Green, Qt::Key_Yellow, Qt::Key_Blue }));
        QCOMPARE(gallery::parseRemoteKeys("f1 F4 playpause homepage").keys,
                 (QList { Qt::Key_F1, Qt::Key_F4, Qt::Key_MediaTogglePlayPause, Qt::Key_HomePage }));
    }

    void aKeyboardStandsInForARemoteControl_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("remote");
        const QList<QPair<Qt::Key, Qt::Key>> keys {
            { Qt::Key_F1, Qt::Key_Red },         { Qt::Key_F2, Qt::Key_Green },
            { Qt::Key_F3, Qt::Key_Yellow },      { Qt::Key_F4, Qt::Key_Blue },
            { Qt::Key_F5, Qt::Key_Info },        { Qt::Key_Help, Qt::Key_Info },
            { Qt::Key_Plus, Qt::Key_ChannelUp }, { Qt::Key_Minus, Qt::Key_ChannelDown },
            { Qt::Key_Play, Qt::Key_MediaPlay }, { Qt::Key_Space, Qt::Key_MediaTogglePlayPause },
            { Qt::Key_Red, Qt::Key_Red },        { Qt::Key_A, Qt::Key_A },
        };
        for (const auto &[key, remote] : keys)
            QTest::addRow("%x", key) << int(key) << int(remote);
    }
    void aKeyboardStandsInForARemoteControl()
    {
        QFETCH(int, key);
        QTEST(gallery::remoteKey(key), "remote");
    }

    void menuKeysAreMenuAndRed()
    {
        QVERIFY(gallery::isMenuKey(Qt::Key_Menu) && gallery::isMenuKey(Qt::Key_Red));
        QVERIFY(gallery::isMenuKey(Qt::Key_F1));
        QVERIFY(!gallery::isMenuKey(Qt::Key_F2) && !gallery::isMenuKey(Qt::Key_Green));
    }

    void channelKeysLeadToTheNextChannelAndBack()
    {
        QCOMPARE(gallery::channelStep(Qt::Key_ChannelUp), 1);
        QCOMPARE(gallery::channelStep(Qt::Key_Plus), 1);
        QCOMPARE(gallery::channelStep(Qt::Key_ChannelDown), -1);
        QCOMPARE(gallery::channelStep(Qt::Key_Minus), -1);
        QCOMPARE(gallery::channelStep(Qt::Key_Up), 0);
    }

    void playAndPauseHaveThreeKeys()
    {
        for (const Qt::Key key : { Qt::Key_Play, Qt::Key_MediaPlay, Qt::Key_MediaPause,
                                   Qt::Key_MediaTogglePlayPause, Qt::Key_Space })
            QVERIFY(gallery::isPlayPauseKey(key));
        QVERIFY(!gallery::isPlayPauseKey(Qt::Key_MediaNext));
    }
};

STB_TEST_MAIN(tst_RemoteKeys)
#include "tst_remotekeys.moc"
