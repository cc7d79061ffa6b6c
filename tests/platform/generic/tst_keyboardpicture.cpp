// SPDX-License-Identifier: MIT
#include "generic/keyboardkey.h"
#include "generic/keyboardpad.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"
#include "viewscene.h"

#include <QtCore/qregularexpression.h>
#include <QtCore/qtemporarydir.h>
#include <QtGui/qpainter.h>

using namespace Qt::StringLiterals;
using namespace stbgeneric;

namespace {

constexpr QSize windowSize(1000, 340);

struct Scene : stbtest::ViewScene
{
    Scene()
        : ViewScene(windowSize)
    {
    }

    /*! A keyboard whose lengths are all different, with icons. */
    bool showKeyboard(const QString &properties = {})
    {
        for (const char *name : { "backspace", "left", "right", "on", "off" })
            saveIcon(QLatin1String(name));
        const QString path = icons.path() + u'/';
        return show(u"Keyboard { x: 11; y: 13; focus: true; keyRoundingRadius: 7; keyWidth: 67; keyHeight: 55;"
                    "rowSpacing: 5; columnSpacing: 9; keyBackgroundColor: '#263445'; keyTextColor: '#f4f7fa';"
                    "symbolKeysFont { family: 'DejaVu Sans'; pixelSize: 24 }"
                    "controlKeysFont { family: 'DejaVu Sans'; pixelSize: 18 }"
                    "domainKeysFont { family: 'DejaVu Sans'; pixelSize: 15 }"_s
                    + u"backspaceIconPath: '%1backspace.png'; leftIconPath: '%1left.png';"
                      "rightIconPath: '%1right.png'; capslockEnabledIconPath: '%1on.png';"
                      "capslockDisabledIconPath: '%1off.png';"_s.arg(path)
                    + properties + u"}"_s);
    }

    KeyboardPad *pad() const { return qobject_cast<KeyboardPad *>(item.get()); }

    QRect keyRect(int key) const { return pad()->keyRect(key).translated(11, 13).toRect(); }

    /*! The picture of one key. */
    QImage keyPicture(int key) const { return stage.picture().copy(keyRect(key)); }

    QTemporaryDir icons;

private:
    /*! Arrows, and a filled or an empty square. */
    void saveIcon(const QString &name) const
    {
        QImage icon(28, 28, QImage::Format_ARGB32_Premultiplied);
        icon.fill(Qt::transparent);
        QPainter painter(&icon);
        if (name == u"on")
            painter.fillRect(4, 4, 20, 20, Qt::red);
        else if (name == u"off")
            painter.fillRect(4, 4, 20, 4, Qt::red);
        else if (name == u"right")
            painter.fillRect(14, 4, 10, 20, Qt::red);
        else
            painter.fillRect(4, 4, 10, 20, Qt::red);
        painter.end();
        icon.save(icons.filePath(name + u".png"_s));
    }
};

bool contains(const QImage &picture, const QColor &color)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

/*! The columns in which \a picture has \a color. */
QList<int> columnsOf(const QImage &picture, const QColor &color)
{
    QList<int> columns;
    for (int x = 0; x < picture.width(); ++x) {
        if (contains(picture.copy(x, 0, 1, picture.height()), color))
            columns.append(x);
    }
    return columns;
}

} // namespace

class tst_KeyboardPicture : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void lookOfTheLayouts_data()
    {
        QTest::addColumn<QString>("properties");
        QTest::newRow("english") << u""_s;
        QTest::newRow("russian") << u"language: 'ru'; shift: true"_s;
        QTest::newRow("german") << u"language: 'de'; capsLock: true; currentKey: 23"_s;
        QTest::newRow("arabic") << u"language: 'ar'; currentKey: 36"_s;
        QTest::newRow("symbols") << u"symbols: true; currentKey: 47"_s;
    }

    void lookOfTheLayouts()
    {
        QFETCH(QString, properties);
        Scene scene;
        QVERIFY(scene.showKeyboard(properties));
        STB_COMPARE_GOLDEN(scene.stage.picture(), u"keyboard-"_s + QLatin1String(QTest::currentDataTag()));
    }

    void theCurrentKeyHasTheExchangedColours()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        QCOMPARE(scene.keyPicture(12).pixelColor(33, 3), QColor(0xf4, 0xf7, 0xfa));
        QCOMPARE(scene.keyPicture(13).pixelColor(33, 3), QColor(0x26, 0x34, 0x45));
    }

    void theCurrentKeyHasTheFocusedColours()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard(u"focusedKeyBackgroundColor: '#102030'; focusedKeyTextColor: '#ff8000'"_s));
        QCOMPARE(scene.keyPicture(12).pixelColor(33, 3), QColor(0x10, 0x20, 0x30));
        QVERIFY(contains(scene.keyPicture(12), QColor(0xff, 0x80, 0x00)));
        QVERIFY(!contains(scene.keyPicture(13), QColor(0xff, 0x80, 0x00)));
    }

    void withoutTheFocusNoKeyIsSingledOut()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        scene.item->setFocus(false);
        scene.stage.renderFrame();
        QCOMPARE(scene.keyPicture(12).pixelColor(33, 3), QColor(0x26, 0x34, 0x45));
    }

    void cornersAreRoundOrSquare()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        QCOMPARE(scene.keyPicture(13).pixelColor(0, 0), QColor(16, 20, 28));
        scene.item->setProperty("keyRoundingRadius", 0);
        scene.stage.renderFrame();
        QCOMPARE(scene.keyPicture(13).pixelColor(0, 0), QColor(0x26, 0x34, 0x45));
    }

    void eachKindOfKeyHasItsFont_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<int>("key");
        QTest::newRow("symbols") << QByteArray("symbolKeysFont") << 13;
        QTest::newRow("control keys") << QByteArray("controlKeysFont") << 35;
        QTest::newRow("domains") << QByteArray("domainKeysFont") << 49;
    }

    void eachKindOfKeyHasItsFont()
    {
        QFETCH(QByteArray, property);
        QFETCH(int, key);
        Scene scene;
        QVERIFY(scene.showKeyboard());
        const QList<int> keys { 13, 35, 49 };
        QList<QImage> before;
        for (const int other : keys)
            before.append(scene.keyPicture(other));
        QFont font(u"DejaVu Sans"_s);
        font.setPixelSize(29);
        scene.item->setProperty(property, font);
        scene.stage.renderFrame();
        for (int i = 0; i < keys.size(); ++i)
            QCOMPARE(scene.keyPicture(keys.at(i)) != before.at(i), keys.at(i) == key);
    }

    void aTextThatIsTooWideIsMadeSmallerAndStaysInItsKey()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        QFont font(u"DejaVu Sans"_s);
        font.setPixelSize(61);
        scene.item->setProperty("controlKeysFont", font);
        scene.stage.renderFrame();
        const QList<int> columns = columnsOf(scene.keyPicture(48), QColor(0xf4, 0xf7, 0xfa));
        QVERIFY(!columns.isEmpty());
        QVERIFY(columns.constFirst() >= 4);
        QVERIFY(columns.constLast() < scene.keyRect(48).width() - 4);
    }

    void iconsTakeTheTextsColour()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        for (const int key : { 11, 23, 54, 55 }) {
            QVERIFY(contains(scene.keyPicture(key), QColor(0xf4, 0xf7, 0xfa)));
            QVERIFY(!contains(scene.keyPicture(key), Qt::red));
        }
    }

    void capsLockChangesItsIcon()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        const QImage off = scene.keyPicture(23);
        scene.pad()->setCapsLocked(true);
        scene.stage.renderFrame();
        const QPoint inSquare = QRect(QPoint(), scene.keyRect(23).size()).center();
        QCOMPARE(off.pixelColor(inSquare), QColor(0x26, 0x34, 0x45));
        QCOMPARE(scene.keyPicture(23).pixelColor(inSquare), QColor(0xf4, 0xf7, 0xfa));
    }

    void onlyArabicMirrorsBackspace()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        const QList<int> leftToRight = columnsOf(scene.keyPicture(11), QColor(0xf4, 0xf7, 0xfa));
        const QImage cursorKeys = scene.keyPicture(54);
        scene.pad()->setLanguage(u"ar"_s);
        scene.stage.renderFrame();
        const QList<int> rightToLeft = columnsOf(scene.keyPicture(11), QColor(0xf4, 0xf7, 0xfa));
        QCOMPARE(scene.keyPicture(54), cursorKeys);
        const int middle = scene.keyRect(11).width() / 2;
        QVERIFY(leftToRight.constLast() <= middle);
        QVERIFY(rightToLeft.constFirst() >= middle);
    }

    void aKeyWithoutIconShowsItsName()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        scene.item->setProperty("backspaceIconPath", QString());
        scene.stage.renderFrame();
        const QList<int> columns = columnsOf(scene.keyPicture(11), QColor(0xf4, 0xf7, 0xfa));
        QVERIFY(columns.constLast() - columns.constFirst() > 60);
    }

    void anIconThatIsMissingIsOneWarning()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot open: .*missing\\.png"_s));
        Scene scene;
        QVERIFY(scene.showKeyboard(u"Component.onCompleted: leftIconPath = '/missing.png'"_s));
        scene.pad()->setCurrentKey(54);
        scene.stage.renderFrame();
    }

    void aDisabledKeyboardIsPale()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        scene.item->setEnabled(false);
        scene.stage.renderFrame();
        const QColor pale = scene.keyPicture(13).pixelColor(33, 3);
        QVERIFY(pale.green() > 20 && pale.green() < 0x34);
    }

    // --- costs ---

    void aKeyIsOneItemAndAnIconOneMore()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        QCOMPARE(stbtest::itemCount(scene.item.get()),
                 1 + KeyboardPad::keyCount() + 1 + 4); // and the repeater
    }

    void movingTheFocusPaintsTwoKeys()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        const qint64 painted = stbtest::pixelsPainted(scene.stage, [&scene] { scene.press(Qt::Key_Right); });
        QCOMPARE(painted, 2 * 67 * 55);
    }

    void shiftPaintsLettersAndItselfOnly()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        scene.stage.renderFrame();
        scene.pad()->setShifted(true);
        const QRegion painted = scene.stage.renderFrame();
        QVERIFY(!painted.intersects(scene.keyRect(0)));
        QVERIFY(!painted.intersects(scene.keyRect(47)));
        QVERIFY(painted.intersects(scene.keyRect(12)));
        QVERIFY(painted.intersects(scene.keyRect(35)));
    }

    void whatChangesNothingPaintsNothing()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        const qint64 painted = stbtest::pixelsPainted(scene.stage, [&scene] {
            scene.item->setProperty("keyTextColor", QColor(0xf4, 0xf7, 0xfa));
            scene.item->polish();
            scene.pad()->setLanguage(u"en"_s);
        });
        QCOMPARE(painted, 0);
    }

    void everyChangeIsPaintedAsAFreshKeyboardWould()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        const QList<std::pair<QByteArray, QVariant>> changes {
            { "language", u"ar"_s },
            { "shift", true },
            { "currentKey", 49 },
            { "keyHeight", 43 },
            { "rowSpacing", 11 },
            { "keyBackgroundColor", QColor(90, 40, 10) },
            { "keyTextColor", QColor(1, 250, 7) },
            { "capsLock", true },
            { "symbols", true },
            { "keyRoundingRadius", 3 },
            { "columnSpacing", 2 },
        };
        for (const auto &[name, value] : changes) {
            scene.item->setProperty(name, value);
            scene.stage.renderFrame();
            QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
        }
        Scene fresh;
        QVERIFY(fresh.showKeyboard());
        for (const auto &[name, value] : changes)
            fresh.item->setProperty(name, value);
        fresh.stage.renderFrame();
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), fresh.stage.picture()).pixels, 0);
    }

    void aHiddenKeyboardIsPaintedWhenItIsShown()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard(u"visible: false"_s));
        QVERIFY(!contains(scene.stage.picture(), QColor(0x26, 0x34, 0x45)));
        scene.item->setVisible(true);
        scene.stage.renderFrame();
        QVERIFY(contains(scene.keyPicture(13), QColor(0x26, 0x34, 0x45)));
    }
};

STB_TEST_MAIN(tst_KeyboardPicture)
#include "tst_keyboardpicture.moc"
