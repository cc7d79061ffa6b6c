// SPDX-License-Identifier: MIT
#include "epgtexts.h"
#include "testkit/testcase.h"
#include "tvchannelscene.h"

using Scene = OffscreenTvChannelScene;
using stbtest::NodeInfo;

namespace {

// The fixed children of a row without a logo.
enum Child { NumberBox, QualityBox, Name, Program, Played, Remainder, FirstOptional };

QRectF badgeOf(Scene &scene)
{
    return scene.children()[QualityBox].rect;
}

} // namespace

// What the widths do to the texts of the row. Each test has qualities of its own, for they are shared.
class tst_StbTvChannelViewDelegateWidths : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aRowThatBeganWithoutRoomTakesTheBadgeFromNoOther()
    {
        Scene narrow;
        narrow.fill();
        narrow.row->setChannelQuality("4K");
        narrow.row->setWidth(100); // less than logo and margins need
        narrow.stage.renderFrame();
        QVERIFY(badgeOf(narrow).isEmpty());

        Scene wide;
        wide.fill();
        wide.row->setChannelQuality("4K");
        wide.stage.renderFrame();
        const QSize text = textExtent(oddTvChannelStyle().qualityTextStyle, "4K").size();
        QCOMPARE(badgeOf(wide).size(), QSizeF(text + QSize(9 + 15, 3 + 1)));

        narrow.row->setWidth(600);
        narrow.stage.renderFrame();
        QCOMPARE(badgeOf(narrow), badgeOf(wide));
        QCOMPARE(narrow.stage.picture(), wide.stage.picture());
    }

    void rowsWithRoomShareTheirQualityAgainAfterwards()
    {
        Scene first;
        first.fill();
        first.row->setChannelQuality("UHD");
        first.row->setWidth(100);
        first.stage.renderFrame();
        first.row->setWidth(600);
        first.stage.renderFrame();
        Scene second;
        second.fill();
        second.row->setChannelQuality("UHD");
        second.stage.renderFrame();
        const auto textOf = [](Scene &scene) {
            return stbtest::childNodes(scene.children()[QualityBox].node).first().pixmap.cacheKey();
        };
        QCOMPARE(textOf(first), textOf(second));
    }

    void aLongQualityKeepsToTheTextsWidth()
    {
        const QString quality = "The quality of a channel that has been made with more lines than anybody "
                                "has ever counted, twice";
        Scene scene;
        scene.fill();
        scene.row->setChannelQuality(quality);
        scene.stage.renderFrame();
        const design_system::TextStyle style = oddTvChannelStyle().qualityTextStyle;
        const QSize text = textExtent(style, quality, 426).size(); // 600 - 121 - 13 - 19 - 21
        QVERIFY(text.width() <= 426 && textExtent(style, quality).width() > 600);
        QCOMPARE(badgeOf(scene).size(), QSizeF(text + QSize(9 + 15, 3 + 1)));
    }

    void theMarkTakesHalfOfTheNewWidthAfterAResize()
    {
        const QString longText = "This channel is the one that is being played at this very moment";
        Translation translation("PLAYING", longText);
        Scene scene;
        scene.fill();
        scene.row->setLive(true);
        scene.stage.renderFrame();
        scene.row->setWidth(411);
        scene.stage.renderFrame();
        const QSize mark = textExtent(oddTvChannelStyle().playingTextStyle, longText, 205).size();
        QCOMPARE(scene.children()[FirstOptional].rect.size(), QSizeF(mark));
        QVERIFY(mark.width() <= 205);
    }
};

STB_TEST_MAIN(tst_StbTvChannelViewDelegateWidths)
#include "tst_stbtvchannelviewdelegatewidths.moc"
