// SPDX-License-Identifier: MIT
#include "softwarescene.h"

#include "testkit/fakeplatform.h"

#include <design_system/textstyle.h>
#include <scenegraph/textnodebuilder.h>
#include <stbcore/textcounters.h>

namespace qml_basic_plugin {

class TextNodeBuilderAccess
{
public:
    static qsizetype cacheSize() { return TextNodeBuilder::m_cachedTexts.size(); }
    static int builderCount() { return TextNodeBuilder::m_nodeCount; }
    static QStringList cachedTexts()
    {
        QStringList texts;
        for (const auto &entry : TextNodeBuilder::m_cachedTexts)
            texts += entry.constData()->renderer.text();
        return texts;
    }
    static const TextNodeBuilder::Data *cached(qsizetype i)
    {
        return TextNodeBuilder::m_cachedTexts.at(i).constData();
    }
    static const TextNodeBuilder::Data *data(const TextNodeBuilder &builder)
    {
        return builder.m_data.constData();
    }
};

} // namespace qml_basic_plugin

using qml_basic_plugin::TextNodeBuilder;
using Access = qml_basic_plugin::TextNodeBuilderAccess;

namespace {

design_system::TextStyle style(int pixelSize = 21, int lines = 1, Qt::Alignment alignment = Qt::AlignLeft)
{
    design_system::TextStyle result;
    result.font.setPixelSize(pixelSize);
    result.maxLineCount = lines;
    result.alignment = alignment;
    return result;
}

// A builder with a node of its own, as a control holds it.
struct Line
{
    explicit Line(SoftwareScene &scene, const QString &text = {}, bool caching = false, int width = 2147483647)
        : node(scene.imageNode())
    {
        builder.setCachingEnabled(caching);
        builder.setupRenderer(style(), width);
        builder.setText(text);
    }

    void update(const QColor &color = Qt::white, bool *sizeChanged = nullptr)
    {
        builder.updateNode(node.get(), color, sizeChanged);
    }
    QPixmap shown() const { return shownPixmap(node.get()); }
    const TextNodeBuilder::Data *data() const { return Access::data(builder); }

    std::unique_ptr<QSGImageNode> node;
    TextNodeBuilder builder;
};

QImage expectedPicture(const QString &text, const QColor &color, int width = 2147483647, int pixelSize = 21)
{
    stbcore::TextRenderer renderer;
    renderer.setTextFont(style(pixelSize).font);
    renderer.setTextAlignment(Qt::AlignLeft);
    renderer.setMaxTextWidth(width);
    renderer.setText(text);
    return painted(renderer, color);
}

} // namespace

class tst_TextNodeBuilder : public stbtest::TestCase
{
    Q_OBJECT

    SoftwareScene m_scene;

private Q_SLOTS:
    void cleanup()
    {
        QCOMPARE(Access::builderCount(), 0);
        QCOMPARE(Access::cacheSize(), 0);
    }

    void setupRendererTakesFontLinesAlignmentAndWidth()
    {
        TextNodeBuilder builder;
        builder.setupRenderer(style(23, 3, Qt::AlignRight), 117);
        const stbcore::TextRenderer &renderer = Access::data(builder)->renderer;
        QCOMPARE(renderer.textFont().pixelSize(), 23);
        QCOMPARE(renderer.maxLineCount(), 3);
        QCOMPARE(renderer.textAlignment(), Qt::Alignment(Qt::AlignRight));
        QCOMPARE(renderer.maxTextWidth(), 117);
        builder.setupRenderer(style(23, -4), 117);
        QCOMPARE(renderer.maxLineCount(), 1);
    }

    void setTextTellsWhetherItChangedSomething()
    {
        TextNodeBuilder builder;
        QVERIFY(!builder.setText(QString()));
        QVERIFY(builder.setText("one"));
        QVERIFY(!builder.setText("one"));
        QCOMPARE(builder.text(), "one");
    }

    void aNewNodeOwnsAnEmptyTextureAndLiesWhereItIsAsked()
    {
        TextNodeBuilder builder;
        QSGNode root;
        QSGImageNode *top = builder.createNode(m_scene.context(), m_scene.renderContext(), &root, nullptr);
        QSGImageNode *below = builder.createNode(m_scene.context(), m_scene.renderContext(), &root, top);
        QCOMPARE(root.firstChild(), below);
        QCOMPARE(below->nextSibling(), top);
        QVERIFY(top->ownsTexture());
        QVERIFY(shownPixmap(top).isNull());
        const std::unique_ptr<QSGImageNode> unlinked(
                builder.createNode(m_scene.context(), m_scene.renderContext(), nullptr, top));
        QVERIFY(!unlinked->parent());
    }

    void theTextIsPaintedInItsColour()
    {
        Line line(m_scene, "Evening news");
        line.update(QColor(10, 200, 30));
        QCOMPARE(line.shown().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expectedPicture("Evening news", QColor(10, 200, 30)));
    }

    void anEmptyTextThatNeverChangedLeavesTheNodeUntouched()
    {
        Line line(m_scene);
        line.node = m_scene.imageNode(filled({ 3, 3 }, Qt::red));
        bool sizeChanged = false;
        line.update(Qt::white, &sizeChanged);
        QCOMPARE(line.shown().size(), QSize(3, 3));
        QVERIFY(!sizeChanged);
    }

    void aTextThatBecomesEmptyEmptiesTheNodeAndIsNotCached()
    {
        Line line(m_scene, "Evening news", true);
        line.update();
        const qsizetype cached = Access::cacheSize();
        line.builder.setText(QString());
        bool sizeChanged = false;
        line.update(Qt::white, &sizeChanged);
        QVERIFY(line.shown().isNull());
        QVERIFY(sizeChanged);
        QCOMPARE(Access::cacheSize(), cached);
    }

    void whatDidNotChangeIsNotPaintedAgain()
    {
        Line line(m_scene, "Evening news");
        line.update();
        const qint64 key = line.shown().cacheKey();
        line.update();
        QCOMPARE(line.shown().cacheKey(), key);
        line.builder.setText("Late news");
        line.builder.setText("Evening news");
        line.update(); // changed and changed back: painted again, the same picture
        QCOMPARE(line.shown().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expectedPicture("Evening news", Qt::white));
    }

    void aNewColourPaintsAgain()
    {
        Line line(m_scene, "Evening news");
        line.update(Qt::white);
        bool sizeChanged = false;
        line.update(Qt::red, &sizeChanged);
        QCOMPARE(line.shown().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expectedPicture("Evening news", Qt::red));
        QVERIFY(!sizeChanged);
    }

    void aTextLaidOutBeforehandIsPaintedAllTheSame()
    {
        Line line(m_scene, "Evening news");
        line.update();
        line.builder.setText("Late film");
        line.builder.relayoutRenderer();
        bool sizeChanged = false;
        line.update(Qt::white, &sizeChanged);
        QCOMPARE(line.shown().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expectedPicture("Late film", Qt::white));
        QVERIFY(sizeChanged);
    }

    void onlyAnotherWidthPaintsAgainAfterALayout()
    {
        Line line(m_scene, "The long evening news of the day");
        line.update();
        line.builder.setMaxTextWidth(100);
        line.builder.relayoutRenderer();
        line.update();
        QCOMPARE(line.shown().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expectedPicture("The long evening news of the day", Qt::white, 100));
    }

    void onlyAnotherFontPaintsAgainAfterALayout()
    {
        Line line(m_scene, "News");
        line.update();
        line.builder.setupRenderer(style(33), 2147483647);
        line.builder.relayoutRenderer();
        line.update();
        QCOMPARE(line.shown().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expectedPicture("News", Qt::white, 2147483647, 33));
    }

    void onlyAnotherLineLimitPaintsAgainAfterALayout()
    {
        Line line(m_scene, "The long evening news of the day", false, 120);
        line.update();
        const int singleLine = line.shown().height();
        line.builder.setMaxLineCount(2);
        line.builder.relayoutRenderer();
        line.update();
        QVERIFY(line.shown().height() > singleLine);
    }

    void aNodeWithoutPictureGetsTheExistingOneAgain()
    {
        Line line(m_scene, "Evening news");
        line.update();
        const qint64 key = line.shown().cacheKey();
        line.node = m_scene.imageNode();
        bool sizeChanged = false;
        line.update(Qt::white, &sizeChanged);
        QCOMPARE(line.shown().cacheKey(), key);
        QVERIFY(!sizeChanged);
    }

    void sizeChangedIsNeverSetToFalse()
    {
        Line line(m_scene, "Evening news");
        bool sizeChanged = true;
        line.update(Qt::white, &sizeChanged);
        line.update(Qt::red, &sizeChanged);
        line.update(Qt::red, &sizeChanged);
        QVERIFY(sizeChanged);
    }

    void afterClearAnyColourPaintsAgain_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::newRow("white") << QColor(Qt::white);
        QTest::newRow("black") << QColor(Qt::black);
        QTest::newRow("the cleared colour itself") << QColor(Qt::color0);
    }
    void afterClearAnyColourPaintsAgain()
    {
        QFETCH(QColor, color);
        Line line(m_scene, "Evening news");
        line.update(color);
        line.builder.clear();
        QVERIFY(line.data()->pixmap.isNull());
        QCOMPARE(line.data()->color, QColor(Qt::color0));
        QVERIFY(line.data()->color.isValid());
        line.node = m_scene.imageNode();
        line.update(color);
        QCOMPARE(line.shown().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expectedPicture("Evening news", color));
    }

    void clearForgetsAChangedText()
    {
        Line line(m_scene, "Evening news");
        line.update();
        line.builder.setText(QString());
        line.builder.clear();
        line.update(); // an empty text that did not change
        QVERIFY(!line.shown().isNull());
    }

    void aTextEmptiedAfterATakenOverLayoutShowsNothing()
    {
        Line other(m_scene, "Sports", true);
        other.builder.relayoutRenderer();
        Line line(m_scene, "Weather", true);
        line.builder.relayoutRenderer();
        line.update();
        line.builder.setText("Sports");
        line.builder.relayoutRenderer(); // takes over an entry that was never painted
        line.builder.setText(QString());
        line.builder.relayoutRenderer();
        bool sizeChanged = false;
        line.update(Qt::white, &sizeChanged);
        QVERIFY(line.shown().isNull());
        QVERIFY(sizeChanged);
    }

    void whatAnotherBuilderPaintedOnASharedEntryIsShownToo()
    {
        Line one(m_scene, "News", true);
        Line two(m_scene, "News", true);
        for (const int pixelSize : { 21, 33 }) {
            for (Line *line : { &one, &two }) {
                line->builder.setupRenderer(style(pixelSize), 2147483647);
                line->builder.relayoutRenderer();
            }
            one.update(QColor()); // the colour of layout entries: both builders stay on one
            two.update(QColor());
            QCOMPARE(two.shown().cacheKey(), one.shown().cacheKey());
        }
    }

    void aTiledPixmapThatTheCacheHoldsIsNotPaintedOver()
    {
        stbtest::TiledPixmaps platform;
        Line line(m_scene, "News", true);
        line.update(Qt::white);
        const QImage white = line.shown().toImage().copy();
        line.update(Qt::red);
        QCOMPARE(platform.created().size(), 2);
        QCOMPARE(platform.lastSetUpKey(), line.shown().cacheKey());
        QCOMPARE(Access::cached(0)->pixmap.toImage(), white);
    }

    void aColourChangeAloneLaysNothingOut()
    {
        Line line(m_scene, "Evening news");
        line.update();
        line.builder.setMaxTextWidth(90);
        line.builder.relayoutRenderer();
        const quint64 layouts = stbcore::textLayoutCount();
        line.update(Qt::white);
        line.update(Qt::red);
        QCOMPARE(stbcore::textLayoutCount(), layouts);
    }

    void withoutCachingEveryBuilderPaintsItsOwnAndTheCacheStaysEmpty()
    {
        Line first(m_scene, "Evening news");
        Line second(m_scene, "Evening news");
        first.builder.relayoutRenderer();
        first.update();
        second.update();
        QVERIFY(first.shown().cacheKey() != second.shown().cacheKey());
        QCOMPARE(Access::cacheSize(), 0);
    }

    void cachingBuildersOfOneTextFontAndColourShareOnePixmap()
    {
        Line first(m_scene, "Evening news", true);
        Line second(m_scene, "Evening news", true);
        first.update();
        const qint64 key = first.shown().cacheKey();
        bool sizeChanged = false;
        second.update(Qt::white, &sizeChanged);
        QCOMPARE(second.shown().cacheKey(), key);
        QCOMPARE(second.data(), first.data());
        QVERIFY(sizeChanged);
        QCOMPARE(Access::cacheSize(), 1);
    }

    void anotherTextFontOrColourIsNotShared()
    {
        Line first(m_scene, "Evening news", true);
        Line otherText(m_scene, "Evening newt", true);
        Line otherFont(m_scene, "Evening news", true);
        Line otherColor(m_scene, "Evening news", true);
        otherFont.builder.setupRenderer(style(22), 2147483647);
        first.update();
        otherText.update();
        otherFont.update();
        otherColor.update(Qt::red);
        const QSet<qint64> keys { first.shown().cacheKey(), otherText.shown().cacheKey(),
                                  otherFont.shown().cacheKey(), otherColor.shown().cacheKey() };
        QCOMPARE(keys.size(), 4);
        QCOMPARE(Access::cacheSize(), 4);
    }

    void differentWidthsShareOneLayoutAndPicture()
    {
        Line wide(m_scene, "The long evening news of the day", true, 400);
        Line narrow(m_scene, "The long evening news of the day", true, 90);
        wide.builder.relayoutRenderer();
        narrow.builder.relayoutRenderer();
        QCOMPARE(narrow.builder.boundingRect(), wide.builder.boundingRect());
        wide.update();
        narrow.update();
        QCOMPARE(narrow.shown().cacheKey(), wide.shown().cacheKey());
    }

    void aLayoutLookUpFindsOnlyEntriesWithoutColour()
    {
        Line first(m_scene, "Evening news", true);
        first.update(); // pushed with its colour
        QCOMPARE(Access::cacheSize(), 1);
        Line second(m_scene, "Evening news", true);
        second.builder.relayoutRenderer(); // pushes its own, without colour
        QCOMPARE(Access::cacheSize(), 2);
        QVERIFY(!Access::cached(1)->color.isValid());
        Line third(m_scene, "Evening news", true);
        third.builder.relayoutRenderer();
        QCOMPARE(Access::cacheSize(), 2);
        QCOMPARE(third.data(), second.data());
    }

    void aRealColourDetachesFromALayoutEntry()
    {
        Line first(m_scene, "Evening news", true);
        Line second(m_scene, "Evening news", true);
        first.builder.relayoutRenderer();
        second.builder.relayoutRenderer();
        QCOMPARE(first.data(), second.data());
        first.update(Qt::red);
        QVERIFY(first.data() != second.data());
        QVERIFY(second.data()->pixmap.isNull());
        QCOMPARE(Access::cacheSize(), 2);
    }

    void aLayoutPushedWithAnOldPictureIsPaintedNotShown()
    {
        Line line(m_scene, "Evening news", true);
        line.update();
        line.builder.setText("Late film");
        line.builder.relayoutRenderer(); // the entry carries the colour and the picture of before
        line.update();
        QCOMPARE(line.shown().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expectedPicture("Late film", Qt::white));

        Line other(m_scene, "Late film", true);
        other.update();
        QCOMPARE(other.shown().cacheKey(), line.shown().cacheKey());
    }

    void whoFindsAnUnpaintedEntryFirstPaintsItForAll()
    {
        Line owner(m_scene, "Evening news", true);
        owner.update();
        owner.builder.setText("Late film");
        owner.builder.relayoutRenderer();
        Line other(m_scene, "Late film", true);
        other.update();
        QCOMPARE(other.shown().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expectedPicture("Late film", Qt::white));
        const qint64 key = other.shown().cacheKey();
        owner.update();
        QCOMPARE(owner.shown().cacheKey(), key);
        QCOMPARE(Access::cachedTexts(),
                 QStringList({ "Evening news", "Late film" })); // painted, not pushed again
    }

    void aSharedPictureIsNotTouchedByTheOthersChange()
    {
        Line first(m_scene, "Evening news", true);
        Line second(m_scene, "Evening news", true);
        first.update();
        second.update();
        second.builder.setText("Late film");
        second.update();
        first.update();
        QCOMPARE(first.shown().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expectedPicture("Evening news", Qt::white));
        QCOMPARE(first.builder.text(), "Evening news");
    }

    void theCacheHoldsOneMoreThanItsLimit()
    {
        std::vector<std::unique_ptr<Line>> lines;
        for (int i = 0; i < 16; ++i) {
            lines.push_back(std::make_unique<Line>(m_scene, QString::number(i), true));
            lines.back()->update();
        }
        QCOMPARE(Access::cacheSize(), 16);
        lines.push_back(std::make_unique<Line>(m_scene, "next", true));
        lines.back()->update();
        QCOMPARE(Access::cacheSize(), 16);
    }

    void aFullCacheDropsTheOldestEntryThatNoBuilderUses()
    {
        Line keeper(m_scene); // keeps the cache alive
        std::vector<std::unique_ptr<Line>> lines;
        for (int i = 0; i < 4; ++i) {
            lines.push_back(std::make_unique<Line>(m_scene, QString::number(i), true));
            lines.back()->builder.setCacheLimit(3);
            lines.back()->update();
        }
        QCOMPARE(Access::cachedTexts(), QStringList({ "0", "1", "2", "3" }));
        lines[1].reset();
        lines[3].reset();
        lines.push_back(std::make_unique<Line>(m_scene, "4", true));
        lines.back()->builder.setCacheLimit(3);
        lines.back()->update();
        QCOMPARE(Access::cachedTexts(), QStringList({ "0", "2", "3", "4" }));
    }

    void elseItDropsTheOldestOfThoseWithTheFewestUsers()
    {
        std::vector<std::unique_ptr<Line>> lines;
        const auto add = [&](const QString &text) {
            lines.push_back(std::make_unique<Line>(m_scene, text, true));
            lines.back()->builder.setCacheLimit(3);
            lines.back()->update();
        };
        for (const char *text : { "0", "0", "1", "2", "3" })
            add(text);
        QCOMPARE(Access::cachedTexts(), QStringList({ "0", "1", "2", "3" }));
        add("4");
        QCOMPARE(Access::cachedTexts(), QStringList({ "0", "2", "3", "4" }));
        // Who used the dropped entry keeps its picture.
        QCOMPARE(lines[2]->shown().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expectedPicture("1", Qt::white));
    }

    void theLastBuilderEmptiesTheCache()
    {
        auto first = std::make_unique<Line>(m_scene, "Evening news", true);
        auto second = std::make_unique<Line>(m_scene, "Late film", true);
        first->update();
        second->update();
        first.reset();
        QCOMPARE(Access::cacheSize(), 2);
        second.reset();
        QCOMPARE(Access::cacheSize(), 0);
    }
};

STB_TEST_MAIN(tst_TextNodeBuilder)
#include "tst_textnodebuilder.moc"
