// SPDX-License-Identifier: MIT
#include "accessibletree.h"
#include "gallerywindow.h"
#include "renderedfocus.h"
#include "renderedtext.h"
#include "testkit/contrast.h"
#include "testkit/testcase.h"

#include <QtGui/qaccessible.h>
#include <QtGui/qpainter.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQuick/qquickitem.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double readableText = 4.5;
constexpr double readableTextInContrastTheme = 7;
constexpr double visibleFocus = 3;
constexpr double visibleSign = 3;

QList<QList<Qt::Key>> walks(const QString &screen)
{
    static const QMap<QString, QList<QList<Qt::Key>>> further {
        { "home", { { Qt::Key_Down }, { Qt::Key_Down, Qt::Key_Down, Qt::Key_Right }, { Qt::Key_Up } } },
        { "detail",
          { { Qt::Key_Right, Qt::Key_Return },
            { Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return } } },
        { "series", { { Qt::Key_Down }, { Qt::Key_Up, Qt::Key_Up, Qt::Key_Up }, { Qt::Key_Return } } },
        { "guide", { { Qt::Key_Down }, { Qt::Key_Info }, { Qt::Key_Home, Qt::Key_Up } } },
        { "channels", { { Qt::Key_Down }, { Qt::Key_Right }, { Qt::Key_1 } } },
        { "player",
          { { Qt::Key_Left }, { Qt::Key_Return }, { Qt::Key_Return, Qt::Key_Right, Qt::Key_Right } } },
    };
    static const QList<QList<Qt::Key>> any { { Qt::Key_Down }, { Qt::Key_Right }, { Qt::Key_Return } };
    return QList<QList<Qt::Key>> { {} } + further.value(screen, any);
}

QImage plate(const QColor &ground, const QColor &color, int width = 20)
{
    QImage image(60, 40, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.fillRect(20, 10, width, 20, color);
    return image;
}

} // namespace

/*! How well texts and the focus stand out, on rendered pictures of all screens. */
class tst_Contrast : public stbtest::TestCase
{
    Q_OBJECT

    // The smallest figure of a screen, and what has it.
    struct Smallest
    {
        double figure = 21;
        QString what;
        int count = 0;

        void take(double value, const QString &whose)
        {
            ++count;
            if (value >= figure)
                return;
            figure = value;
            what = whose;
        }
    };

    static bool showsOnlyThePicture(const QList<AccessibleThing> &chosen)
    {
        return chosen.size() == 1 && chosen.constFirst().role == QAccessible::Graphic;
    }

    // Rows of the same look share a window.
    GalleryWindow &shown(const QString &theme, const QString &resolution)
    {
        if (m_window && m_look == theme + resolution)
            return *m_window;
        m_window.reset();
        m_window = std::make_unique<GalleryWindow>(WindowLook { theme, resolution, {} });
        m_window->showOwnContent();
        m_look = theme + resolution;
        return *m_window;
    }

    std::unique_ptr<GalleryWindow> m_window;
    QString m_look;
    QStringList m_table;

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void cleanupTestCase()
    {
        m_window.reset();
        QAccessible::setActive(false);
        qInfo("theme, resolution, screen: smallest contrast of a text, and of the focus\n%s",
              qPrintable(m_table.join(u'\n')));
    }

    void textsAndFocusStandOut_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("screen");
        const QStringList screens = gallery::ShellController::screenNames();
        for (const auto &[theme, resolution] :
             { std::pair("default", "hd"), std::pair("light", "hd"), std::pair("contrast", "hd"),
               std::pair("copper", "hd"), std::pair("default", "sd"), std::pair("default", "fullhd") }) {
            for (const QString &screen : screens) {
                QTest::addRow("%s %s %s", theme, resolution, qPrintable(screen))
                        << QString::fromLatin1(theme) << QString::fromLatin1(resolution) << screen;
            }
        }
    }
    void textsAndFocusStandOut()
    {
        QFETCH(QString, theme);
        QFETCH(QString, resolution);
        QFETCH(QString, screen);
        GalleryWindow &window = shown(theme, resolution);
        const double least = theme == "contrast"_L1 ? readableTextInContrastTheme : readableText;
        Smallest text;
        Smallest focus;
        QStringList problems;
        const QList<QList<Qt::Key>> all = walks(screen);
        for (const QList<Qt::Key> &keys : all) {
            window.start(screen, keys);
            const QList<TextFigure> figures = textFigures(window);
            for (const TextFigure &figure : figures) {
                if (figure.isCovered)
                    continue;
                if (!figure.isIcon)
                    text.take(figure.contrast, figure.what);
                if (figure.contrast < (figure.isIcon ? visibleSign : least))
                    problems.append(u"%1: %2 has %3"_s.arg(keyNames(keys), figure.what).arg(figure.contrast));
            }
            const QList<AccessibleThing> chosen = chosenThings(focusedThings(window.window()));
            if (showsOnlyThePicture(chosen))
                continue;
            const QString whose = chosen.isEmpty() ? u"nothing"_s : chosen.constFirst().text();
            const double seen = focusContrast(window).value_or(1);
            focus.take(seen, whose);
            if (seen < visibleFocus)
                problems.append(u"%1: the focus of %2 has %3"_s.arg(keyNames(keys), whose).arg(seen));
        }
        m_table.append(u"%1 %2 %3: %4 %5, %6 %7"_s.arg(theme, resolution, screen)
                               .arg(text.figure, 0, 'f', 1)
                               .arg(text.what)
                               .arg(focus.figure, 0, 'f', 1)
                               .arg(focus.what));
        problems.removeDuplicates();
        QVERIFY2(problems.isEmpty(), qPrintable(problems.mid(0, 20).join(u'\n')));
        QVERIFY2(text.count >= 10 && focus.count > 0, "hardly anything is measured");
    }

    void aFocusThatCannotBeSeenHasNoFigure()
    {
        const QImage picture = plate(Qt::black, Qt::white);
        QVERIFY(!focusContrast(picture, picture));
    }
    void theFocusIsComparedWithWhatIsAroundIt()
    {
        const QImage bare = plate(Qt::black, Qt::black);
        QCOMPARE(focusContrast(plate(Qt::black, Qt::white), bare).value_or(0), 21.0);
        const QColor gray(0x77, 0x77, 0x77);
        const double expected = stbtest::contrast(gray, Qt::black);
        QCOMPARE(focusContrast(plate(Qt::black, gray), bare).value_or(0), expected);
    }
    void theWorstSideCounts()
    {
        QImage bare = plate(Qt::black, Qt::black);
        QPainter(&bare).fillRect(0, 0, 20, 40, QColor(0xcc, 0xcc, 0xcc));
        QImage focused = bare;
        QPainter(&focused).fillRect(20, 10, 20, 20, Qt::white);
        QCOMPARE(focusContrast(focused, bare).value_or(0),
                 stbtest::contrast(Qt::white, QColor(0xcc, 0xcc, 0xcc)));
    }
    void whatStaysTheSameWithinTheFocusIsNotAroundIt()
    {
        // A text of the colour that the plate has, and that does not change.
        QImage bare = plate(Qt::black, Qt::black);
        QImage focused = plate(Qt::black, Qt::white);
        QPainter(&bare).fillRect(25, 15, 4, 4, QColor(0xdd, 0xdd, 0xdd));
        QPainter(&focused).fillRect(25, 15, 4, 4, QColor(0xdd, 0xdd, 0xdd));
        QCOMPARE(focusContrast(focused, bare).value_or(0), 21.0);
    }

    void aTextIsMeasuredAgainstWhatIsBehindIt()
    {
        m_window.reset();
        GalleryWindow window;
        window.showOwnContent();
        window.start(u"home"_s);
        QQuickItem *content = window.window()->contentItem();
        // Look's body text on the accent, in a picture of their own.
        QQmlComponent component(qmlEngine(content->childItems().constFirst()));
        component.setData("import QtQuick\nRectangle { z: 99; anchors.fill: parent; color: \"#808080\"\n"
                          "Text { x: 40; y: 40; text: \"Some text\"; color: \"#404040\"; font.pixelSize: 24 }\n"
                          "Text { x: 40; y: 90; text: \"Faint\"; color: \"#818181\"; font.pixelSize: 24 }\n"
                          "Text { x: 40; y: 140; text: \"Off\"; color: \"#858585\"; enabled: false }\n"
                          "Item { x: 40; y: 190; opacity: 0.5\n"
                          "Text { text: \"Half\"; color: \"#ffffff\"; font.pixelSize: 24 } }\n"
                          "Text { x: 40; y: 240; text: \"Veiled\"; font.pixelSize: 24 }\n"
                          "Rectangle { y: 230; width: 400; height: 60; color: \"#808080\"; opacity: 0.6 } }",
                          {});
        const std::unique_ptr<QObject> object(
                component.createWithInitialProperties({ { u"parent"_s, QVariant::fromValue(content) } }));
        QVERIFY2(object, qPrintable(component.errorString()));
        window.settle();
        QMap<QString, TextFigure> found;
        const QList<TextFigure> figures = textFigures(window);
        for (const TextFigure &figure : figures)
            found.insert(figure.what.section(u'"', 1, 1), figure);
        const QColor ground(0x80, 0x80, 0x80);
        QCOMPARE(found.value(u"Some text"_s).contrast, stbtest::contrast(QColor(0x40, 0x40, 0x40), ground));
        QVERIFY(found.contains(u"Faint"_s) && found.value(u"Faint"_s).contrast < 1.1);
        QVERIFY(!found.contains(u"Off"_s));
        const double half = stbtest::contrast(stbtest::blended(QColor(255, 255, 255, 128), ground), ground);
        QVERIFY(qAbs(found.value(u"Half"_s).contrast - half) < 0.05);
        QVERIFY(found.value(u"Veiled"_s).isCovered);
    }
};

STB_TEST_MAIN(tst_Contrast)
#include "tst_contrast.moc"
