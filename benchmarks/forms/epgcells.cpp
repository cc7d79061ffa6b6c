// SPDX-License-Identifier: MIT
#include "forms/pictures.h"
#include "forms/styles.h"

#include <design_system/playerepgdatestyle.h>
#include <design_system/playerhorizontalepgviewstyle.h>

#include <QtCore/qdatetime.h>

namespace stbbench {
namespace {

// The forms in qml/ repeat these numbers.
design_system::PlayerHorizontalEpgViewStyle programStyle()
{
    design_system::PlayerHorizontalEpgViewStyle style;
    style.delegateRect = QRect(0, 0, 560, 120);
    style.backgroundColor = QColor(0x26, 0x34, 0x45);
    style.leftPadding = 16;
    style.rightPadding = 16;
    style.imageTextSpacing = 14;
    style.imageRect = QRect(0, 0, 160, 90);
    style.dateColor = QColor(0x5c, 0xc2, 0xf2);
    style.dateStyle = textStyle(354, 16, 1, style.dateColor);
    style.titleColor = Qt::white;
    style.titleStyle = textStyle(354, 20, 1, style.titleColor);
    style.dateTitleGap = 3;
    style.descriptionColor = QColor(0xa0, 0xb0, 0xc0);
    style.descriptionStyle = textStyle(354, 16, 2, style.descriptionColor);
    style.titleDescriptionGap = 5;
    return style;
}

design_system::PlayerEpgDateStyle dateStyle()
{
    design_system::PlayerEpgDateStyle style;
    style.monthColor = QColor(0xa0, 0xb0, 0xc0);
    style.monthStyle = textStyle(96, 16, 1, style.monthColor);
    style.dayActiveColor = Qt::white;
    style.dayInactiveColor = QColor(0x80, 0x90, 0xa0);
    style.dayStyle = textStyle(96, 28, 1, style.dayActiveColor);
    return style;
}

QString exactDate(int index)
{
    return QStringLiteral("Monday, part %1").arg(index % textNumbers);
}

QString title(int index)
{
    return QStringLiteral("Evening story %1").arg(index % textNumbers);
}

QString description(int index)
{
    return QStringLiteral("What the harbour master kept to himself until evening number %1 in the north")
            .arg(index % textNumbers);
}

QVariantMap programContent(int index)
{
    return { { QStringLiteral("tvProgramExactDate"), exactDate(index) },
             { QStringLiteral("itemTitle"), title(index) },
             { QStringLiteral("tvProgramDescription"), description(index) } };
}

QList<Change> programChanges(int first)
{
    return {
        { QStringLiteral("update() alone"), {}, Change::Kind::Update },
        change("picture asked for", "imageSource", posterUrl(first)),
        { QStringLiteral("picture arrived"), {}, Change::Kind::Arrival },
        { QStringLiteral("update() with a picture"), {}, Change::Kind::Update },
        change("same title again", "itemTitle", title(first)),
        change("title changed", "itemTitle", title(first + 1)),
        change("date changed", "tvProgramExactDate", exactDate(first + 1)),
        change("description changed", "tvProgramDescription", description(first + 1)),
        change("another picture asked for", "imageSource", posterUrl(first + 1)),
        { QStringLiteral("another picture arrived"), {}, Change::Kind::Arrival },
    };
}

/*! The first of a month for each item, so that a few days on are the same month's. */
QDate day(int index)
{
    return QDate(2015, 1 + index % textNumbers % 12, 1);
}

QVariantMap dateContent(int index)
{
    return { { QStringLiteral("date"), day(index) } };
}

QList<Change> dateChanges(int first)
{
    return {
        { QStringLiteral("update() alone"), {}, Change::Kind::Update },
        change("same date again", "date", day(first)),
        change("not active", "isActive", false),
        change("active", "isActive", true),
        change("another day of the month", "date", day(first).addDays(3)),
        change("another month", "date", day(first + 1).addDays(3)),
    };
}

} // namespace

Subject epgProgram()
{
    const auto style = styleObject<design_system::PlayerHorizontalEpgViewQmlStyle>(programStyle());
    Subject subject;
    subject.key = QStringLiteral("epgProgram");
    subject.style = style;
    subject.pictureProperty = QStringLiteral("imageSource");
    subject.content = programContent;
    subject.forms = { moduleForm("HorizontalEpgViewDelegate { width: 560; height: 120 }", style),
                      plainForm("EpgProgram"), controlsForm("EpgProgram") };
    subject.changes = programChanges;
    return subject;
}

Subject epgDate()
{
    const auto style = styleObject<design_system::PlayerEpgDateQmlStyle>(dateStyle());
    Subject subject;
    subject.key = QStringLiteral("epgDate");
    subject.style = style;
    subject.content = dateContent;
    subject.forms = { moduleForm("EpgDate { width: 96; height: 56 }", style), plainForm("EpgDate"),
                      controlsForm("EpgDate") };
    subject.changes = dateChanges;
    return subject;
}

} // namespace stbbench
