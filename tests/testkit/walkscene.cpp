// SPDX-License-Identifier: MIT
#include "testkit/walkscene_p.h"

#include <QtCore/qdebug.h>
#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgrectanglenode.h>

#include <algorithm>

namespace stbtest {
namespace {

const QColor background(24, 70, 110);
const QColor backdropColor(120, 60, 20);
const QByteArray windowName = QByteArrayLiteral("window");

std::unique_ptr<QQuickItem> makeItem(const WalkSetup &setup)
{
    std::unique_ptr<QQuickItem> item = setup.factory();
    for (const WalkConstant &constant : setup.constants)
        item->setProperty(constant.name.constData(), constant.value);
    return item;
}

bool writeProperty(QQuickItem *item, const WalkChange &change)
{
    const QMetaObject *metaObject = item->metaObject();
    const int index = metaObject->indexOfProperty(change.name.constData());
    return index >= 0 && metaObject->property(index).write(item, change.value);
}

void paintSettled(Stage &stage, QQuickItem *item, const PropertyWalk::Settle &settle)
{
    stage.renderFrame();
    if (!settle)
        return;
    settle(item);
    stage.renderFrame();
}

} // namespace

QString walkChangeText(const WalkChange &change)
{
    QString value;
    QDebug(&value).nospace() << change.value;
    return QStringLiteral("%1 = %2").arg(QLatin1String(change.name), value);
}

WalkBackdrop::WalkBackdrop(Stage &stage)
    : QQuickItem(stage.contentItem())
{
    setFlag(ItemHasContents);
    setSize(QSizeF(QSize(stage.size().width() / 2, stage.size().height())));
}

QSGNode *WalkBackdrop::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    if (oldNode)
        return oldNode;
    QSGRectangleNode *node = window()->createRectangleNode();
    node->setRect(boundingRect());
    node->setColor(backdropColor);
    return node;
}

/*! An item that gets the walked item's values at once. */
struct WalkScene::Fresh
{
    Fresh(const WalkSetup &setup, const QHash<QByteArray, QVariant> &values, Order order)
        : stage(setup.stageSize, background)
        , backdrop(stage)
        , item(makeItem(setup))
    {
        if (order == Order::WindowFirst)
            item->setParentItem(stage.contentItem());
        const auto give = [this, &values](const WalkedProperty &property) {
            const auto value = values.constFind(property.name);
            if (value != values.cend())
                writeProperty(item.get(), { property.name, *value });
        };
        if (order == Order::WindowFirst)
            std::for_each(setup.properties.cbegin(), setup.properties.cend(), give);
        else
            std::for_each(setup.properties.crbegin(), setup.properties.crend(), give);
        item->setParentItem(stage.contentItem());
        paintSettled(stage, item.get(), setup.settle);
    }

    Stage stage;
    WalkBackdrop backdrop;
    std::unique_ptr<QQuickItem> item;
};

WalkScene::WalkScene(const WalkSetup &setup)
    : m_setup(setup)
    , m_first(setup.stageSize, background)
    , m_second(setup.stageSize, background)
    , m_firstBackdrop(m_first)
    , m_secondBackdrop(m_second)
    , m_item(makeItem(setup))
{
    m_first.renderFrame();
    m_second.renderFrame();
    m_blank = m_first.picture();
    m_item->setParentItem(m_first.contentItem());
}

Stage *WalkScene::currentStage()
{
    if (m_window < 0)
        return nullptr;
    return m_window == 0 ? &m_first : &m_second;
}

std::optional<WalkFailure> WalkScene::make(const WalkStep &step)
{
    for (const WalkChange &change : step.changes) {
        if (change.name == windowName) {
            m_window = change.value.toInt();
            m_item->setParentItem(currentStage() ? currentStage()->contentItem() : nullptr);
            continue;
        }
        if (!writeProperty(m_item.get(), change)) {
            return WalkFailure { WalkFailure::Kind::Setting,
                                 QStringLiteral("cannot be set: %1").arg(walkChangeText(change)),
                                 {},
                                 {} };
        }
        m_values.insert(change.name, change.value);
    }
    renderFrames();
    return std::nullopt;
}

void WalkScene::renderFrames()
{
    Stage *current = currentStage();
    m_painted = false;
    for (Stage *stage : { &m_first, &m_second }) {
        if (stage != current)
            stage->renderFrame();
    }
    if (!current)
        return;
    m_painted = !current->renderFrame().isEmpty();
    if (!m_setup.settle)
        return;
    m_setup.settle(m_item.get());
    m_painted = !current->renderFrame().isEmpty() || m_painted;
}

std::optional<WalkFailure> WalkScene::check(const WalkStep &step)
{
    m_seen = false;
    if (auto failure = checkOtherWindows())
        return failure;
    if (!currentStage())
        return std::nullopt;
    for (const Order order : { Order::WindowFirst, Order::WindowLast }) {
        if (auto failure = compareWithFresh(order))
            return failure;
    }
    return step.updateAfterwards ? checkIdle() : std::nullopt;
}

std::optional<WalkFailure> WalkScene::checkOtherWindows()
{
    for (Stage *stage : { &m_first, &m_second }) {
        if (stage == currentStage())
            continue;
        const PictureDifference difference = comparePictures(stage->picture(), m_blank);
        if (difference.pixels > 0) {
            return WalkFailure {
                WalkFailure::Kind::OtherWindow,
                QStringLiteral("a window without the item still shows it: %1").arg(difference.text()),
                stage->picture(), m_blank
            };
        }
    }
    return std::nullopt;
}

std::optional<WalkFailure> WalkScene::compareWithFresh(Order order)
{
    const Fresh fresh(m_setup, m_values, order);
    const QString item =
            order == Order::WindowFirst
                    ? QStringLiteral("a fresh item")
                    : QStringLiteral(
                            "a fresh item that got its values in the opposite order, before its window");
    Stage *stage = currentStage();
    const QImage actual = stage->picture();
    const QImage expected = fresh.stage.picture();
    m_seen = expected != m_blank;
    const PictureDifference difference = comparePictures(actual, expected, m_setup.tolerance.channel);
    if (difference.pixels > m_setup.tolerance.pixels) {
        const bool nodesAreRight = comparePictures(stage->renderWhole(), expected).pixels == 0;
        return WalkFailure { WalkFailure::Kind::Picture,
                             QStringLiteral("the picture is not that of %1: %2; %3")
                                     .arg(item, difference.text(),
                                          nodesAreRight ? QStringLiteral(
                                                  "the nodes are right but too little was painted")
                                                        : QStringLiteral("its nodes differ as well")),
                             actual, expected };
    }
    for (const QByteArray &name : m_setup.compared) {
        const QVariant walked = m_item->property(name.constData());
        const QVariant given = fresh.item->property(name.constData());
        if (walked != given) {
            return WalkFailure { WalkFailure::Kind::Property,
                                 QStringLiteral("%1; %2 has %3")
                                         .arg(walkChangeText({ name, walked }), item,
                                              walkChangeText({ name, given })),
                                 actual, expected };
        }
    }
    return std::nullopt;
}

std::optional<WalkFailure> WalkScene::checkIdle()
{
    const QImage before = currentStage()->picture();
    m_item->update();
    const QRegion region = currentStage()->renderFrame();
    if (region.isEmpty())
        return std::nullopt;
    const QRect bounds = region.boundingRect();
    return WalkFailure { WalkFailure::Kind::IdlePaint,
                         QStringLiteral(
                                 "an update that changed nothing painted %1 pixels within (%2,%3 %4x%5)")
                                 .arg(pixelCount(region))
                                 .arg(bounds.x())
                                 .arg(bounds.y())
                                 .arg(bounds.width())
                                 .arg(bounds.height()),
                         currentStage()->picture(), before };
}

} // namespace stbtest
