// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <QtCore/qbytearraylist.h>
#include <QtCore/qcoreapplication.h>
#include <QtCore/qfile.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qset.h>
#include <QtGui/qevent.h>
#include <QtGui/qimage.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <memory>

namespace {

// The README's examples in QML.
QByteArrayList examples()
{
    const QRegularExpression block(QStringLiteral("^```qml\\n(.*?)^```$"),
                                   QRegularExpression::MultilineOption
                                           | QRegularExpression::DotMatchesEverythingOption);
    QByteArrayList found;
    QFile file(QStringLiteral(README));
    if (!file.open(QIODevice::ReadOnly))
        return found;
    auto match = block.globalMatch(QString::fromUtf8(file.readAll()));
    while (match.hasNext())
        found += match.next().captured(1).toUtf8();
    return found;
}

// An example in a window.
struct Shown
{
    explicit Shown(const QByteArray &text)
    {
        QQmlComponent component(&engine);
        component.setData(text, QUrl(QStringLiteral("file:///example.qml")));
        object.reset(component.create());
        item = qobject_cast<QQuickItem *>(object.get());
        if (!item) {
            qWarning("%s", qPrintable(component.errorString()));
            return;
        }
        window.resize(qRound(item->width()), qRound(item->height()));
        item->setParentItem(window.contentItem());
    }

    // How many colours the picture has.
    qsizetype colors()
    {
        const QImage picture = window.grabWindow();
        QSet<QRgb> found;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                found.insert(picture.pixel(x, y));
        }
        return found.size();
    }

    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QObject> object; // goes before the window
    QQuickItem *item = nullptr;
};

} // namespace

class tst_Readme : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theRowIsShortEnoughToPaste();
    void theExamplesDraw();
    void theComponentsAreSteeredWithArrowsAndOk();
};

void tst_Readme::theRowIsShortEnoughToPaste()
{
    const QByteArray example = examples().value(0);
    QVERIFY(example.contains("EpgViewDelegate"));
    QVERIFY2(example.count('\n') <= 16, qPrintable(QString::number(example.count('\n'))));
}

void tst_Readme::theExamplesDraw()
{
    QCOMPARE(examples().size(), 2);
    for (const QByteArray &example : examples()) {
        Shown shown(example);
        QVERIFY(shown.item);
        QVERIFY(shown.item->width() > 0 && shown.item->height() > 0);
        QVERIFY2(shown.colors() > 8, "antialiased text has more shades than that");
    }
}

void tst_Readme::theComponentsAreSteeredWithArrowsAndOk()
{
    Shown shown(examples().value(1));
    QVERIFY(shown.item);
    QFocusEvent focus(QEvent::FocusIn);
    QCoreApplication::sendEvent(&shown.window, &focus);
    const auto find = [&shown](const char *component) {
        for (auto *item : shown.item->findChildren<QQuickItem *>()) {
            if (QByteArray(item->metaObject()->className()).startsWith(component))
                return item;
        }
        return static_cast<QQuickItem *>(nullptr);
    };
    const auto press = [&shown](Qt::Key key, int times = 1) {
        for (int i = 0; i < 2 * times; ++i) {
            QKeyEvent event(i % 2 == 0 ? QEvent::KeyPress : QEvent::KeyRelease, key, Qt::NoModifier);
            QCoreApplication::sendEvent(&shown.window, &event);
        }
    };
    QQuickItem *const keys = find("Keyboard_");
    QQuickItem *const box = find("CheckBox");
    QQuickItem *const words = find("LineEdit");
    QQuickItem *const list = find("MediaListView");
    QVERIFY(keys && box && words && list);
    shown.colors(); // a picture lays out what is in it
    press(Qt::Key_Return);
    QCOMPARE(words->property("text").toString().size(), 1);
    press(Qt::Key_Down, 4);
    QVERIFY(box->hasActiveFocus());
    press(Qt::Key_Return);
    QCOMPARE(box->property("checked"), QVariant(true));
    press(Qt::Key_Down);
    QVERIFY(list->hasActiveFocus());
    press(Qt::Key_Right, 2);
    QCOMPARE(list->property("currentIndex"), QVariant(2));
    press(Qt::Key_Up);
    QVERIFY(box->hasActiveFocus());
    press(Qt::Key_Up);
    QVERIFY(keys->hasActiveFocus());
}

STB_TEST_MAIN(tst_Readme)
#include "tst_readme.moc"
