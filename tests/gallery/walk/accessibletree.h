// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_ACCESSIBLETREE_H
#define STBUI_TEST_ACCESSIBLETREE_H

#include <QtCore/qlist.h>
#include <QtCore/qrect.h>
#include <QtCore/qstringlist.h>
#include <QtGui/qaccessible.h>

QT_BEGIN_NAMESPACE
class QQuickItem;
class QQuickWindow;
QT_END_NAMESPACE

/*! What an assistive program is told of an item that can be seen. */
struct AccessibleThing
{
    QQuickItem *item = nullptr;
    QRectF rect; // in the window, as far as no ancestor cuts it off
    QString name;
    QString description;
    QAccessible::Role role = QAccessible::NoRole;
    QAccessible::State state;

    /*! "Button \"Play\" (StbButton \"button\" at 64,500 200x48)". */
    QString text() const;
};

/*! Whether \a item is one of the module's items that paint themselves, or derived from one. */
bool isModuleControl(const QQuickItem *item);

/*! The part of \a item that can be seen in its window, nothing when it is hidden or outside. */
QRectF visibleRect(const QQuickItem *item);

/*! Every item of the window that can be seen, parents first. */
QList<QQuickItem *> visibleItems(const QQuickWindow *window);

/*! What the accessibility tree of \a window has, as far as it can be seen. */
QList<AccessibleThing> accessibleThings(QQuickWindow *window);

/*! Of these, only what says that it is focused; that is all that chosenThings() and focusProblem() look at. */
QList<AccessibleThing> focusedThings(QQuickWindow *window);

/*!
    What keys act on, as an assistive program hears it: whatever says that it is focused, but of things within each
    other only the innermost one.
*/
QList<AccessibleThing> chosenThings(const QList<AccessibleThing> &things);

/*! Why it cannot be heard what keys act on; empty when it can. */
QString focusProblem(const QList<AccessibleThing> &things);

/*! All that is wrong with what \a window tells assistive programs, a line each. */
QStringList accessibilityProblems(QQuickWindow *window);

#endif // STBUI_TEST_ACCESSIBLETREE_H
