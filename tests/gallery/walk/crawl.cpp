// SPDX-License-Identifier: MIT
#include "crawl.h"

#include "accessibletree.h"

#include <QtCore/qabstractitemmodel.h>
#include <QtCore/qcryptographichash.h>
#include <QtCore/qset.h>
#include <QtQuick/qquickitem.h>
#include <QtTest/qsignalspy.h>

#include <algorithm>
#include <deque>

using namespace Qt::StringLiterals;

namespace {

// Far more than any crawl needs; one that does not come to an end fails.
constexpr int mostPresses = 60000;

/*! Properties that tell what was typed, set or watched, and by themselves change nothing of what keys do. */
bool isEndless(const QString &controller, const char *property)
{
    static const QMap<QString, QStringList> names {
        { u"search"_s,
          { u"text"_s, u"cursor"_s, u"title"_s, u"facts"_s, u"message"_s, u"keyboardShift"_s,
            u"keyboardCapsLock"_s, u"keyboardSymbols"_s, u"keyboardLanguage"_s } },
        { u"components"_s, { u"qmlText"_s } },
        { u"player"_s,
          { u"title"_s, u"facts"_s, u"picture"_s, u"progress"_s, u"startText"_s, u"stopText"_s } },
    };
    return names.value(controller).contains(QLatin1StringView(property));
}

// One of several, which goes out when another one is chosen.
bool isExclusive(QQuickWindow *window)
{
    const QList<AccessibleThing> chosen = chosenThings(focusedThings(window));
    return !chosen.isEmpty() && chosen.constFirst().item->property("autoExclusive").toBool();
}

/*! Which of the lists of \a controller have rows; and of a text that is typed, whether there is none, or one letter. */
QString modelText(const QObject *controller)
{
    QString result;
    const QMetaObject *meta = controller->metaObject();
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        if (const auto *model = meta->property(i).read(controller).value<QAbstractItemModel *>())
            result += model->rowCount() > 0 ? u'1' : u'0';
    }
    return result + QString::number(std::min<qsizetype>(2, controller->property("text").toString().size()));
}

QString valueText(const QMetaProperty &property, const QVariant &value)
{
    if (property.isEnumType())
        return QString::fromLatin1(property.enumerator().valueToKey(value.toInt()));
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(u'|');
    return value.toString();
}

/*! The properties of \a object's own classes that tell something in words, numbers or choices. */
QList<QMetaProperty> properties(const QObject *object)
{
    QList<QMetaProperty> result;
    const QMetaObject *meta = object->metaObject();
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (!property.metaType().flags().testFlag(QMetaType::PointerToQObject))
            result.append(property);
    }
    return result;
}

/*! Signals by which a controller asks for something to be done, such as requests and changed settings. */
QList<QMetaMethod> requests(const QObject *object)
{
    QList<QMetaMethod> result;
    const QMetaObject *meta = object->metaObject();
    for (int i = QObject::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        const QByteArray name = method.name();
        if (method.methodType() == QMetaMethod::Signal
            && (name.endsWith("Requested") || name.endsWith("Opened") || name == "changed"))
            result.append(method);
    }
    return result;
}

QStringList namedArguments(const QVariantList &arguments)
{
    QStringList texts;
    for (const QVariant &argument : arguments) {
        if (argument.typeId() == QMetaType::QString)
            texts.append(argument.toString());
    }
    return texts;
}

// Both values of a switch, all values of a choice; anything else is nothing that can be counted.
QStringList valuesOf(const QMetaProperty &property)
{
    QStringList values;
    if (property.metaType().id() == QMetaType::Bool)
        values = { u"false"_s, u"true"_s };
    const QMetaEnum choices = property.enumerator();
    for (int i = 0; property.isEnumType() && i < choices.keyCount(); ++i)
        values.append(QString::fromLatin1(choices.key(i)));
    return values;
}

} // namespace

Crawl::Crawl(GalleryWindow *window, const QMap<QString, int> &limits)
    : m_window(window)
    , m_limits(limits)
    , m_controllers(controllersOf(window->shell()))
{
    watchSignals();
    for (auto it = m_controllers.cbegin(); it != m_controllers.cend(); ++it) {
        const QList<QMetaProperty> all = properties(it.value());
        for (const QMetaProperty &property : all) {
            if (!valuesOf(property).isEmpty())
                m_countable.push_back({ it.key() + u'.' + QLatin1StringView(property.name()) + " = "_L1,
                                        it.value(), property });
        }
    }
}

Crawl::~Crawl() = default;

Crawl::Controllers Crawl::controllersOf(gallery::ShellController *shell)
{
    Controllers result { { u"shell"_s, shell } };
    const QMetaObject *meta = shell->metaObject();
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        if (auto *controller = meta->property(i).read(shell).value<QObject *>())
            result.insert(QString::fromLatin1(meta->property(i).name()), controller);
    }
    return result;
}

void Crawl::watchSignals()
{
    for (auto it = m_controllers.cbegin(); it != m_controllers.cend(); ++it) {
        const QList<QMetaMethod> methods = requests(it.value());
        for (const QMetaMethod &method : methods) {
            m_signals.emplace_back(it.key() + u'.' + QString::fromLatin1(method.name()),
                                   std::make_unique<QSignalSpy>(it.value(), method));
        }
    }
}

QByteArray Crawl::digest() const
{
    const gallery::ShellController *shell = m_window->shell();
    QStringList parts = shell->openScreens();
    const QStringList screens = gallery::ShellController::screenNames();
    for (auto it = m_controllers.cbegin(); it != m_controllers.cend(); ++it) {
        // What belongs to no screen, such as a menu, may lie over each of them.
        if (screens.contains(it.key()) && it.key() != shell->screen())
            continue;
        const QList<QMetaProperty> all = properties(it.value());
        for (const QMetaProperty &property : all) {
            if (!isEndless(it.key(), property.name()))
                parts.append(valueText(property, property.read(it.value())));
        }
        parts.append(modelText(it.value()));
    }
    const QList<AccessibleThing> chosen = chosenThings(focusedThings(m_window->window()));
    for (const AccessibleThing &thing : chosen) {
        const QPoint place = thing.rect.topLeft().toPoint();
        parts.append(u"%1 %2 %3 %4"_s.arg(int(thing.role))
                             .arg(place.x())
                             .arg(place.y())
                             .arg(int(thing.state.checked)));
    }
    return QCryptographicHash::hash(parts.join(QChar(1)).toUtf8(), QCryptographicHash::Sha1);
}

int Crawl::observe(const QList<Qt::Key> &path)
{
    const QByteArray seen = digest();
    if (const auto known = m_numbers.constFind(seen); known != m_numbers.cend())
        return *known;

    const QString screen = m_window->shell()->screen();
    const auto count = std::count_if(m_states.cbegin(), m_states.cend(),
                                     [&](const State &state) { return state.screen == screen; });
    const QString problem = focusProblem(focusedThings(m_window->window()));
    if (!problem.isEmpty())
        m_focusProblems.append(u"%1 after %2: %3"_s.arg(screen, keyNames(path), problem));
    const QList<AccessibleThing> chosen = chosenThings(focusedThings(m_window->window()));
    m_states.push_back({ seen,
                         screen,
                         path,
                         chosen.isEmpty() ? QString() : chosen.constFirst().name,
                         !chosen.isEmpty() && chosen.constFirst().state.checked,
                         {},
                         count < m_limits.value(screen, m_limits.value(QString())) });
    m_numbers.insert(seen, int(m_states.size()) - 1);
    return int(m_states.size()) - 1;
}

void Crawl::note(const QString &event, const QString &path)
{
    if (!m_events.contains(event))
        m_events.insert(event, path);
}

void Crawl::noteProperties(const QString &path)
{
    note(u"shown: "_s + m_window->shell()->screen(), path);
    for (const auto &[name, controller, property] : m_countable) {
        const QString event = name + valueText(property, property.read(controller));
        note(event, path);
    }
}

void Crawl::noteSignals(const QString &path)
{
    for (const auto &[name, spy] : m_signals) {
        while (!spy->isEmpty()) {
            const QStringList arguments = namedArguments(spy->takeFirst());
            note(name, path);
            if (!arguments.isEmpty())
                note(name + u'(' + arguments.join(u", "_s) + u')', path);
        }
    }
}

int Crawl::step(int from, Qt::Key key)
{
    QList<Qt::Key> path = m_states[size_t(from)].path;
    path.append(key);
    m_window->press(key);
    ++m_presses;
    const QString keys = keyNames(path);
    noteSignals(keys);
    noteProperties(keys);
    const int to = observe(path);
    State &before = m_states[size_t(from)];
    const State &after = m_states[size_t(to)];
    before.next.insert(key, to);
    if (key == Qt::Key_Return && before.screen == after.screen && before.chosen == after.chosen
        && before.isChecked != after.isChecked && !isExclusive(m_window->window())) {
        note(u"%1: %2 is switched %3"_s.arg(after.screen, after.chosen, after.isChecked ? u"on"_s : u"off"_s),
             keys);
    }
    return to;
}

bool Crawl::isDone(const State &state)
{
    return state.isOpen ? state.next.size() == plainKeys().size() : state.next.contains(Qt::Key_Back);
}

QList<Qt::Key> Crawl::untried(const State &state)
{
    QList<Qt::Key> keys = state.isOpen ? plainKeys() : QList<Qt::Key> { Qt::Key_Back };
    keys.removeIf([&state](Qt::Key key) { return state.next.contains(key); });
    return keys;
}

// The state that is nearest to the start and has a key to try; of several that are as near, what is nearest from here.
int Crawl::nextGoal(int from) const
{
    const State &here = m_states[size_t(from)];
    if (!here.isOpen && !isDone(here))
        return from;
    qsizetype nearest = -1;
    for (const State &state : m_states) {
        if (!isDone(state) && (nearest < 0 || state.path.size() < nearest))
            nearest = state.path.size();
    }
    QSet<int> seen { from };
    std::deque<int> queue { from };
    int further = -1; // one that can be reached, should no near one be
    while (nearest >= 0 && !queue.empty()) {
        const int number = queue.front();
        queue.pop_front();
        const State &state = m_states[size_t(number)];
        if (!isDone(state)) {
            if (state.path.size() <= nearest + 1)
                return number;
            further = further < 0 ? number : further;
        }
        for (const int next : state.next) {
            if (!seen.contains(next)) {
                seen.insert(next);
                queue.push_back(next);
            }
        }
    }
    return further;
}

QList<Qt::Key> Crawl::wayTo(int from, int goal) const
{
    QHash<int, std::pair<int, Qt::Key>> origins;
    std::deque<int> queue { from };
    while (!queue.empty() && !origins.contains(goal) && from != goal) {
        const int number = queue.front();
        queue.pop_front();
        const State &state = m_states[size_t(number)];
        for (const Qt::Key key : plainKeys()) {
            const int next = state.next.value(key, -1);
            if (next < 0 || next == from || origins.contains(next))
                continue;
            origins.insert(next, { number, key });
            queue.push_back(next);
        }
    }
    QList<Qt::Key> way;
    for (int number = goal; number != from; number = origins.value(number).first)
        way.prepend(origins.value(number).second);
    return way;
}

// What was seen once and cannot be reached any more, since something below it has changed, is begun anew.
int Crawl::tryBackAnew()
{
    for (State &state : m_states) {
        if (isDone(state))
            continue;
        state.isOpen = false;
        if (isDone(state))
            continue;
        const QList<Qt::Key> path = state.path;
        const int number = m_numbers.value(state.digest);
        m_window->start(u"home"_s);
        for (const Qt::Key key : path)
            m_window->press(key);
        m_presses += int(path.size());
        return step(number, Qt::Key_Back);
    }
    return -1;
}

void Crawl::run()
{
    noteProperties(keyNames({}));
    int current = observe({});
    while (m_presses < mostPresses) {
        const int goal = nextGoal(current);
        if (goal < 0) {
            current = tryBackAnew();
            if (current < 0)
                return;
            continue;
        }
        const QList<Qt::Key> way = wayTo(current, goal);
        for (const Qt::Key key : way) {
            const int expected = m_states[size_t(current)].next.value(key);
            current = step(current, key);
            // What lies below the screen may have made a difference: the way is looked for anew.
            if (current != expected)
                break;
        }
        if (current == goal)
            current = step(current, untried(m_states[size_t(goal)]).constFirst());
    }
    qWarning("After %d keys there is still something to try", m_presses);
}

QMap<QString, int> Crawl::statesByScreen() const
{
    QMap<QString, int> result;
    for (const State &state : m_states)
        ++result[state.screen];
    return result;
}

QStringList Crawl::missing() const
{
    QStringList result;
    const QStringList screens = gallery::ShellController::screenNames();
    for (const QString &screen : screens) {
        if (!m_events.contains(u"shown: "_s + screen))
            result.append(u"shown: "_s + screen);
    }
    for (const auto &[name, spy] : m_signals) {
        if (!m_events.contains(name))
            result.append(name);
    }
    for (const auto &[name, controller, property] : m_countable) {
        const QStringList values = valuesOf(property);
        for (const QString &value : values) {
            if (!m_events.contains(name + value))
                result.append(name + value);
        }
    }
    return result;
}

QStringList Crawl::traps() const
{
    QStringList result;
    for (const State &state : m_states) {
        const State *current = &state;
        for (size_t steps = 0; current->screen != "home"_L1 && steps <= m_states.size(); ++steps)
            current = &m_states[size_t(current->next.value(Qt::Key_Back, 0))];
        if (current->screen != "home"_L1 || !state.next.contains(Qt::Key_Back))
            result.append(u"%1 after %2"_s.arg(state.screen, keyNames(state.path)));
    }
    return result;
}
