// SPDX-License-Identifier: MIT
#ifndef STBTEST_WALKSCENE_P_H
#define STBTEST_WALKSCENE_P_H

#include "testkit/propertywalk.h"
#include "testkit/stage.h"

#include <QtCore/qhash.h>
#include <QtQuick/qquickitem.h>

#include <optional>

namespace stbtest {

struct WalkChange
{
    QByteArray name;
    QVariant value;
};

struct WalkStep
{
    QList<WalkChange> changes;
    bool updateAfterwards = false;
};

struct WalkFailure
{
    enum class Kind { Setting, Picture, OtherWindow, Property, IdlePaint };

    Kind kind = Kind::Picture;
    QString text;
    QImage actual;
    QImage expected;
};

struct WalkedProperty
{
    QByteArray name;
    QVariantList values;
    PropertyWalk::Generator generator; // instead of the values
};

struct WalkConstant
{
    QByteArray name;
    QVariant value;
};

/*! What the scenes of one walk have in common. */
struct WalkSetup
{
    PropertyWalk::Factory factory;
    QList<WalkedProperty> properties; // in the order in which a fresh item gets them
    QList<WalkConstant> constants;
    QList<QByteArray> compared;
    PropertyWalk::Settle settle;
    QSize stageSize = QSize(320, 200);
    Tolerance tolerance;
};

/*! Something to see behind the item, so that a hole or a stale pixel does not hide in the background. */
class WalkBackdrop : public QQuickItem
{
public:
    explicit WalkBackdrop(Stage &stage);

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;
};

/*! The walked item in its two windows. */
class WalkScene
{
public:
    explicit WalkScene(const WalkSetup &setup);

    /*! Makes the changes of \a step and paints a frame. A failure is a value that could not be set. */
    std::optional<WalkFailure> make(const WalkStep &step);

    /*! Compares what the last step left with fresh items, and makes the idle check when \a step says so. */
    std::optional<WalkFailure> check(const WalkStep &step);

    bool isSeen() const { return m_seen; }
    bool hasPainted() const { return m_painted; }

private:
    enum class Order { WindowFirst, WindowLast };
    struct Fresh;

    std::optional<WalkFailure> compareWithFresh(Order order);
    std::optional<WalkFailure> checkOtherWindows();
    std::optional<WalkFailure> checkIdle();
    Stage *currentStage();
    void renderFrames();

    const WalkSetup &m_setup;
    Stage m_first;
    Stage m_second;
    WalkBackdrop m_firstBackdrop;
    WalkBackdrop m_secondBackdrop;
    QImage m_blank;
    std::unique_ptr<QQuickItem> m_item;
    QHash<QByteArray, QVariant> m_values;
    int m_window = 0;
    bool m_seen = false;
    bool m_painted = false;
};

/*! \a change as a line of a report. */
QString walkChangeText(const WalkChange &change);

} // namespace stbtest

#endif // STBTEST_WALKSCENE_P_H
