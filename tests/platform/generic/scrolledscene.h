// SPDX-License-Identifier: MIT
#ifndef TESTS_PLATFORM_GENERIC_SCROLLEDSCENE_H
#define TESTS_PLATFORM_GENERIC_SCROLLEDSCENE_H

#include "viewscene.h"

#include <QtCore/qabstractanimation.h>

namespace scrolled {

using namespace Qt::StringLiterals;

/*! Time for animations that passes only when the test says so. */
class HandTime : public QAnimationDriver
{
public:
    HandTime() { install(); }
    ~HandTime() override { uninstall(); }
    Q_DISABLE_COPY_MOVE(HandTime)

    /*! Forgets the time that passed while nothing moved; the next animation would begin with it. */
    void restart()
    {
        uninstall();
        install();
    }

    void pass(int milliseconds)
    {
        QCoreApplication::processEvents(); // animations begin there
        m_elapsed += milliseconds;
        advanceAnimation();
    }
    qint64 elapsed() const override { return m_elapsed; }

protected:
    void start() override
    {
        m_elapsed = 0;
        QAnimationDriver::start();
    }

private:
    qint64 m_elapsed = 0;
};

inline const QString delegate = u"delegate: Rectangle { width: 101; height: 61; color: 'teal' }"_s;
// Counts in the view's property "made".
inline const QString countingDelegate = u"property int made: 0\n"
                                        "delegate: Rectangle { width: 101; height: 61\n"
                                        "Component.onCompleted: ListView.view.made++ }"_s;

struct ScrolledScene : stbtest::ViewScene
{
    HandTime time;

    /*! A row of tiles of 101 x 61 with odd margins. */
    bool showRow(const QString &properties = {}, int count = 20)
    {
        return show(u"ScrolledListView { width: 640; height: 100; focus: true; model: %1\n"_s.arg(count)
                    + stbtest::withDefaults({ u"orientation: ListView.Horizontal"_s, u"spacing: 11"_s,
                                              u"leftMargin: 47"_s, u"rightMargin: 59"_s,
                                              u"highlightMoveDuration: 0"_s, delegate },
                                            properties)
                    + u"}"_s);
    }

    bool showList(const QString &properties = {}, int count = 20)
    {
        return show(u"ScrolledListView { width: 300; height: 360; focus: true; model: %1\n"_s.arg(count)
                    + stbtest::withDefaults({ u"spacing: 3"_s, u"topMargin: 13"_s, u"bottomMargin: 17"_s,
                                              u"highlightMoveDuration: 0"_s, delegate },
                                            properties)
                    + u"}"_s);
    }

    /*! 4 columns: (640 - 47 - 59 + 23) / (101 + 23), rounded down. */
    bool showGrid(const QString &properties = {}, int count = 40)
    {
        const QStringList defaults {
            u"id: grid; itemWidth: 101; itemHeight: 61; horizontalSpacing: 23; verticalSpacing: 19"_s,
            u"leftMargin: 47; topMargin: 13; bottomMargin: 17"_s,
            u"rightMargin: 59"_s,
            u"highlightMoveDuration: 0"_s,
            delegate,
        };
        return show(u"ScrolledGridView { width: 640; height: 360; focus: true; model: %1\n"_s.arg(count)
                    + stbtest::withDefaults(defaults, properties) + u"}"_s);
    }

    int current() const { return item->property("currentIndex").toInt(); }
    void setCurrent(int index) { item->setProperty("currentIndex", index); }

    /*! Makes \a index current and lets a view without duration follow. */
    void goTo(int index)
    {
        setCurrent(index);
        settle();
    }
    void settle()
    {
        for (int frame = 0; frame < 2; ++frame)
            passFrame();
    }
    void passFrame()
    {
        time.pass(20);
        stage.renderFrame();
    }

    /*! Where the current item is seen. */
    QRectF currentRect() const
    {
        const auto *current = item->property("currentItem").value<QQuickItem *>();
        return current ? current->mapRectToItem(item.get(), QRectF(QPointF(), current->size())) : QRectF();
    }

    QQuickItem *scrollBar() const { return item->property("scrollBar").value<QQuickItem *>(); }
};

} // namespace scrolled

#endif // TESTS_PLATFORM_GENERIC_SCROLLEDSCENE_H
