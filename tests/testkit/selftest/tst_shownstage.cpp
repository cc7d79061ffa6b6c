// SPDX-License-Identifier: MIT
#include "testkit/shownstage.h"
#include "testkit/testcase.h"
#include "toyitem.h"

#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgrendererinterface.h>

class tst_ShownStage : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theAdaptationIsTheOneAskedFor()
    {
        const stbtest::ShownStage stage;
        const bool software = qEnvironmentVariable("QT_QUICK_BACKEND") == QLatin1String("software");
        QCOMPARE(stage.isSoftware(), software);
        if (!software)
            QCOMPARE(stage.window()->rendererInterface()->graphicsApi(), QSGRendererInterface::OpenGL);
    }

    void anItemIsPaintedWhereItStands()
    {
        const stbtest::ShownStage stage(QSize(61, 43), QColor(9, 8, 7));
        ToyItem item(ToyItem::NoMistake, stage.contentItem());
        item.setPosition(QPointF(5, 7));
        item.setSize(QSizeF(20, 11));
        item.setPictureColor(Qt::yellow);
        const QImage picture = stage.picture();
        QCOMPARE(picture.size(), QSize(61, 43));
        QCOMPARE(picture.pixelColor(5, 7), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(24, 17), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(25, 17), QColor(9, 8, 7));
        QCOMPARE(picture.pixelColor(12, 12), QColor(Qt::yellow));
        QCOMPARE(picture.pixelColor(7, 12), QColor(Qt::red));
    }

    void aChangeIsInTheNextPicture()
    {
        const stbtest::ShownStage stage(QSize(61, 43));
        ToyItem item(ToyItem::NoMistake, stage.contentItem());
        item.setSize(QSizeF(20, 11));
        QCOMPARE(stage.picture().pixelColor(1, 1), QColor(Qt::red));
        item.setColor(Qt::blue);
        QCOMPARE(stage.picture().pixelColor(1, 1), QColor(Qt::blue));
    }
};

STB_TEST_MAIN(tst_ShownStage)
#include "tst_shownstage.moc"
