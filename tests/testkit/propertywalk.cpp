// SPDX-License-Identifier: MIT
#include "testkit/propertywalk.h"
#include "testkit/walkscene_p.h"

#include <QtCore/qmetaobject.h>
#include <QtCore/qrandom.h>

#include <algorithm>

namespace stbtest {
namespace {

using Steps = QList<WalkStep>;

struct Exclusion
{
    QByteArray name;
    QString reason;
};

/*! Whether \a steps end in a failure of the kind \a kind. */
std::optional<WalkFailure> replay(const WalkSetup &setup, const Steps &steps)
{
    if (steps.isEmpty())
        return std::nullopt;
    WalkScene scene(setup);
    for (const WalkStep &step : steps) {
        if (auto failure = scene.make(step))
            return failure;
    }
    return scene.check(steps.last());
}

/*! Leaves out of a failing walk what it does not need to fail in the same way. */
class Shrinker
{
public:
    Shrinker(const WalkSetup &setup, WalkFailure &failure)
        : m_setup(setup)
        , m_failure(failure)
    {
    }

    Steps shrink(Steps steps)
    {
        for (qsizetype chunk = steps.size() / 2; chunk > 0; chunk /= 2) {
            for (qsizetype at = 0; at < steps.size();) {
                Steps shorter = steps;
                shorter.remove(at, std::min(chunk, steps.size() - at));
                if (stillFails(shorter))
                    steps = shorter;
                else
                    at += chunk;
            }
        }
        for (qsizetype step = 0; step < steps.size(); ++step) {
            for (qsizetype at = 0; at < steps.at(step).changes.size();) {
                Steps shorter = steps;
                shorter[step].changes.removeAt(at);
                if (stillFails(shorter))
                    steps = shorter;
                else
                    ++at;
            }
        }
        return steps;
    }

private:
    bool stillFails(const Steps &steps)
    {
        if (m_budget-- <= 0)
            return false;
        const auto failure = replay(m_setup, steps);
        if (!failure || failure->kind != m_failure.kind)
            return false;
        m_failure = *failure;
        return true;
    }

    const WalkSetup &m_setup;
    WalkFailure &m_failure;
    int m_budget = 400; // replays, so that a long walk does not shrink for minutes
};

QList<WalkedProperty> itemProperties()
{
    return {
        { "window", { 0, 0, 0, 1, 1, -1 }, {} },
        { "x", { 0, 7, 31, -5 }, {} },
        { "y", { 0, 3, 40, -6 }, {} },
        { "width", { 160, 97, 233, 160, 1, 0 }, {} },
        { "visible", { true, true, true, false }, {} },
        { "opacity", { 1.0, 1.0, 1.0, 0.5, 0.0 }, {} },
        { "enabled", { true, true, false }, {} },
    };
}

} // namespace

struct PropertyWalk::Private
{
    WalkedProperty &declared(const QByteArray &name);
    WalkChange randomChange(QRandomGenerator &random) const;
    WalkStep randomStep(QRandomGenerator &random) const;
    QString declarationError() const;
    QString undeclaredProperty(const QMetaObject *metaObject) const;
    bool isDeclared(const QByteArray &name) const;
    QString report(WalkFailure failure, const Steps &failing);

    WalkSetup setup;
    QList<Exclusion> exclusions;
    int steps = 200;
    quint32 seed = 1;
    bool checksIdle = true;
    QString declarationProblem;
    int stepsMade = 0;
    int stepsPainted = 0;
};

WalkedProperty &PropertyWalk::Private::declared(const QByteArray &name)
{
    for (WalkedProperty &property : setup.properties) {
        if (property.name == name)
            return property;
    }
    setup.properties.append({ name, {}, {} });
    return setup.properties.last();
}

bool PropertyWalk::Private::isDeclared(const QByteArray &name) const
{
    const auto hasName = [&name](const auto &entry) { return entry.name == name; };
    return std::any_of(setup.properties.cbegin(), setup.properties.cend(), hasName)
           || std::any_of(setup.constants.cbegin(), setup.constants.cend(), hasName)
           || std::any_of(exclusions.cbegin(), exclusions.cend(), hasName);
}

QString PropertyWalk::Private::undeclaredProperty(const QMetaObject *metaObject) const
{
    for (int i = QQuickItem::staticMetaObject.propertyCount(); i < metaObject->propertyCount(); ++i) {
        const QMetaProperty property = metaObject->property(i);
        if (property.isWritable() && !isDeclared(property.name())) {
            return QStringLiteral("the property %1 is neither walked nor set once nor excluded")
                    .arg(QLatin1String(property.name()));
        }
    }
    return QString();
}

QString PropertyWalk::Private::declarationError() const
{
    if (!declarationProblem.isEmpty())
        return declarationProblem;
    if ((setup.tolerance.channel > 0 || setup.tolerance.pixels > 0) && !setup.tolerance.reason)
        return QStringLiteral("a tolerance needs its reason");
    const std::unique_ptr<QQuickItem> item = setup.factory();
    if (!item)
        return QStringLiteral("the factory made no item");
    const auto exists = [&item](const QByteArray &name) {
        return name == "window" || item->metaObject()->indexOfProperty(name.constData()) >= 0;
    };
    QList<QByteArray> names = setup.compared;
    for (const WalkedProperty &property : setup.properties)
        names.append(property.name);
    for (const WalkConstant &constant : setup.constants)
        names.append(constant.name);
    for (const Exclusion &exclusion : exclusions)
        names.append(exclusion.name);
    for (const QByteArray &name : std::as_const(names)) {
        if (!exists(name))
            return QStringLiteral("there is no property %1").arg(QLatin1String(name));
    }
    return undeclaredProperty(item->metaObject());
}

WalkChange PropertyWalk::Private::randomChange(QRandomGenerator &random) const
{
    const WalkedProperty &property = setup.properties.at(random.bounded(int(setup.properties.size())));
    if (property.generator)
        return { property.name, property.generator(random) };
    return { property.name, property.values.at(random.bounded(int(property.values.size()))) };
}

WalkStep PropertyWalk::Private::randomStep(QRandomGenerator &random) const
{
    WalkStep step;
    const int count = random.bounded(1, 4);
    for (int i = 0; i < count; ++i)
        step.changes.append(randomChange(random));
    step.updateAfterwards = random.bounded(2) == 0 && checksIdle;
    return step;
}

QString PropertyWalk::Private::report(WalkFailure failure, const Steps &failing)
{
    QString text = QStringLiteral("step %1 of the walk with --seed %2: ").arg(failing.size()).arg(seed);
    const Steps shortened = Shrinker(setup, failure).shrink(failing);
    text += failure.text + QStringLiteral("\nthe changes that lead there:");
    for (const WalkStep &step : shortened) {
        QStringList changes;
        for (const WalkChange &change : step.changes)
            changes.append(walkChangeText(change));
        text += QStringLiteral("\n  ") + changes.join(QStringLiteral(", ")) + QStringLiteral("; frame");
    }
    if (failure.actual.isNull())
        return text;
    const QString name =
            QStringLiteral("walk-%1-seed%2-").arg(QLatin1String(QTest::currentTestFunction())).arg(seed);
    text += QStringLiteral("\n  actual:     %1")
                    .arg(savePicture(failure.actual, name + QStringLiteral("actual")));
    text += QStringLiteral("\n  expected:   %1")
                    .arg(savePicture(failure.expected, name + QStringLiteral("expected")));
    const PictureDifference difference = comparePictures(failure.actual, failure.expected);
    if (!difference.picture.isNull()) {
        text += QStringLiteral("\n  difference: %1")
                        .arg(savePicture(difference.picture, name + QStringLiteral("difference")));
    }
    return text;
}

PropertyWalk::PropertyWalk(Factory factory)
    : d(std::make_unique<Private>())
{
    d->setup.factory = std::move(factory);
    d->setup.properties = itemProperties();
}

PropertyWalk::~PropertyWalk() = default;

PropertyWalk &PropertyWalk::property(const QByteArray &name, const QVariantList &values)
{
    if (values.isEmpty())
        d->declarationProblem = QStringLiteral("%1 has no values to walk over").arg(QLatin1String(name));
    WalkedProperty &property = d->declared(name);
    property.values = values;
    property.generator = nullptr;
    return *this;
}

PropertyWalk &PropertyWalk::property(const QByteArray &name, Generator generator)
{
    d->declared(name).generator = std::move(generator);
    return *this;
}

PropertyWalk &PropertyWalk::once(const QByteArray &name, const QVariant &value, const QString &reason)
{
    exclude(name, reason);
    d->setup.constants.append({ name, value });
    return *this;
}

PropertyWalk &PropertyWalk::exclude(const QByteArray &name, const QString &reason)
{
    if (reason.isEmpty())
        d->declarationProblem = QStringLiteral("%1 is excluded without a reason").arg(QLatin1String(name));
    d->exclusions.append({ name, reason });
    d->setup.properties.removeIf([&name](const WalkedProperty &property) { return property.name == name; });
    return *this;
}

PropertyWalk &PropertyWalk::comparedProperty(const QByteArray &name)
{
    d->setup.compared.append(name);
    return *this;
}

PropertyWalk &PropertyWalk::settle(Settle settle)
{
    d->setup.settle = std::move(settle);
    return *this;
}

PropertyWalk &PropertyWalk::steps(int count)
{
    d->steps = count;
    return *this;
}

PropertyWalk &PropertyWalk::seed(quint32 seed)
{
    d->seed = seed;
    return *this;
}

PropertyWalk &PropertyWalk::stageSize(const QSize &size)
{
    d->setup.stageSize = size;
    return *this;
}

PropertyWalk &PropertyWalk::tolerance(const Tolerance &tolerance)
{
    d->setup.tolerance = tolerance;
    return *this;
}

PropertyWalk &PropertyWalk::updatesMayPaint(const QString &reason)
{
    if (reason.isEmpty())
        d->declarationProblem = QStringLiteral("updates may paint without a reason");
    d->checksIdle = false;
    return *this;
}

QString PropertyWalk::run()
{
    d->stepsMade = 0;
    d->stepsPainted = 0;
    const QString error = d->declarationError();
    if (!error.isEmpty())
        return error;
    d->seed = randomOptions().seed.value_or(d->seed);
    QRandomGenerator random(d->seed);
    const int count = randomOptions().steps.value_or(d->steps);
    WalkScene scene(d->setup);
    Steps steps;
    int seen = 0;
    while (d->stepsMade < count) {
        steps.append(d->randomStep(random));
        ++d->stepsMade;
        auto failure = scene.make(steps.last());
        if (!failure)
            failure = scene.check(steps.last());
        if (failure)
            return d->report(*failure, steps);
        d->stepsPainted += scene.hasPainted() ? 1 : 0;
        seen += scene.isSeen() ? 1 : 0;
    }
    if (seen == 0)
        return QStringLiteral("the item was never seen in %1 steps").arg(count);
    return QString();
}

int PropertyWalk::stepsMade() const
{
    return d->stepsMade;
}

int PropertyWalk::stepsPainted() const
{
    return d->stepsPainted;
}

} // namespace stbtest
