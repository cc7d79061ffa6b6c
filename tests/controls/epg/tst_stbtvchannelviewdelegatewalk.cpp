// SPDX-License-Identifier: MIT
#include "testkit/propertywalk.h"
#include "testkit/testcase.h"
#include "tvchannelscene.h"

#include <QtCore/qtemporarydir.h>

using stbtest::PropertyWalk;

namespace {

// Waits until the logo that the row was told to show is there.
void finishLoading(QQuickItem *item)
{
    const auto *d = static_cast<StbTvChannelViewDelegatePrivate *>(QQuickItemPrivate::get(item));
    if (!d->m_imageSource.isEmpty())
        QVERIFY(QTest::qWaitFor([d] { return !d->m_logo.size().isEmpty(); }));
}

} // namespace

class tst_StbTvChannelViewDelegateWalk : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_odd.setStyle(oddTvChannelStyle());
        m_other.setStyle(otherTvChannelStyle());
        QVERIFY(m_folder.isValid());
        for (const QColor &color : { QColor(201, 61, 51), QColor(61, 171, 91, 99) }) {
            QImage picture(color.alpha() == 255 ? QSize(121, 67) : QSize(33, 99), QImage::Format_ARGB32);
            picture.fill(color);
            QVERIFY(picture.save(m_folder.filePath(color.name() + ".png")));
        }
    }

    void whatIsPaintedStepByStepIsWhatAFreshRowPaints()
    {
        PropertyWalk walk([this]() -> std::unique_ptr<QQuickItem> {
            return m_qml.createItem("import Stbui.UI.Qml.Controls.Basic\nTvChannelViewDelegate {}");
        });
        const auto picture = [this](const QString &name) {
            return QVariant(QUrl::fromLocalFile(m_folder.filePath(name)));
        };
        walk.stageSize(QSize(700, 150))
                .once("canvas", channelCanvas(), "a row accepts one only")
                .property("channelListChannelName",
                          { "", "Rivers", "The channel of the longest rivers and of all lakes",
                            QString::fromUtf8("الأنهار") })
                .property("channelNameColor", { QColor(), QColor(251, 61, 61) })
                .property("channelListChannelNumber", { "", "7", "1234" })
                .property("channelListChannelQuality", { "", "HD", "4K HDR" })
                .property("channelListProgramName",
                          { "", "The Nature of Rivers", "What happened today, and the weather of the week" })
                .property("channelListProgramProgress", { 0., 0.25, 0.5, 1., -1., 7. })
                .property("channelListChannelLive", { true, false })
                .property("channelListLockIconVisible", { true, false })
                .property("cachedChannelRect", { QRect(), canvasCell(0), canvasCell(2) })
                .property("imageSource", { QUrl(), picture("#c93d33.png"), picture("#3dab5b.png") })
                .property("style", { QVariant::fromValue(&m_odd), QVariant::fromValue(&m_other),
                                     QVariant::fromValue(&m_odd), QVariant::fromValue(&m_other), QVariant() })
                .property("width", { 0, 331, 600, 600, 600, 611.5 })
                .property("height", { 0, 97, 111, 111, 111, 111 })
                .exclude("enabled", "a row has no disabled state")
                .settle(finishLoading);
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 4);
    }

private:
    design_system::PlayerTvChannelItemQmlStyle m_odd;
    design_system::PlayerTvChannelItemQmlStyle m_other;
    QTemporaryDir m_folder;
    stbtest::QmlScene m_qml;
};

STB_TEST_MAIN(tst_StbTvChannelViewDelegateWalk)
#include "tst_stbtvchannelviewdelegatewalk.moc"
