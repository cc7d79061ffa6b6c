// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_SCREENTEST_H
#define STBUI_TEST_SCREENTEST_H

#include "guides.h"
#include "testkit/testcase.h"

#include "app/application.h"
#include "app/languages.h"
#include "screens/shellcontroller.h"

#include <QtCore/qrandom.h>
#include <QtGui/qevent.h>
#include <QtQuick/qquickitem.h>

/*! The base of tests that look at a screen of the gallery in its window and press keys; cleanup() calls end(). */
class ScreenTest : public stbtest::TestCase
{
protected:
    /*! Starts on the screen that \a options name, at 20:05 of the test guides' day, with the five channels. */
    void start(gallery::Options options)
    {
        options.now = guides::at(20, 5);
        if (options.language.isEmpty())
            options.language = "en";
        // The configuration of a run lies over the one of before: the old one goes first.
        m_application.reset();
        m_application = std::make_unique<gallery::Application>(options);
        // Panels are where they belong at once.
        m_application->configuration()->setForRun("Animations", "slidingEnabled", false);
        QVERIFY2(m_application->start(), qPrintable(m_application->error()));
        QVERIFY(QTest::qWaitForWindowExposed(view()));
        shell()->guide()->setGuide(guides::five());
    }

    gallery::ShellController *shell() const { return m_application->shell(); }
    gallery::ScreenWindow *view() const { return m_application->view(); }
    void press(Qt::Key key) const
    {
        // QTest::keyClick() does not know all keys of remote controls.
        for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QCoreApplication::sendEvent(view(), &event);
        }
    }

    /*! The visible items named \a name, from the back to the front. */
    QList<QQuickItem *> items(const QString &name) const
    {
        QList<QQuickItem *> found;
        collect(view()->rootObject(), name, found);
        return found;
    }
    QQuickItem *item(const QString &name) const { return items(name).value(0); }

    static QRectF sceneRect(const QQuickItem *item)
    {
        return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    }

    /*! The texts that are shown. */
    QStringList texts() const
    {
        QStringList result;
        collectTexts(view()->rootObject(), result);
        return result;
    }

    /*! Why the focus plate cannot be seen within \a place, or nothing when it can. */
    QString plateProblem(const QRectF &place) const
    {
        if (view()->activeFocusItem() == nullptr)
            return "nothing has the focus";
        const QList<QQuickItem *> plates = items("focusPlate");
        if (plates.size() != 1)
            return QStringLiteral("%1 focus plates").arg(plates.size());
        const QRectF plate = sceneRect(plates.constFirst());
        if (plate.height() < 20 || plate.width() < 20 || !place.adjusted(-1, -1, 1, 1).contains(plate))
            return QStringLiteral("the focus plate is at %1, %2, %3 x %4")
                    .arg(plate.x())
                    .arg(plate.y())
                    .arg(plate.width())
                    .arg(plate.height());
        return {};
    }

    /*! Why the menu's entry that has the focus cannot be seen, or nothing when it can. */
    QString menuProblem() const
    {
        if (view()->activeFocusItem() == nullptr)
            return "nothing has the focus";
        const QList<QQuickItem *> entries = items("menuEntry");
        int focused = 0;
        for (const QQuickItem *entry : entries) {
            if (!entry->property("focused").toBool())
                continue;
            ++focused;
            if (!sceneRect(item("menuEntries")).adjusted(-1, -1, 1, 1).contains(sceneRect(entry)))
                return "the entry that has the focus is not wholly in the menu";
        }
        return focused == 1 ? QString()
                            : QStringLiteral("%1 of %2 entries focused").arg(focused).arg(entries.size());
    }

    static QList<Qt::Key> remoteKeys()
    {
        return { Qt::Key_Up,       Qt::Key_Down, Qt::Key_Left,   Qt::Key_Right,  Qt::Key_PageUp,
                 Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,    Qt::Key_Return, Qt::Key_Back,
                 Qt::Key_A,        Qt::Key_Tab,  Qt::Key_Backtab };
    }

    std::unique_ptr<gallery::Application> m_application;

    void end()
    {
        m_application.reset();
        QVERIFY(gallery::installLanguage(QStringLiteral("en")));
    }

private:
    static void collect(QQuickItem *item, const QString &name, QList<QQuickItem *> &found)
    {
        if (!item->isVisible())
            return;
        if (item->objectName() == name)
            found.append(item);
        const QList<QQuickItem *> children = item->childItems();
        for (QQuickItem *child : children)
            collect(child, name, found);
    }
    static void collectTexts(const QQuickItem *item, QStringList &texts)
    {
        if (!item->isVisible())
            return;
        if (!item->property("text").toString().isEmpty())
            texts.append(item->property("text").toString());
        const QList<QQuickItem *> children = item->childItems();
        for (const QQuickItem *child : children)
            collectTexts(child, texts);
    }
};

#endif // STBUI_TEST_SCREENTEST_H
