// SPDX-License-Identifier: MIT
#include "epgstyles.h"
#include "testkit/testcase.h"

#include <controls/epg/stbhorizontalepgviewdelegatelayout.h>

#include <functional>

using Layout = StbHorizontalEpgViewDelegateLayout;
using Style = design_system::PlayerHorizontalEpgViewStyle;
using Change = std::function<void(Style &)>;

namespace {

const Layout::Texts texts { QSize(101, 17), QSize(211, 57), QSize(289, 63) };

} // namespace

class tst_StbHorizontalEpgViewDelegateLayout : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theTextsGetWhatTheStyleLeavesThem_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("width");
        QTest::newRow("487 - 13 - 29 - 19 - 131") << Change([](Style &) {}) << 295;
        QTest::newRow("delegateRect")
                << Change([](Style &s) { s.delegateRect = QRect(7, 9, 401, 3); }) << 209;
        QTest::newRow("leftPadding") << Change([](Style &s) { s.leftPadding = 17; }) << 291;
        QTest::newRow("rightPadding") << Change([](Style &s) { s.rightPadding = 31; }) << 293;
        QTest::newRow("imageTextSpacing") << Change([](Style &s) { s.imageTextSpacing = 5; }) << 309;
        QTest::newRow("imageRect") << Change([](Style &s) { s.imageRect = QRect(1, 3, 97, 501); }) << 329;
        QTest::newRow("nothing left") << Change([](Style &s) { s.rightPadding = 29 + 295; }) << 0;
        QTest::newRow("less than nothing") << Change([](Style &s) { s.delegateRect = QRect(); }) << -192;
        QTest::newRow("an empty style") << Change([](Style &s) { s = Style(); }) << 0;
    }
    void theTextsGetWhatTheStyleLeavesThem()
    {
        QFETCH(Change, change);
        Style style = oddHorizontalEpgStyle();
        change(style);
        QTEST(Layout::textWidth(style), "width");
    }

    void everythingHasItsPlace_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<double>("height");
        QTest::addColumn<QRectF>("image");
        QTest::addColumn<QPointF>("date");
        QTest::addColumn<QPointF>("title");
        QTest::addColumn<QPointF>("description");
        const auto row = [](const char *name, const Change &change, double height, const QRectF &image,
                            double column, double date, double title, double description) {
            QTest::newRow(name) << change << height << image << QPointF(column, date)
                                << QPointF(column, title) << QPointF(column, description);
        };
        const Change none = [](Style &) {};
        row("(161 - 75) / 2", none, 161, QRectF(13, 43, 131, 75), 163, 43, 65, 133);
        row("halves are kept", none, 160, QRectF(13, 42.5, 131, 75), 163, 42.5, 64.5, 132.5);
        row("so are other fractions", none, 75.75, QRectF(13, 0.375, 131, 75), 163, 0.375, 22.375, 90.375);
        row("lower than the picture", none, 70, QRectF(13, -2.5, 131, 75), 163, -2.5, 19.5, 87.5);
        row(
                "leftPadding", [](Style &s) { s.leftPadding = 17; }, 161, QRectF(17, 43, 131, 75), 167, 43,
                65, 133);
        row(
                "rightPadding", [](Style &s) { s.rightPadding = 17; }, 161, QRectF(13, 43, 131, 75), 163, 43,
                65, 133);
        row(
                "delegateRect", [](Style &s) { s.delegateRect = QRect(1, 3, 5, 7); }, 161,
                QRectF(13, 43, 131, 75), 163, 43, 65, 133);
        row(
                "imageTextSpacing", [](Style &s) { s.imageTextSpacing = 5; }, 161, QRectF(13, 43, 131, 75),
                149, 43, 65, 133);
        row(
                "imageRect", [](Style &s) { s.imageRect = QRect(1, 3, 97, 51); }, 161, QRectF(13, 55, 97, 51),
                129, 55, 77, 145);
        row(
                "dateTitleGap", [](Style &s) { s.dateTitleGap = 7; }, 161, QRectF(13, 43, 131, 75), 163, 43,
                67, 135);
        row(
                "titleDescriptionGap", [](Style &s) { s.titleDescriptionGap = 1; }, 161,
                QRectF(13, 43, 131, 75), 163, 43, 65, 123);
    }
    void everythingHasItsPlace()
    {
        QFETCH(Change, change);
        QFETCH(double, height);
        QFETCH(QPointF, date);
        QFETCH(QPointF, title);
        QFETCH(QPointF, description);
        Style style = oddHorizontalEpgStyle();
        change(style);
        const Layout layout = Layout::compute(style, height, texts);
        QTEST(layout.image, "image");
        QCOMPARE(layout.date, QRectF(date, QSizeF(101, 17)));
        QCOMPARE(layout.title, QRectF(title, QSizeF(211, 57)));
        QCOMPARE(layout.description, QRectF(description, QSizeF(289, 63)));
    }

    void anEmptyTextKeepsItsGap()
    {
        const Style style = oddHorizontalEpgStyle();
        const QSize none = QRect(QPoint(0, 0), QPoint(-1, -1)).size(); // the extent of an empty text
        Layout layout = Layout::compute(style, 161, { none, texts.title, texts.description });
        QCOMPARE(layout.date, QRectF(163, 43, 0, 0));
        QCOMPARE(layout.title.top(), 43 + 5);
        layout = Layout::compute(style, 161, { none, none, texts.description });
        QCOMPARE(layout.description.top(), 43 + 5 + 11);
        layout = Layout::compute(style, 161, { texts.date, none, texts.description });
        QCOMPARE(layout.description.top(), 43 + 17 + 5 + 11);
    }

    void sweepOverSizesKeepsThePartsApartAndThePictureInTheMiddle()
    {
        const Style style = oddHorizontalEpgStyle();
        for (int step = 0; step < 800; ++step) {
            const double height = step * 0.25;
            for (int line = 0; line < 40; line += 3) {
                const Layout layout = Layout::compute(style, height,
                                                      { QSize(101, line), QSize(211, 2 * line),
                                                        QSize(289, 40 - line) });
                QCOMPARE(layout.image.top() + layout.image.bottom(), height);
                QCOMPARE(layout.date.top(), layout.image.top());
                QCOMPARE(layout.title.top(), layout.date.bottom() + 5);
                QCOMPARE(layout.description.top(), layout.title.bottom() + 11);
                for (const QRectF &text : { layout.date, layout.title, layout.description })
                    QCOMPARE(text.left(), layout.image.right() + 19);
            }
        }
    }
};

STB_TEST_MAIN(tst_StbHorizontalEpgViewDelegateLayout)
#include "tst_stbhorizontalepgviewdelegatelayout.moc"
