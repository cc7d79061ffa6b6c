// SPDX-License-Identifier: MIT
#include "forms/forms.h"

#include <design_system/playerepgdelegatestyle.h>

#include <QtCore/qfile.h>

namespace stbbench {
namespace {

design_system::TextStyle textStyle(int width, int pixelSize, int lines, const QColor &color)
{
    design_system::TextStyle style;
    style.rect = QRect(0, 0, width, 1);
    style.font = QFont(QStringLiteral("DejaVu Sans"));
    style.font.setPixelSize(pixelSize);
    style.maxLineCount = lines;
    style.color = color;
    return style;
}

// composedrow.qml repeats these numbers
design_system::PlayerEpgDelegateStyle rowStyle()
{
    design_system::PlayerEpgDelegateStyle style;
    style.previewRect = QRect(96, 0, 480, 270);
    style.startTimeTextStyle = textStyle(90, 22, 1, Qt::white);
    style.titleTextStyle = textStyle(480, 22, 2, Qt::white);
    style.subtitleTextStyle = textStyle(480, 18, 1, QColor(0xa0, 0xb0, 0xc0));
    style.liveTextStyle = textStyle(200, 14, 1, Qt::white);
    style.titleSubtitleSpacing = 4;
    style.liveBadgeColor = QColor(0xc0, 0x20, 0x30);
    style.liveBadgeTopMargin = 3;
    style.liveBadgeBottomSpacing = 6;
    style.liveBadgePadding = 4;
    style.liveBadgeIconSpacing = 7;
    style.liveStartTimeColor = QColor(0xff, 0xd0, 0x60);
    style.unavailableTextColor = QColor(0x80, 0x90, 0xa0);
    style.playableTextColor = Qt::white;
    return style;
}

QByteArray fileContent(const QString &name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(name));
    return file.readAll();
}

} // namespace

Programme programme(int index)
{
    Programme programme;
    programme.startTime = QStringLiteral("%1:%2")
                                  .arg(index / 60 % 24, 2, 10, QLatin1Char('0'))
                                  .arg(index % 60, 2, 10, QLatin1Char('0'));
    programme.title = QStringLiteral("Evening story number %1 of the north").arg(index);
    programme.subtitle = QStringLiteral("Part %1: what the harbour master kept to himself").arg(index);
    return programme;
}

Form::Form(const QString &name, QQmlEngine *engine, const QByteArray &qml, const QVariantMap &constants)
    : m_name(name)
    , m_component(engine)
    , m_constants(constants)
{
    m_component.setData(qml, QUrl(QStringLiteral("qrc:/forms/form.qml")));
    if (!m_component.isReady())
        qFatal("%s", qPrintable(m_component.errorString()));
}

std::unique_ptr<QQuickItem> Form::create(const Programme &programme)
{
    QVariantMap properties = m_constants;
    properties.insert(QStringLiteral("tvProgramStartTimeText"), programme.startTime);
    properties.insert(QStringLiteral("itemTitle"), programme.title);
    properties.insert(QStringLiteral("itemSubtitle"), programme.subtitle);
    properties.insert(QStringLiteral("tvProgramIsLive"), programme.live);
    std::unique_ptr<QObject> object(m_component.createWithInitialProperties(properties));
    auto *item = qobject_cast<QQuickItem *>(object.get());
    if (!item)
        qFatal("%s makes no item: %s", qPrintable(m_name), qPrintable(m_component.errorString()));
    static_cast<void>(object.release()); // the item is owned from here on
    return std::unique_ptr<QQuickItem>(item);
}

Forms::Forms()
    : m_style(std::make_unique<design_system::PlayerEpgDelegateQmlStyle>())
{
    m_style->setStyle(rowStyle());
    const QVariant style = QVariant::fromValue(m_style.get());
    m_row = std::make_unique<Form>(QStringLiteral("EPG row"), &m_engine,
                                   "import Stbui.UI.Qml.Controls.Basic\nEpgViewDelegate { width: 600 }\n",
                                   QVariantMap { { QStringLiteral("style"), style } });
    m_composedRow = std::make_unique<Form>(QStringLiteral("composed row"), &m_engine,
                                           fileContent(QStringLiteral(":/forms/composedrow.qml")),
                                           QVariantMap());
}

Forms::~Forms() = default;

Form &Forms::row()
{
    return *m_row;
}

Form &Forms::composedRow()
{
    return *m_composedRow;
}

} // namespace stbbench
