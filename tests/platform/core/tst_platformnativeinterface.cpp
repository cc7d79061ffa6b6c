// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <stbcore/platformnativeinterface.h>

namespace {

class Hooks : public stbcore::PlatformNativeInterface
{
public:
    explicit Hooks(bool *deleted)
        : m_deleted(deleted)
    {
    }
    ~Hooks() override { *m_deleted = true; }
    bool isTiledPixmapAvailable() const override { return false; }
    QPixmap createTiledPixmap(const QSize &, std::function<void(QPainter &)>) override { return {}; }
    void setupPainterForTiledPixmap(const QPixmap &, QPainter &) override {}

private:
    bool *m_deleted;
};

} // namespace

class tst_PlatformNativeInterface : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void thereAreNoHooksUntilSomeAreSet() { QCOMPARE(stbcore::platformNativeInterface(), nullptr); }

    void theHooksThatWereSetAreReturnedAndNotOwned()
    {
        bool firstDeleted = false;
        bool secondDeleted = false;
        auto first = std::make_unique<Hooks>(&firstDeleted);
        auto second = std::make_unique<Hooks>(&secondDeleted);
        stbcore::setPlatformNativeInterface(first.get());
        QCOMPARE(stbcore::platformNativeInterface(), first.get());
        stbcore::setPlatformNativeInterface(second.get());
        QCOMPARE(stbcore::platformNativeInterface(), second.get());
        stbcore::setPlatformNativeInterface(nullptr);
        QCOMPARE(stbcore::platformNativeInterface(), nullptr);
        QVERIFY(!firstDeleted && !secondDeleted);
    }
};

STB_TEST_MAIN(tst_PlatformNativeInterface)
#include "tst_platformnativeinterface.moc"
