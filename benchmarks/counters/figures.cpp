// SPDX-License-Identifier: MIT
#include "figures.h"

#include "forms/form.h"
#include "forms/pictures.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/stage.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qdeadlinetimer.h>
#include <QtCore/qthread.h>

namespace stbbench {
namespace {

constexpr int restTime = 200; // milliseconds in which a throbber or an animation would have asked for frames

/*! What happened while something was done and its frame painted. */
struct Cost
{
    int objects = 0;
    qint64 texts = 0;
    qint64 pixels = 0;
};

/*! An item on a stage whose frames are checked: a figure of a wrong picture is worth nothing. */
class CountedItem
{
public:
    CountedItem(const Subject &subject, Form &form, int number)
        : m_stage(QSize(640, 360), QColor(0x10, 0x18, 0x28))
        , m_name(subject.key + QStringLiteral(", ") + form.name())
        , m_isModule(form.name() == subject.forms.first().name)
    {
        m_stage.renderFrame();
        Cost cost = measure([&] { m_item = form.create(subject.content(number)); }, Frame::None);
        add("created", "items", stbtest::itemCount(m_item.get()));
        add("created", "objects", cost.objects);
        add("created", "texts", m_isModule ? cost.texts : -1);
        cost = measure([this] { show(); }, Frame::Painted);
        addFrame(QStringLiteral("first frame"), cost);
        checkFrames(QStringLiteral("first frame"));
    }

    void apply(const Change &change)
    {
        const Cost cost = measure([&] { make(change); }, Frame::Painted);
        addFrame(change.name, cost);
        // An animation of Qt Quick's goes by the clock: between the two pictures it may have moved on.
        if (isChecked(change))
            checkFrames(change.name);
        if (!change.comparable)
            return;
        m_count.steps.append(change.name);
        m_count.pictures.append(m_stage.picture());
    }

    void countFramesAtRest()
    {
        const int before = m_stage.frameRequests();
        for (QDeadlineTimer rest(restTime); !rest.hasExpired(); QThread::msleep(1))
            QCoreApplication::processEvents();
        add("at rest", "frames", m_stage.frameRequests() - before);
    }

    Count count() const { return m_count; }

private:
    enum class Frame { None, Painted };

    /*! What others show in their own way is theirs to get right. */
    bool isChecked(const Change &change) const { return change.comparable || m_isModule; }

    void show()
    {
        m_item->setParentItem(m_stage.contentItem());
        m_item->setPosition(QPointF(40, 24));
    }

    void make(const Change &change)
    {
        for (auto it = change.properties.begin(); it != change.properties.end(); ++it) {
            if (!m_item->setProperty(qPrintable(it.key()), it.value()))
                qFatal("%s has no property %s", qPrintable(m_name), qPrintable(it.key()));
        }
        if (change.kind == Change::Kind::Update)
            m_item->update();
        if (change.kind == Change::Kind::Arrival && !waitForFrame(m_stage) && isChecked(change))
            qFatal("%s: %s asks for no frame", qPrintable(m_name), qPrintable(change.name));
    }

    template <typename Function>
    Cost measure(const Function &function, Frame frame)
    {
        Cost cost;
        cost.objects = stbtest::objectsCreated([&] {
            cost.texts = stbtest::textsLaidOut([&] {
                function();
                if (frame == Frame::Painted)
                    cost.pixels = stbtest::pixelCount(m_stage.renderFrame());
            });
        });
        return cost;
    }

    void add(const QString &step, const char *what, qint64 value)
    {
        m_count.figures.append({ step, QLatin1String(what), value });
    }
    void add(const char *step, const char *what, qint64 value) { add(QLatin1String(step), what, value); }

    // The texts of the other forms are laid out by Qt Quick, which does not count them.
    void addFrame(const QString &step, const Cost &cost)
    {
        add(step, "nodes", stbtest::itemNodeCount(m_item.get()));
        add(step, "objects", cost.objects);
        add(step, "texts", m_isModule ? cost.texts : -1);
        add(step, "pixels", cost.pixels);
    }

    void checkFrames(const QString &step)
    {
        if (m_stage.picture() == m_stage.renderWhole())
            return;
        qFatal("%s, %s: the frames do not add up to the picture, see %s", qPrintable(m_name),
               qPrintable(step),
               qPrintable(stbtest::savePicture(m_stage.picture(), QStringLiteral("counters-frames"))));
    }

    stbtest::Stage m_stage;
    const QString m_name;
    const bool m_isModule;
    std::unique_ptr<QQuickItem> m_item;
    Count m_count;
};

} // namespace

Count count(const Subject &subject, Form &form, int first)
{
    Count count;
    for (const int number : { first + 50, first }) { // what the first one makes for all is no part of an item
        CountedItem item(subject, form, number);
        for (const Change &change : subject.changes(number))
            item.apply(change);
        item.countFramesAtRest();
        count = item.count();
    }
    return count;
}

} // namespace stbbench
