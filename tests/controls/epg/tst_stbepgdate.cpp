// SPDX-License-Identifier: MIT
#include "epgdatescene.h"
#include "testkit/qmlscene.h"
#include "testkit/testcase.h"

#include <QtTest/qsignalspy.h>

using Scene = OffscreenEpgDateScene;
using StyleObject = design_system::PlayerEpgDateQmlStyle;

class tst_StbEpgDate : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshCellHasTheDefaults()
    {
        const StbEpgDate cell;
        QVERIFY(!cell.style());
        QVERIFY(cell.date().isNull());
        QVERIFY(cell.isActive());
        QVERIFY(cell.flags() & QQuickItem::ItemHasContents);
        QCOMPARE(cell.size(), QSizeF(0, 0));
    }

    void everyPropertyStoresSignalsOnceAndAsksForAFrame_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("date") << QByteArray("dateChanged") << QVariant(QDate(2026, 4, 1));
        QTest::newRow("isActive") << QByteArray("activeChanged") << QVariant(false);
    }
    void everyPropertyStoresSignalsOnceAndAsksForAFrame()
    {
        QFETCH(QByteArray, signal);
        QFETCH(QVariant, value);
        Scene scene;
        scene.fillAndPaint();
        const QMetaObject *meta = scene.cell.metaObject();
        const char *name = QTest::currentDataTag();
        QCOMPARE(meta->property(meta->indexOfProperty(name)).notifySignal().name(), signal);
        QSignalSpy style(&scene.cell, &StbEpgDate::styleChanged);
        QSignalSpy date(&scene.cell, &StbEpgDate::dateChanged);
        QSignalSpy active(&scene.cell, &StbEpgDate::activeChanged);
        const auto emitted = [&] { return QList<qsizetype> { style.count(), date.count(), active.count() }; };
        const QList<qsizetype> expected { 0, signal == "dateChanged", signal == "activeChanged" };
        QVERIFY(!scene.stage.wantsFrame());
        QVERIFY(scene.cell.setProperty(name, value));
        QCOMPARE(emitted(), expected);
        QCOMPARE(scene.cell.property(name), value);
        QVERIFY(scene.stage.wantsFrame());

        scene.stage.renderFrame();
        QVERIFY(scene.cell.setProperty(name, value));
        QCOMPARE(emitted(), expected);
        QVERIFY(!scene.stage.wantsFrame());
    }

    void theStyleIsStoredSignalledAndResettable()
    {
        Scene scene;
        QSignalSpy changed(&scene.cell, &StbEpgDate::styleChanged);
        scene.cell.setStyle(&scene.style);
        scene.cell.setStyle(&scene.style);
        QCOMPARE(changed.count(), 1);
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        const QMetaObject *meta = scene.cell.metaObject();
        const QMetaProperty property = meta->property(meta->indexOfProperty("style"));
        QCOMPARE(property.notifySignal().name(), QByteArray("styleChanged"));
        QVERIFY(property.isResettable());
        QVERIFY(property.reset(&scene.cell));
        QVERIFY(!scene.cell.style());
        QCOMPARE(changed.count(), 2);
        QVERIFY(scene.stage.wantsFrame());
    }

    void aStyleThatDiesCountsAsNullAndOneThatWasReplacedDiesUnnoticed()
    {
        Scene scene;
        scene.fill();
        auto former = std::make_unique<StyleObject>();
        auto style = std::make_unique<StyleObject>();
        scene.cell.setStyle(former.get());
        scene.cell.setStyle(style.get());
        scene.stage.renderFrame();
        QSignalSpy changed(&scene.cell, &StbEpgDate::styleChanged);
        former.reset();
        QCOMPARE(changed.count(), 0);
        style.reset();
        QCOMPARE(changed.count(), 1);
        QVERIFY(!scene.cell.style());
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(&scene.cell));
    }

    void aStyleLeavesTheTextsAlone()
    {
        Scene scene;
        scene.fill();
        const DefaultLocale locale(QLocale("de_DE"));
        scene.cell.setStyle(&scene.other);
        QCOMPARE(scene.d()->m_month.text(), "Mar"); // of the locale there was when the date was set
    }

    void theSignalComesBeforeTheTexts()
    {
        Scene scene;
        scene.fill();
        QDate seen;
        QString day;
        connect(&scene.cell, &StbEpgDate::dateChanged, this, [&] {
            seen = scene.cell.date();
            day = scene.d()->m_day.text();
        });
        scene.cell.setDate(QDate(2026, 3, 16));
        QCOMPARE(seen, QDate(2026, 3, 16));
        QCOMPARE(day, "15");
        QCOMPARE(scene.d()->m_day.text(), "16");
    }

    void theTextsAreTheLocales_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("month");
        QTest::addColumn<QString>("day");
        const QDate date(2026, 9, 15);
        const auto shortName = [](const QLocale &locale) {
            return locale.standaloneMonthName(9, QLocale::ShortFormat);
        };
        const QLocale ukraine(QLocale::Russian, QLocale::Ukraine);
        const QLocale arabic("ar_EG");
        QTest::newRow("C") << QLocale::c() << date << "Sep"
                           << "15";
        QTest::newRow("no leading zero") << QLocale::c() << QDate(2026, 12, 3) << "Dec"
                                         << "3";
        QTest::newRow("ru_RU: in full") << QLocale("ru_RU") << date << QString::fromUtf8("сентябрь") << "15";
        QTest::newRow("ru_RU in March")
                << QLocale("ru_RU") << QDate(2026, 3, 15) << QString::fromUtf8("март") << "15";
        QTest::newRow("ru_UA: short like any other") << ukraine << date << shortName(ukraine) << "15";
        QTest::newRow("de_DE") << QLocale("de_DE") << date << shortName(QLocale("de_DE")) << "15";
        QTest::newRow("ar_EG: western digits") << arabic << date << shortName(arabic) << "15";
    }
    void theTextsAreTheLocales()
    {
        QFETCH(QLocale, locale);
        QFETCH(QDate, date);
        const DefaultLocale scope(locale);
        Scene scene;
        scene.cell.setDate(date);
        QTEST(scene.d()->m_month.text(), "month");
        QTEST(scene.d()->m_day.text(), "day");
    }

    void theLongAndTheShortNameDiffer()
    {
        // Without this the rows above could not tell one from the other.
        const QLocale russian("ru_RU");
        const QLocale ukraine(QLocale::Russian, QLocale::Ukraine);
        QVERIFY(ukraine.name() != russian.name());
        QVERIFY(russian.standaloneMonthName(9, QLocale::ShortFormat)
                != russian.standaloneMonthName(9, QLocale::LongFormat));
        QVERIFY(ukraine.standaloneMonthName(9, QLocale::ShortFormat)
                != ukraine.standaloneMonthName(9, QLocale::LongFormat));
        QVERIFY(russian.monthName(9, QLocale::LongFormat)
                != russian.standaloneMonthName(9, QLocale::LongFormat));
    }

    void anInvalidDateHasNoTexts()
    {
        Scene scene;
        scene.fill();
        scene.cell.setDate(QDate(2026, 2, 30));
        QVERIFY(!scene.cell.date().isValid());
        QCOMPARE(scene.d()->m_month.text(), QString());
        QCOMPARE(scene.d()->m_day.text(), QString());
    }

    void aDateComesFromQml()
    {
        stbtest::QmlScene qml;
        const auto item = qml.createItem<StbEpgDate>(
                "import Stbui.UI.Qml.Controls.Basic\nEpgDate { date: new Date(2026, 2, 5); isActive: false }");
        QVERIFY(item);
        QCOMPARE(item->date(), QDate(2026, 3, 5));
        QVERIFY(!item->isActive());
    }
};

STB_TEST_MAIN(tst_StbEpgDate)
#include "tst_stbepgdate.moc"
