// SPDX-License-Identifier: MIT
#include "epgstyles.h"
#include "testkit/handpictures.h"
#include "testkit/propertywalk.h"
#include "testkit/qmlscene.h"
#include "testkit/testcase.h"

#include <controls/epg/stbhorizontalepgviewdelegate_p.h>

#include <QtCore/qtemporarydir.h>

using stbtest::PropertyWalk;

namespace {

const StbHorizontalEpgViewDelegatePrivate *privateOf(QQuickItem *item)
{
    return static_cast<StbHorizontalEpgViewDelegatePrivate *>(QQuickItemPrivate::get(item));
}

// Waits until the picture that the cell was told to show is there.
void finishLoading(QQuickItem *item)
{
    if (!privateOf(item)->m_imageSource.isEmpty())
        QVERIFY(QTest::qWaitFor([item] { return !privateOf(item)->m_picture.size().isEmpty(); }));
}

} // namespace

// On purpose a cell keeps much of what it began to paint with: the styles that it is given while it is painted
// differ in the colours alone, and its height changes to nothing and back.
class tst_StbHorizontalEpgViewDelegateWalk : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        const design_system::PlayerHorizontalEpgViewStyle odd = oddHorizontalEpgStyle();
        const design_system::PlayerHorizontalEpgViewStyle other = otherHorizontalEpgStyle();
        m_first.setStyle(odd);
        design_system::PlayerHorizontalEpgViewStyle repainted = odd;
        repainted.backgroundColor = other.backgroundColor;
        repainted.dateColor = other.dateColor;
        repainted.titleColor = other.titleColor;
        repainted.descriptionColor = other.descriptionColor;
        m_second.setStyle(repainted);

        QVERIFY(m_folder.isValid());
        for (const QColor &color : { QColor(201, 61, 51), QColor(61, 171, 91, 99) }) {
            QImage picture(color.alpha() == 255 ? QSize(131, 75) : QSize(33, 99), QImage::Format_ARGB32);
            picture.fill(color);
            QVERIFY(picture.save(m_folder.filePath(color.name() + ".png")));
        }
    }

    void whatIsPaintedStepByStepIsWhatAFreshCellPaints()
    {
        PropertyWalk walk([this]() -> std::unique_ptr<QQuickItem> {
            return m_qml.createItem("import Stbui.UI.Qml.Controls.Basic\nHorizontalEpgViewDelegate {}");
        });
        const auto picture = [this](const QString &name) {
            return QVariant(QUrl::fromLocalFile(m_folder.filePath(name)));
        };
        walk.stageSize(QSize(560, 220))
                .property("itemTitle", { "", "News", "The long evening news of this and of the other day",
                                         QString::fromUtf8("نشرة الأخبار"), "One\ntwo" })
                .property("tvProgramExactDate", { "", "Today, 20:05", "Monday" })
                .property("tvProgramDescription",
                          { "", "Weather", "What happened today, and the day before." })
                .property("imageSource", { QUrl(), picture("#c93d33.png"), picture("#3dab5b.png") })
                .property("style",
                          { QVariant::fromValue(&m_first), QVariant::fromValue(&m_second), QVariant() })
                .property("width", { 0, 500, 500, 331 })
                .property("height", { 160, 160, 160, 0 })
                .exclude("enabled", "a cell has no disabled state")
                .settle(finishLoading);
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 4);
    }

private:
    design_system::PlayerHorizontalEpgViewQmlStyle m_first;
    design_system::PlayerHorizontalEpgViewQmlStyle m_second;
    QTemporaryDir m_folder;
    stbtest::QmlScene m_qml;
};

STB_TEST_MAIN(tst_StbHorizontalEpgViewDelegateWalk)
#include "tst_stbhorizontalepgviewdelegatewalk.moc"
