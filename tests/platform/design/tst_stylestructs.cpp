// SPDX-License-Identifier: MIT
#include "reflection.h"
#include "testkit/testcase.h"

#include <design_system/animationsettings.h>
#include <design_system/buttonstyle.h>
#include <design_system/playerepgdatestyle.h>
#include <design_system/playerepgdelegatestyle.h>
#include <design_system/playerepisodesitemstyle.h>
#include <design_system/playerhorizontalepgviewstyle.h>
#include <design_system/playertvchannelitemstyle.h>
#include <design_system/tilestyle.h>

#include <QtGui/qpen.h>

using namespace design_system;

Q_DECLARE_METATYPE(QMetaType)

namespace {

// The type of a field as it is written, without its namespace.
QByteArray typeName(QMetaType type)
{
    if (type == QMetaType::fromType<Qt::Alignment>())
        return "Qt::Alignment";
    return QByteArray(type.name()).replace("design_system::", QByteArray());
}

QVariant defaultValue(QMetaType type)
{
    return type.id() == QMetaType::QPen ? QVariant(QPen(QBrush(QColor()), 0)) : QVariant(type);
}

} // namespace

class tst_StyleStructs : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void everyFieldIsAPropertyOfTheSameNameAndType_data();
    void everyFieldIsAPropertyOfTheSameNameAndType()
    {
        QFETCH(QMetaType, type);
        QFETCH(QByteArray, declarations);
        QByteArrayList actual;
        for (const QMetaProperty &property : reflection::fields(type.metaObject()))
            actual.append(typeName(property.metaType()) + ' ' + property.name());
        QCOMPARE(actual.join("; ") + ';', declarations.simplified());
    }

    void aFreshStructHoldsNothing_data() { everyFieldIsAPropertyOfTheSameNameAndType_data(); }
    void aFreshStructHoldsNothing()
    {
        QFETCH(QMetaType, type);
        const QVariant fresh(type);
        int count = 0;
        reflection::visitLeaves(fresh, QString(), [&count](const QString &path, const QVariant &value) {
            ++count;
            QVERIFY2(value == defaultValue(value.metaType()), qPrintable(path));
        });
        QVERIFY(count >= type.metaObject()->propertyCount() / 2);
    }

    void everyFieldIsWrittenByItsName_data() { everyFieldIsAPropertyOfTheSameNameAndType_data(); }
    void everyFieldIsWrittenByItsName()
    {
        QFETCH(QMetaType, type);
        const QVariant filled = reflection::distinct(type);
        QVariant copy(type);
        for (const QMetaProperty &property : reflection::fields(type.metaObject()))
            QVERIFY(property.writeOnGadget(copy.data(), property.readOnGadget(filled.constData())));
        QVERIFY(copy == filled);
    }

    void aChangeOfOneFieldMakesStructsDiffer_data() { everyFieldIsAPropertyOfTheSameNameAndType_data(); }
    void aChangeOfOneFieldMakesStructsDiffer()
    {
        QFETCH(QMetaType, type);
        const QVariant original = reflection::distinct(type);
        for (const QMetaProperty &property : reflection::fields(type.metaObject())) {
            QVariant changed = original;
            QVERIFY(changed == original);
            // An alignment may come out the same by chance.
            QVariant value = reflection::distinct(property.metaType());
            while (value == property.readOnGadget(original.constData()))
                value = reflection::distinct(property.metaType());
            property.writeOnGadget(changed.data(), value);
            QVERIFY2(changed != original, property.name());
        }
    }

    void theBorderPenOfAFreshTileHasNoColourAndNoWidth()
    {
        const TileStyle style;
        QVERIFY(!style.borderPen.color().isValid());
        QCOMPARE(style.borderPen.width(), 0);
    }

    void theViewsOfATileReadAndWriteTheirFields()
    {
        TileStyle style;
        const QMetaObject &meta = TileStyle::staticMetaObject;
        const auto write = [&](const char *name, const QVariant &value) {
            QVERIFY(meta.property(meta.indexOfProperty(name)).writeOnGadget(&style, value));
            QCOMPARE(meta.property(meta.indexOfProperty(name)).readOnGadget(&style), value);
        };
        write("borderColor", QColor(3, 5, 7, 9));
        write("borderWidth", 11);
        write("ratingBadgeLeftPadding", 13);
        write("ratingBadgeTopPadding", 17);
        write("ratingBadgeRightPadding", 19);
        write("ratingBadgeBottomPadding", 23);
        QCOMPARE(style.borderPen, QPen(QBrush(QColor(3, 5, 7, 9)), 11));
        QCOMPARE(style.ratingBadgePadding, QMargins(13, 17, 19, 23));
    }

    void coloursByStateComeInTheOrderNormalCheckedDisabledFocused()
    {
        const StatesColors colors { Qt::red, Qt::green, Qt::blue, Qt::white };
        QCOMPARE(colors.toList(), QList<QColor>({ Qt::red, Qt::green, Qt::blue, Qt::white }));
    }
};

void tst_StyleStructs::everyFieldIsAPropertyOfTheSameNameAndType_data()
{
    QTest::addColumn<QMetaType>("type");
    QTest::addColumn<QByteArray>("declarations");
    QTest::newRow("StatesColors") << QMetaType::fromType<StatesColors>()
                                  << QByteArray("QColor normal; QColor checked; QColor disabled; "
                                                "QColor focused;");
    QTest::newRow("TextStyle")
            << QMetaType::fromType<TextStyle>()
            << QByteArray("QRect rect; QColor backgroundColor; QFont font; int maxLineCount; "
                          "Qt::Alignment alignment; QColor color; StatesColors colors; "
                          "int leftPadding; int topPadding; int rightPadding; int bottomPadding;");
    QTest::newRow("AnimationSettings")
            << QMetaType::fromType<AnimationSettings>() << QByteArray("int duration; int fadeDuration;");
    QTest::newRow("QmlButtonStyle")
            << QMetaType::fromType<QmlButtonStyle>()
            << QByteArray("QRect size; int leftPadding; int iconTopOffset; int rightPadding; "
                          "int iconSpacing; StatesColors backgroundColors; "
                          "StatesColors leftIconColors; StatesColors rightIconColors; "
                          "int textMarginLeft; int textMarginRight; int titleSubtitleSpacing; "
                          "TextStyle titleStyle; TextStyle subtitleStyle; QRect checkIndicatorSize; "
                          "QColor checkIndicatorColor; int checkIndicatorLeft; "
                          "int checkIndicatorBottomMargin;");
    QTest::newRow("TileStyle")
            << QMetaType::fromType<TileStyle>()
            << QByteArray("QRect tileRect; QColor backgroundColor; QColor overlayColor; "
                          "QRect focusedRect; QPen borderPen; QColor favouriteIconColor; "
                          "int captionSpacing; TextStyle titleStyle; QColor titleColor; "
                          "TextStyle subtitleStyle; QColor subtitleColor; TextStyle statusStyle; "
                          "QColor statusColor; TextStyle ratingStyle; QColor ratingColor; "
                          "QColor ratingBadgeColor; QPoint ratingBadgeOffset; "
                          "QMargins ratingBadgePadding; int rightholderRightMargin; "
                          "int rightholderBottomMargin; int rightholderLift; QRect progressBarRect; "
                          "QColor progressValueColor; QColor progressTrackColor;");
    QTest::newRow("PlayerEpgDelegateStyle")
            << QMetaType::fromType<PlayerEpgDelegateStyle>()
            << QByteArray("int titleSubtitleSpacing; TextStyle startTimeTextStyle; "
                          "QRect previewRect; int previewBottomSpacing; QColor cardColor; "
                          "int reminderIconSpacing; TextStyle statusTextStyle; "
                          "TextStyle startsAtTextStyle; TextStyle reminderActionTextStyle; "
                          "QColor playIconColor; QRect progressBarRect; "
                          "QColor progressRemainderColor; QColor progressPlayedColor; "
                          "int focusedTitleMaxLineCount; QColor liveBadgeColor; "
                          "int liveBadgeTopMargin; int liveBadgeBottomSpacing; "
                          "int liveBadgeTopMarginExtended; int liveBadgeBottomSpacingExtended; "
                          "int liveBadgePadding; int liveBadgeIconSpacing; TextStyle liveTextStyle; "
                          "TextStyle titleTextStyle; TextStyle subtitleTextStyle; "
                          "QColor liveStartTimeColor; QColor unavailableTextColor; "
                          "QColor playableTextColor;");
    QTest::newRow("PlayerHorizontalEpgViewStyle")
            << QMetaType::fromType<PlayerHorizontalEpgViewStyle>()
            << QByteArray("QRect delegateRect; QColor backgroundColor; int leftPadding; "
                          "int rightPadding; int imageTextSpacing; QRect imageRect; "
                          "TextStyle dateStyle; QColor dateColor; TextStyle titleStyle; "
                          "QColor titleColor; int dateTitleGap; TextStyle descriptionStyle; "
                          "QColor descriptionColor; int titleDescriptionGap;");
    QTest::newRow("PlayerEpgDateStyle")
            << QMetaType::fromType<PlayerEpgDateStyle>()
            << QByteArray("TextStyle monthStyle; QColor monthColor; TextStyle dayStyle; "
                          "QColor dayActiveColor; QColor dayInactiveColor;");
    QTest::newRow("PlayerEpisodesItemStyle")
            << QMetaType::fromType<PlayerEpisodesItemStyle>()
            << QByteArray("QRect tileRect; QColor overlayColor; int contentLeftMargin; "
                          "int contentRightMargin; int contentBottomMargin; "
                          "QColor playableOverlayColor; int statusSpacing; "
                          "TextStyle statusTextStyle; TextStyle dateUpperTextStyle; "
                          "TextStyle dateLowerTextStyle; QRect textAreaRect; int textLeftSpacing; "
                          "int titleSubtitleSpacing; TextStyle titleTextStyle; "
                          "TextStyle subtitleTextStyle; QColor comingSoonTextColor; "
                          "QSize playIconSize; QRect progressBarRect; QColor progressRemainingColor; "
                          "QColor progressViewedColor;");
    QTest::newRow("PlayerTvChannelItemStyle")
            << QMetaType::fromType<PlayerTvChannelItemStyle>()
            << QByteArray("int leftMargin; int topMargin; int rightMargin; int bottomMargin; "
                          "int logoTextSpacing; QRect logoRect; TextStyle channelNumberTextStyle; "
                          "int textTopOffset; int programNameSpacing; int nameQualitySpacing; "
                          "TextStyle qualityTextStyle; TextStyle channelNameTextStyle; "
                          "TextStyle programNameTextStyle; TextStyle playingTextStyle; "
                          "int playingIconSpacing; QRect progressBarRect; "
                          "QColor progressRemainderColor; QColor progressPlayedColor;");
}

STB_TEST_MAIN(tst_StyleStructs)
#include "tst_stylestructs.moc"
