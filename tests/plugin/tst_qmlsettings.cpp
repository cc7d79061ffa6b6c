// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <plugin/qmlsettings.h>

class tst_QmlSettings : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void withoutConfigurationManagerThereIsNoSingleton()
    {
        QCOMPARE(qml::QmlSettings::create(nullptr, nullptr), nullptr);
    }
};

STB_TEST_MAIN(tst_QmlSettings)
#include "tst_qmlsettings.moc"
