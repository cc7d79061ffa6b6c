// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <generic/colorsbystate.h>

using stbgeneric::ColorsByState;

class tst_ColorsByState : public stbtest::TestCase
{
    Q_OBJECT

    const QList<QColor> m_four { Qt::red, Qt::green, Qt::blue, Qt::yellow };

private Q_SLOTS:
    void aDisabledControlIsDisabledWhateverElseItIs_data()
    {
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("focused");
        for (int i = 0; i < 4; ++i)
            QTest::addRow("%d", i) << bool(i & 1) << bool(i & 2);
    }
    void aDisabledControlIsDisabledWhateverElseItIs()
    {
        QFETCH(bool, checked);
        QFETCH(bool, focused);
        QCOMPARE(ColorsByState().ofControl(m_four, false, checked, focused), QColor(Qt::blue));
    }

    void checkedComesBeforeFocused()
    {
        const ColorsByState choice;
        QCOMPARE(choice.ofControl(m_four, true, false, false), QColor(Qt::red));
        QCOMPARE(choice.ofControl(m_four, true, true, false), QColor(Qt::green));
        QCOMPARE(choice.ofControl(m_four, true, false, true), QColor(Qt::yellow));
        QCOMPARE(choice.ofControl(m_four, true, true, true), QColor(Qt::green));
    }

    void inAMenuFocusedComesBeforeChecked()
    {
        const ColorsByState choice;
        const QList<QColor> three { Qt::red, Qt::green, Qt::blue };
        QCOMPARE(choice.ofMenuButton(three, false, false), QColor(Qt::red));
        QCOMPARE(choice.ofMenuButton(three, true, false), QColor(Qt::green));
        QCOMPARE(choice.ofMenuButton(three, false, true), QColor(Qt::blue));
        QCOMPARE(choice.ofMenuButton(three, true, true), QColor(Qt::blue));
    }

    void aShortListGivesItsFirstColour()
    {
        const ColorsByState choice;
        QCOMPARE(choice.ofControl({ Qt::red }, false, true, true), QColor(Qt::red));
        QCOMPARE(choice.ofControl({ Qt::red, Qt::green }, true, true, false), QColor(Qt::green));
        QCOMPARE(choice.ofMenuButton({ Qt::red, Qt::green }, false, true), QColor(Qt::red));
    }

    void noColourIsTransparentNotBlack()
    {
        const ColorsByState choice;
        QCOMPARE(choice.ofControl({}, true, false, false), QColor(Qt::transparent));
        QCOMPARE(choice.ofControl({ QColor() }, true, false, false), QColor(Qt::transparent));
        QCOMPARE(choice.ofMenuButton({}, true, true), QColor(Qt::transparent));
    }
};

STB_TEST_MAIN(tst_ColorsByState)
#include "tst_colorsbystate.moc"
