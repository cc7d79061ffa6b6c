// SPDX-License-Identifier: MIT
#include "reflection.h"
#include "testkit/testcase.h"

#include <design_system/qmldesignsystem.h>

#include <QtGui/qfontmetrics.h>

using namespace design_system;

namespace {

// Colours that the theme leaves out: a tile has neither overlay nor frame, and not every text stands on a
// fill or changes with the state.
bool mayBeAbsent(const QString &path)
{
    return path.endsWith(QLatin1String(".overlayColor")) || path.endsWith(QLatin1String(".backgroundColor"))
           || path.contains(QLatin1String(".colors.")) || path.endsWith(QLatin1String("Style.color"));
}

} // namespace

class tst_DefaultTheme : public stbtest::TestCase
{
    Q_OBJECT

    void forEachLeaf(QmlDesignSystem &system,
                     const std::function<void(const QString &, const QVariant &)> &visit)
    {
        for (const QMetaProperty &section : reflection::fields(system.metaObject())) {
            reflection::visitFields(section.read(&system).value<QObject *>(),
                                    QString::fromLatin1(section.name()),
                                    [&](const QString &path, QObject *object, const QMetaProperty &property) {
                                        reflection::visitLeaves(property.read(object), path, visit);
                                    });
        }
    }

    // A theme for each row's resolution, made without a warning.
    static std::unique_ptr<QmlDesignSystem> system()
    {
        QFETCH(QString, resolution);
        auto result = std::make_unique<QmlDesignSystem>();
        if (!result->setResolution(resolution))
            return nullptr;
        return result;
    }

    static void eachResolution()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QSize>("screen");
        QTest::newRow("hd") << QStringLiteral("hd") << QSize(1280, 720);
        QTest::newRow("fullhd") << QStringLiteral("fullhd") << QSize(1920, 1080);
        QTest::newRow("sd") << QStringLiteral("sd") << QSize(720, 576);
    }

private Q_SLOTS:
    void theScreenHasTheSizeOfTheResolution_data() { eachResolution(); }
    void theScreenHasTheSizeOfTheResolution()
    {
        QFETCH(QSize, screen);
        const auto theme = system();
        QCOMPARE(theme->layouts()->property("screenWidth").toInt(), screen.width());
        QCOMPARE(theme->layouts()->property("screenHeight").toInt(), screen.height());
    }

    void theMarginsKeepFivePerCentOfTheScreenFree_data() { eachResolution(); }
    void theMarginsKeepFivePerCentOfTheScreenFree()
    {
        QFETCH(QSize, screen);
        const auto theme = system();
        QVERIFY(theme->layouts()->property("viewLeftMargin").toInt() >= screen.width() / 20);
        QVERIFY(theme->layouts()->property("viewRightMargin").toInt() >= screen.width() / 20);
    }

    void everyStyleSaysSomething_data() { eachResolution(); }
    void everyStyleSaysSomething()
    {
        const auto theme = system();
        int leaves = 0;
        QStringList silent;
        forEachLeaf(*theme, [&](const QString &path, const QVariant &value) {
            ++leaves;
            if (value == QVariant(value.metaType()) && value.metaType().id() != QMetaType::Int)
                silent.append(path);
        });
        silent.removeIf(mayBeAbsent);
        silent.removeIf([](const QString &path) { return path.endsWith(QLatin1String(".rect")); });
        QCOMPARE(silent, QStringList());
        QVERIFY(leaves > 500);
    }

    void everyTextHasAColour_data() { eachResolution(); }
    void everyTextHasAColour()
    {
        const auto theme = system();
        QHash<QString, QColor> colors;
        forEachLeaf(*theme, [&](const QString &path, const QVariant &value) {
            if (value.metaType().id() == QMetaType::QColor)
                colors.insert(path, value.value<QColor>());
        });
        int texts = 0;
        for (auto it = colors.cbegin(); it != colors.cend(); ++it) {
            if (!it.key().endsWith(QLatin1String("Style.color")))
                continue;
            ++texts;
            bool byState = true;
            for (const char *state : { "normal", "checked", "disabled", "focused" })
                byState = byState
                          && colors.value(it.key() + QLatin1String("s.") + QLatin1String(state)).isValid();
            QVERIFY2(it->isValid() || byState, qPrintable(it.key()));
        }
        QVERIFY(texts > 30);
    }

    void everyFontCanBeReadFromTheSofa_data() { eachResolution(); }
    void everyFontCanBeReadFromTheSofa()
    {
        QFETCH(QSize, screen);
        const auto theme = system();
        int fonts = 0;
        forEachLeaf(*theme, [&](const QString &path, const QVariant &value) {
            if (value.metaType().id() != QMetaType::QFont)
                return;
            ++fonts;
            const auto font = value.value<QFont>();
            QVERIFY2(font.pixelSize() >= screen.height() / 42, qPrintable(path)); // 17 of 720 lines
            QVERIFY2(font.pixelSize() <= screen.height() / 10, qPrintable(path));
            QCOMPARE(font.families().constLast(), QStringLiteral("sans-serif"));
        });
        QVERIFY(fonts > 40);
    }

    void everyRectangleFitsOnTheScreen_data() { eachResolution(); }
    void everyRectangleFitsOnTheScreen()
    {
        QFETCH(QSize, screen);
        const auto theme = system();
        // A focused tile grows over its neighbours by a few pixels.
        const QRect room = QRect(QPoint(0, 0), screen).adjusted(-20, -20, 0, 0);
        int rectangles = 0;
        forEachLeaf(*theme, [&](const QString &path, const QVariant &value) {
            if (value.metaType().id() != QMetaType::QRect || value.toRect().isNull())
                return;
            ++rectangles;
            QVERIFY2(room.contains(value.toRect()), qPrintable(path));
        });
        QVERIFY(rectangles > 20);
    }

    void theGuideRowsStartTimeEndsBeforeItsTexts_data() { eachResolution(); }
    void theGuideRowsStartTimeEndsBeforeItsTexts()
    {
        const auto theme = system();
        const PlayerEpgDelegateStyle style = theme->playerEpgDelegateStyle()->style();
        QVERIFY(style.startTimeTextStyle.rect.width() < style.previewRect.left());
    }

    void theGuideRowsStartTimeHasRoomForTheLargestTextScale_data() { eachResolution(); }
    void theGuideRowsStartTimeHasRoomForTheLargestTextScale()
    {
        const auto theme = system();
        const PlayerEpgDelegateStyle style = theme->playerEpgDelegateStyle()->style();
        QFont largest = style.startTimeTextStyle.font;
        largest.setPixelSize(largest.pixelSize() * 3 / 2);
        const int width = QFontMetrics(largest).horizontalAdvance(QStringLiteral("00:00"));
        QVERIFY2(width <= style.startTimeTextStyle.rect.width(), QByteArray::number(width).constData());
    }

    void aFocusedTileGrowsEvenlyAroundTheRestingOne_data() { eachResolution(); }
    void aFocusedTileGrowsEvenlyAroundTheRestingOne()
    {
        const auto theme = system();
        for (TileQmlStyle *tile :
             { theme->expandableTileStyle(), theme->contentTileStyle(), theme->vodTileStyle() }) {
            const QRect resting = tile->style().tileRect;
            const QRect focused = tile->style().focusedRect;
            QVERIFY(focused.contains(resting, true));
            QVERIFY(qAbs(focused.center().x() - resting.center().x()) <= 1);
            QVERIFY(qAbs(focused.center().y() - resting.center().y()) <= 1);
        }
    }

    void tilesFillARowBetweenTheMarginsAndGrowIntoTheGaps_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<int>("programmes");
        QTest::addColumn<int>("films");
        QTest::newRow("hd") << QStringLiteral("hd") << 5 << 6;
        QTest::newRow("fullhd") << QStringLiteral("fullhd") << 5 << 6;
        QTest::newRow("sd") << QStringLiteral("sd") << 4 << 5;
    }
    void tilesFillARowBetweenTheMarginsAndGrowIntoTheGaps()
    {
        QFETCH(int, programmes);
        QFETCH(int, films);
        const auto theme = system();
        const auto layout = [&](const char *name) { return theme->layouts()->property(name).toInt(); };
        const int gap = layout("viewHorizontalSpacing");
        const int row = layout("screenWidth") - layout("viewLeftMargin") - layout("viewRightMargin");
        const auto check = [&](const TileStyle &tile, int count) {
            const int width = tile.tileRect.width();
            QCOMPARE((row + gap) / (width + gap), count);
            QVERIFY(tile.tileRect.left() - tile.focusedRect.left() < gap / 2);
            QVERIFY(tile.progressBarRect.width() <= width - 2 * tile.progressBarRect.left());
        };
        check(theme->contentTileStyle()->style(), programmes);
        check(theme->vodTileStyle()->style(), films);
    }

    void everythingGrowsByHalfFromHdToFullHd()
    {
        QmlDesignSystem theme;
        const TileStyle small = theme.contentTileStyle()->style();
        QVERIFY(theme.setResolution(QStringLiteral("fullhd")));
        const TileStyle large = theme.contentTileStyle()->style();
        QCOMPARE(large.tileRect.size(),
                 QSize(small.tileRect.width() * 3 / 2, small.tileRect.height() * 3 / 2));
        QCOMPARE(large.captionSpacing, small.captionSpacing * 3 / 2);
        QCOMPARE(large.titleStyle.font.pixelSize(), small.titleStyle.font.pixelSize() * 3 / 2);
        QCOMPARE(large.titleStyle.maxLineCount, small.titleStyle.maxLineCount);
        QCOMPARE(theme.animationSettings().duration, QmlDesignSystem().animationSettings().duration);
    }
};

STB_TEST_MAIN(tst_DefaultTheme)
#include "tst_defaulttheme.moc"
