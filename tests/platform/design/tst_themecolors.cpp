// SPDX-License-Identifier: MIT
#include "testkit/contrast.h"
#include "testkit/testcase.h"

#include <design_system/qmldesignsystem.h>

#include <algorithm>

using namespace design_system;
using stbtest::blended;
using stbtest::contrast;

namespace {

// The less favourable one of the brightest and the darkest picture under a translucent colour.
double contrastOverPictures(const QColor &text, const QColor &cover)
{
    return std::min(contrast(text, blended(cover, Qt::white)), contrast(text, blended(cover, Qt::black)));
}

} // namespace

// The colours of all themes that come with the design system, on every screen.
class tst_ThemeColors : public stbtest::TestCase
{
    Q_OBJECT

    static void eachTheme()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<double>("readable");
        const std::pair<const char *, double> themes[] = {
            { "default", 4.5 }, { "light", 4.5 }, { "copper", 4.5 }, { "contrast", 7 }
        };
        for (const auto &[name, readable] : themes) {
            for (const char *resolution : { "hd", "fullhd", "sd" }) {
                QTest::addRow("%s %s", name, resolution)
                        << QStringLiteral(":/stbui/design/themes/%1.json").arg(QLatin1String(name))
                        << QString::fromLatin1(resolution) << readable;
            }
        }
    }

    // The row's theme, made without a warning.
    static std::unique_ptr<QmlDesignSystem> system()
    {
        QFETCH(QString, file);
        QFETCH(QString, resolution);
        auto result = std::make_unique<QmlDesignSystem>();
        if (!result->setTheme(file) || !result->setResolution(resolution))
            qFatal("no theme %s", qPrintable(file));
        return result;
    }

    static bool stands(const QColor &text, const QColor &ground, double least)
    {
        const double found = contrast(text, ground);
        if (found < least) {
            qWarning("%s on %s: %.2f, wanted %.1f", qPrintable(text.name()), qPrintable(ground.name()), found,
                     least);
        }
        return found >= least;
    }

private Q_SLOTS:
    void textsStandOutFromWhatIsBehindThem_data() { eachTheme(); }
    void textsStandOutFromWhatIsBehindThem()
    {
        QFETCH(double, readable);
        const auto theme = system();
        const auto color = [&](const char *token) {
            return theme->colors()->token(QString::fromLatin1(token));
        };
        for (const char *surface : { "oslo", "bamako", "bogota" }) {
            for (const char *text : { "sochi", "lima", "berlin" })
                QVERIFY2(stands(color(text), color(surface), readable), text);
        }
        for (const char *fill : { "berlin", "quito" })
            QVERIFY2(stands(color("oslo"), color(fill), readable), fill);
    }

    void whatHasTheFocusStandsOutFromTheSurfaces_data() { eachTheme(); }
    void whatHasTheFocusStandsOutFromTheSurfaces()
    {
        const auto theme = system();
        const QColor focus = theme->colors()->token(QStringLiteral("quito"));
        for (const char *surface : { "oslo", "bamako", "bogota" })
            QVERIFY2(stands(focus, theme->colors()->token(QString::fromLatin1(surface)), 3), surface);
    }

    void theGuideRowsTextsStandOutFromTheScreen_data() { eachTheme(); }
    void theGuideRowsTextsStandOutFromTheScreen()
    {
        QFETCH(double, readable);
        const auto theme = system();
        const PlayerEpgDelegateStyle style = theme->playerEpgDelegateStyle()->style();
        const QColor screen = theme->colors()->token(QStringLiteral("oslo"));
        for (const QColor &text : { style.liveStartTimeColor, style.unavailableTextColor,
                                    style.playableTextColor, style.subtitleTextStyle.color })
            QVERIFY(stands(text, screen, readable));
        QVERIFY(stands(style.liveTextStyle.color, style.liveBadgeColor, readable >= 7 ? 7 : 4.5));
        QVERIFY(stands(Qt::white, style.liveBadgeColor, 3)); // the mark beside the text
        QVERIFY(contrast(style.unavailableTextColor, screen) < contrast(style.playableTextColor, screen));
    }

    void theGuideRowsCardShowsWithoutAPictureAndItsTextsOnAnyOne_data() { eachTheme(); }
    void theGuideRowsCardShowsWithoutAPictureAndItsTextsOnAnyOne()
    {
        QFETCH(double, readable);
        const auto theme = system();
        const PlayerEpgDelegateStyle style = theme->playerEpgDelegateStyle()->style();
        const QColor screen = theme->colors()->token(QStringLiteral("oslo"));
        QVERIFY(contrast(blended(style.cardColor, screen), screen) >= 1.1);
        for (const QColor &text :
             { style.statusTextStyle.color, style.startsAtTextStyle.color, style.playIconColor })
            QVERIFY(contrastOverPictures(text, style.cardColor) >= readable);
        QVERIFY(stands(style.reminderActionTextStyle.color, style.reminderActionTextStyle.backgroundColor,
                       readable));
    }

    void textsOnPicturesStandOutFromTheirCovers_data() { eachTheme(); }
    void textsOnPicturesStandOutFromTheirCovers()
    {
        const auto theme = system();
        for (const TileQmlStyle *tile : { theme->contentTileStyle(), theme->vodTileStyle() }) {
            const TileStyle style = tile->style();
            QVERIFY(contrastOverPictures(style.ratingColor, style.ratingBadgeColor) >= 4.5);
        }
        const TextStyle number = theme->playerTvChannelItemStyle()->style().channelNumberTextStyle;
        QVERIFY(contrastOverPictures(number.color, number.backgroundColor) >= 4.5);
        const PlayerEpisodesItemStyle episode = theme->playerEpisodesItemStyle()->style();
        QVERIFY(contrastOverPictures(episode.statusTextStyle.color, episode.statusTextStyle.backgroundColor)
                >= 4.5);
        // Beside the progress bar it has no ground of its own.
        QVERIFY(contrastOverPictures(episode.statusTextStyle.color, episode.playableOverlayColor) >= 4.5);
        QVERIFY(contrastOverPictures(episode.dateUpperTextStyle.color, episode.overlayColor) >= 4.5);
        QVERIFY(contrastOverPictures(episode.dateLowerTextStyle.color, episode.overlayColor) >= 4.5);
    }

    void theFrameOfAnUncheckedBoxShowsOnEverySurface_data() { eachTheme(); }
    void theFrameOfAnUncheckedBoxShowsOnEverySurface()
    {
        const auto theme = system();
        const QColor frame = theme->standardCheckBoxStyle()->indicatorColors().constFirst();
        for (const char *surface : { "oslo", "bamako", "bogota" })
            QVERIFY2(stands(frame, theme->colors()->token(QString::fromLatin1(surface)), 3), surface);
    }

    void buttonsCanBeReadInEveryState_data() { eachTheme(); }
    void buttonsCanBeReadInEveryState()
    {
        QFETCH(double, readable);
        const auto theme = system();
        const QColor screen = theme->colors()->token(QStringLiteral("oslo"));
        for (const ButtonQmlStyle *button :
             { theme->primaryButtonStyle(), theme->standardButtonStyle(), theme->playerButtonStyle() }) {
            const QmlButtonStyle style = button->style();
            const StatesColors fills = style.backgroundColors;
            const StatesColors texts = style.titleStyle.colors;
            QVERIFY(stands(texts.normal, blended(fills.normal, screen), readable));
            QVERIFY(stands(texts.checked, blended(fills.checked, screen), readable));
            QVERIFY(stands(texts.focused, blended(fills.focused, screen), readable));
        }
    }
};

STB_TEST_MAIN(tst_ThemeColors)
#include "tst_themecolors.moc"
