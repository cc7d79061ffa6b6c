// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_CRAWL_H
#define STBUI_TEST_CRAWL_H

#include "gallerywindow.h"

#include <QtCore/qhash.h>
#include <QtCore/qmap.h>
#include <QtCore/qmetaobject.h>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QSignalSpy;
QT_END_NAMESPACE

/*!
    Presses four arrows, OK and Back until every state that there is was seen and every key was tried in each.

    A state is which screens are open, what keys act on, and what the controller of the screen that is shown tells by
    its properties, but for texts that are typed or made up: those have no end. States are tried in the order of their
    distance from the start, as far as it is known then; to reach the next one the crawl walks through states that it
    knows, by keys, as a viewer would. Where a screen has more than its limit of states, the rest of them is only left
    again, by Back.
*/
class Crawl
{
    Q_DISABLE_COPY_MOVE(Crawl)
public:
    /*! \a limits are for screens by their names, and for all others the one of the empty name. */
    Crawl(GalleryWindow *window, const QMap<QString, int> &limits);
    ~Crawl();

    void run();

    /*! How many keys were pressed, and how many states a screen has, by its name. */
    int presses() const { return m_presses; }
    QMap<QString, int> statesByScreen() const;
    /*! What has happened: "detail.favourite = true", "guide.playRequested"; and the keys that led there first. */
    QMap<QString, QString> events() const { return m_events; }
    /*! Properties and signals that there are and that were not seen in every value, or never: "detail.liked = true". */
    QStringList missing() const;
    /*! States without something that is seen to be chosen. */
    QStringList focusProblems() const { return m_focusProblems; }
    /*! States from which Back, pressed again and again, does not lead home. */
    QStringList traps() const;

private:
    struct State
    {
        QByteArray digest;
        QString screen;
        QList<Qt::Key> path; // from the start, the first that was found
        QString chosen; // what keys act on, and whether it is checked
        bool isChecked = false;
        QMap<Qt::Key, int> next; // the states that keys lead to, in an order that is always the same
        bool isOpen = true; // all keys are tried here, not only Back
    };

    using Controllers = QMap<QString, QObject *>;

    /*! A switch or a choice, all of whose values are to be seen. */
    struct Countable
    {
        QString name; // "detail.liked = "
        QObject *controller;
        QMetaProperty property;
    };

    static Controllers controllersOf(gallery::ShellController *shell);
    QByteArray digest() const;
    int observe(const QList<Qt::Key> &path);
    static bool isDone(const State &state);
    static QList<Qt::Key> untried(const State &state);
    int tryBackAnew();
    QList<Qt::Key> wayTo(int from, int goal) const;
    int nextGoal(int from) const;
    int step(int from, Qt::Key key);
    void noteProperties(const QString &path);
    void noteSignals(const QString &path);
    void note(const QString &event, const QString &path);
    void watchSignals();

    GalleryWindow *m_window;
    const QMap<QString, int> m_limits;
    Controllers m_controllers;
    std::vector<State> m_states;
    QHash<QByteArray, int> m_numbers;
    std::vector<std::pair<QString, std::unique_ptr<QSignalSpy>>> m_signals;
    std::vector<Countable> m_countable;
    QMap<QString, QString> m_events;
    QStringList m_focusProblems;
    int m_presses = 0;
};

#endif // STBUI_TEST_CRAWL_H
