// SPDX-License-Identifier: MIT
#include "accessibletree.h"

#include <QtCore/qmetaobject.h>
#include <QtQml/qqml.h>
#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

QString describe(const QQuickItem *item)
{
    const QRectF rect = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    return u"%1 \"%2\" at %3,%4 %5x%6"_s
            .arg(QLatin1StringView(item->metaObject()->className()), item->objectName())
            .arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height());
}

template <typename Enum>
QString enumName(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(value));
}

void collectItems(QQuickItem *item, QList<QQuickItem *> &items)
{
    if (!item->isVisible() || item->opacity() <= 0)
        return;
    if (!visibleRect(item).isEmpty())
        items.append(item);
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collectItems(child, items);
}

// Newer views than those of Qt 6.4 put the roots of all their delegates into the tree. Such a root that says nothing of
// itself is a group of what it holds.
bool isGroup(const QQuickItem *item, const QAccessibleInterface *told)
{
    return told->role() == QAccessible::Client && !told->state().focusable
           && QQuickAccessibleAttached::attachedProperties(item) == nullptr;
}

// Qt's tree has the items that are accessible, below the nearest ancestor that is; what it tells comes from Qt.
void collectThings(QQuickItem *item, bool onlyFocused, QList<AccessibleThing> &things)
{
    if (!item->isVisible())
        return;
    if (QQuickItemPrivate::get(item)->isAccessible) {
        QAccessibleInterface *told = QAccessible::queryAccessibleInterface(item);
        const QAccessible::State state = told ? told->state() : QAccessible::State();
        const QRectF rect = onlyFocused && !state.focused ? QRectF() : visibleRect(item);
        if (told && !isGroup(item, told) && !state.invisible && !rect.isEmpty()) {
            things.append({ item, rect, told->text(QAccessible::Name), told->text(QAccessible::Description),
                            told->role(), state });
        }
    }
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collectThings(child, onlyFocused, things);
}

bool isBelow(const QQuickItem *item, const QQuickItem *ancestor)
{
    for (const QQuickItem *parent = item->parentItem(); parent; parent = parent->parentItem()) {
        if (parent == ancestor)
            return true;
    }
    return false;
}

// Text that stands there is no control, and an empty one says nothing.
bool isEmptyText(const AccessibleThing &thing)
{
    return thing.role == QAccessible::StaticText && thing.item->inherits("QQuickText")
           && thing.item->property("text").toString().isEmpty();
}

bool inheritsOne(const QQuickItem *item, std::initializer_list<const char *> names)
{
    return std::any_of(names.begin(), names.end(), [item](const char *name) { return item->inherits(name); });
}

/*! Something that a viewer uses or looks at: the module's items, and what is built on Qt Quick's templates. */
bool isControl(const QQuickItem *item)
{
    return isModuleControl(item)
           || inheritsOne(item, { "QQuickAbstractButton", "QQuickTextInput", "QQuickScrollBar",
                                  "stbgeneric::Pressable", "stbgeneric::KeyboardKey",
                                  "stbgeneric::KeyboardPad", "stbgeneric::ProgressCircle" });
}

// The live example of a page of components, with whatever values it was given: its stage has the name of the control.
bool isExample(const QQuickItem *item)
{
    const QQuickItem *parent = item->parentItem();
    while (parent && !parent->inherits("gallery::ComponentPreview"))
        parent = parent->parentItem();
    return parent != nullptr;
}

// An ornament says so itself.
bool isIgnored(const QQuickItem *item)
{
    const auto *attached = QQuickAccessibleAttached::attachedProperties(item);
    return attached && attached->ignored();
}

bool says(const QQuickItem *item, const char *property)
{
    return item->property(property).toBool();
}

// The main menu while it lies over a screen, which looks as before but has no keys.
const QQuickItem *openMenu(const QQuickItem *item)
{
    if (!item->isVisible())
        return nullptr;
    if (item->objectName() == "menuOverlay"_L1)
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (const QQuickItem *child : children) {
        if (const QQuickItem *menu = openMenu(child))
            return menu;
    }
    return nullptr;
}

QStringList stateProblems(const AccessibleThing &thing)
{
    QStringList problems;
    const QQuickItem *menu = openMenu(thing.item->window()->contentItem());
    const bool isCovered = menu && !isBelow(thing.item, menu);
    const bool isFocused = says(thing.item, "focused") || thing.item->state() == "focused"_L1;
    if (isFocused && !thing.state.focused && !isCovered)
        problems.append(u"shows the focus and does not say so"_s);
    if (thing.state.focused && isCovered)
        problems.append(u"says that it has the focus, which the menu has"_s);
    if (says(thing.item, "checked") && !thing.state.checked && !thing.state.selected)
        problems.append(u"is checked and does not say so"_s);
    if (thing.state.checked && !thing.state.checkable && thing.role != QAccessible::RadioButton)
        problems.append(u"says that it is checked, but not that it can be"_s);
    if (thing.state.selected && !thing.state.selectable)
        problems.append(u"says that it is selected, but not that it can be"_s);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0) // Qt 6.4 cannot tell
    if (!thing.item->isEnabled() && !thing.state.disabled)
        problems.append(u"is switched off and does not say so"_s);
#endif
    return problems;
}

QStringList thingProblems(const AccessibleThing &thing)
{
    if (isEmptyText(thing) || isExample(thing.item))
        return {};
    QStringList problems = stateProblems(thing);
    if (thing.role == QAccessible::NoRole || thing.role == QAccessible::Client)
        problems.append(u"has no role"_s);
    // Qt tells no name of a password's input.
    const QString name = thing.state.passwordEdit ? thing.description : thing.name;
    if (name.trimmed().isEmpty())
        problems.append(u"has no name"_s);
    for (QString &problem : problems)
        problem.prepend(thing.text() + u' ');
    return problems;
}

} // namespace

QString AccessibleThing::text() const
{
    return u"%1 \"%2\" (%3)"_s.arg(enumName(role), name, describe(item));
}

bool isModuleControl(const QQuickItem *item)
{
    return inheritsOne(item, { "StbButton", "StbExpandableTile", "StbEpgViewDelegate",
                               "StbEpgViewDelegateFocused", "StbHorizontalEpgViewDelegate", "StbEpgDate",
                               "StbEpisodesViewDelegate", "StbTvChannelViewDelegate" });
}

QRectF visibleRect(const QQuickItem *item)
{
    if (!item->isVisible() || !item->window())
        return {};
    QRectF rect = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    rect &= QRectF(QPointF(), item->window()->size());
    for (const QQuickItem *parent = item->parentItem(); parent; parent = parent->parentItem()) {
        if (parent->opacity() <= 0)
            return {};
        if (parent->clip())
            rect &= parent->mapRectToScene(parent->clipRect());
    }
    return rect;
}

QList<QQuickItem *> visibleItems(const QQuickWindow *window)
{
    QList<QQuickItem *> items;
    collectItems(window->contentItem(), items);
    return items;
}

QList<AccessibleThing> accessibleThings(QQuickWindow *window)
{
    QList<AccessibleThing> things;
    collectThings(window->contentItem(), false, things);
    return things;
}

QList<AccessibleThing> focusedThings(QQuickWindow *window)
{
    QList<AccessibleThing> things;
    collectThings(window->contentItem(), true, things);
    return things;
}

QList<AccessibleThing> chosenThings(const QList<AccessibleThing> &things)
{
    QList<AccessibleThing> chosen;
    for (const AccessibleThing &thing : things) {
        // An example may be given the look of the focus; it has the keys only when the focus is really there.
        if (!thing.state.focused || (isExample(thing.item) && !thing.item->hasActiveFocus()))
            continue;
        // Parents come first.
        chosen.removeIf([&thing](const AccessibleThing &other) { return isBelow(thing.item, other.item); });
        chosen.append(thing);
    }
    return chosen;
}

QString focusProblem(const QList<AccessibleThing> &things)
{
    const QList<AccessibleThing> chosen = chosenThings(things);
    if (chosen.isEmpty())
        return u"nothing says that keys act on it"_s;
    if (chosen.size() > 1) {
        QStringList texts;
        for (const AccessibleThing &thing : chosen)
            texts.append(thing.text());
        return u"keys are said to act on several things: "_s + texts.join(u", "_s);
    }
    const AccessibleThing &thing = chosen.constFirst();
    if (thing.rect.width() < 8 || thing.rect.height() < 8)
        return thing.text() + u" has the keys and is hardly seen"_s;
    return {};
}

QStringList accessibilityProblems(QQuickWindow *window)
{
    const QList<AccessibleThing> things = accessibleThings(window);
    QStringList problems;
    if (const QString problem = focusProblem(things); !problem.isEmpty())
        problems.append(problem);
    for (const AccessibleThing &thing : things)
        problems += thingProblems(thing);
    const QList<QQuickItem *> items = visibleItems(window);
    for (const QQuickItem *item : items) {
        const bool isTold = std::any_of(things.cbegin(), things.cend(),
                                        [item](const AccessibleThing &thing) { return thing.item == item; });
        if (isControl(item) && !isTold && !isIgnored(item) && !isExample(item))
            problems.append(describe(item) + u" is not in the accessibility tree"_s);
    }
    return problems;
}
