// SPDX-License-Identifier: MIT
#ifndef STBTEST_PROPERTYWALK_H
#define STBTEST_PROPERTYWALK_H

#include "testkit/pictures.h"

#include <QtCore/qbytearray.h>
#include <QtCore/qlist.h>
#include <QtCore/qsize.h>
#include <QtCore/qstring.h>
#include <QtCore/qvariant.h>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QQuickItem;
class QRandomGenerator;
QT_END_NAMESPACE

namespace stbtest {

/*!
    Changes the properties of an item at random, frame after frame, and compares what was painted step by step with
    a fresh item that is given the same values at once: whatever a control forgets to paint, to lay out again or to
    carry over shows as a difference.

    Each step makes one to three changes, renders a frame and checks that
    - the picture equals that of a fresh item in a fresh window, given the values in the order of the declarations
      after it came into the window, and again in the opposite order before it came into the window;
    - the window the item is not in shows nothing of it;
    - the named properties (comparedProperty()) equal the fresh item's;
    - an update() that changes nothing paints nothing.

    Beside the properties declared with property(), x, y, width, visible, opacity, enabled and "window" (0 and 1 are
    two windows, -1 is none) are walked over values of their own, which property() replaces and exclude() leaves
    out. height is walked only when it is declared: most controls write it themselves. A writable property that a
    class of the item's own declares has to be walked, set once or excluded, or the walk fails.

        stbtest::PropertyWalk walk([] { return std::make_unique<StbThing>(); });
        walk.property("title", { "", "One", "A longer title" })
                .property("style", { QVariant::fromValue(&styleA), QVariant::fromValue(&styleB), QVariant() })
                .exclude("iconSource", "a second source keeps the first picture");
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
*/
class PropertyWalk
{
public:
    using Factory = std::function<std::unique_ptr<QQuickItem>()>;
    using Generator = std::function<QVariant(QRandomGenerator &)>;
    using Settle = std::function<void(QQuickItem *)>;

    explicit PropertyWalk(Factory factory);
    ~PropertyWalk();
    Q_DISABLE_COPY_MOVE(PropertyWalk)

    /*!
        Walks \a name over \a values; a value listed twice comes twice as often. An invalid QVariant resets a
        resettable property and nulls a pointer.
    */
    PropertyWalk &property(const QByteArray &name, const QVariantList &values);
    PropertyWalk &property(const QByteArray &name, Generator generator);

    /*! Sets \a name on every item right after its creation, and never again, because of \a reason. */
    PropertyWalk &once(const QByteArray &name, const QVariant &value, const QString &reason);

    /*! Leaves \a name alone because of \a reason. */
    PropertyWalk &exclude(const QByteArray &name, const QString &reason);

    /*! A property that the item writes itself and that must come out the same, for example the height. */
    PropertyWalk &comparedProperty(const QByteArray &name);

    /*! Called with each item before a frame that is looked at: brings animations and loading to their ends. */
    PropertyWalk &settle(Settle settle);

    /*! How many steps to make and from which seed, unless --steps and --seed say otherwise; 200 and 1. */
    PropertyWalk &steps(int count);
    PropertyWalk &seed(quint32 seed);

    /*! The size of the windows, by default 320 x 200. */
    PropertyWalk &stageSize(const QSize &size);

    /*! How far pictures may be apart; nothing by default. */
    PropertyWalk &tolerance(const Tolerance &tolerance);

    /*! Leaves out the check that an update without a change paints nothing, because of \a reason. */
    PropertyWalk &updatesMayPaint(const QString &reason);

    /*!
        Makes the walk. Returns an empty string when every step was right, else a report: the seed, the step, what
        differs, the shortest list of changes found that shows it, and where the pictures were saved.
    */
    QString run();

    /*! How many steps the last run() made, and how many of them painted something. */
    int stepsMade() const;
    int stepsPainted() const;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace stbtest

#endif // STBTEST_PROPERTYWALK_H
