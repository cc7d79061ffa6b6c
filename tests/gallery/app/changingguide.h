// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_CHANGINGGUIDE_H
#define STBUI_TEST_CHANGINGGUIDE_H

#include "guides.h"

#include <QtCore/qrandom.h>

namespace guides {

/*! Every key that means something in the guide, and some that do not. */
inline QList<int> allRemoteKeys()
{
    return { Qt::Key_Up,        Qt::Key_Down,        Qt::Key_Left,      Qt::Key_Right,         Qt::Key_PageUp,
             Qt::Key_PageDown,  Qt::Key_Home,        Qt::Key_End,       Qt::Key_Return,        Qt::Key_Back,
             Qt::Key_ChannelUp, Qt::Key_ChannelDown, Qt::Key_MediaNext, Qt::Key_MediaPrevious, Qt::Key_Green,
             Qt::Key_Info,      Qt::Key_Play,        Qt::Key_A };
}

/*! A small guide of a few days whose channels and programmes change at random. */
class ChangingGuide
{
public:
    explicit ChangingGuide(quint32 seed)
        : m_random(seed)
    {
        for (int i = 0; i < 4; ++i)
            insertChannel();
    }

    gallery::Guide guide() const
    {
        gallery::GuideBuilder builder;
        for (const auto &[id, shows] : m_channels)
            addChannel(builder, id, shows);
        return builder.take();
    }

    /*! Changes one thing and says what. */
    QString change()
    {
        switch (m_channels.isEmpty() ? 0 : m_random.bounded(12)) {
        case 0:
            insertChannel();
            return QStringLiteral("channel inserted");
        case 1:
            m_channels.removeAt(anyChannel());
            return QStringLiteral("channel removed");
        case 2:
            m_channels[anyChannel()] = newChannel();
            return QStringLiteral("channel replaced");
        case 3:
            m_channels.swapItemsAt(anyChannel(), anyChannel());
            return QStringLiteral("channels swapped");
        case 4:
            m_channels[anyChannel()].second.clear();
            return QStringLiteral("programmes removed");
        case 5:
            if (m_random.bounded(4) == 0)
                m_channels.clear();
            return QStringLiteral("guide emptied");
        case 6:
        case 7:
            m_channels[anyChannel()].second.append(newShow());
            return QStringLiteral("programme inserted");
        case 8:
        case 9:
            return changeShow();
        default:
            m_channels[anyChannel()].second += shows();
            return QStringLiteral("programmes inserted");
        }
    }

private:
    using NamedShows = QPair<QString, QList<Show>>;

    qsizetype anyChannel() { return m_random.bounded(int(m_channels.size())); }

    Show newShow()
    {
        const QDateTime start = at(20, 0).addSecs(60 * qint64(m_random.bounded(-1440, 1440)));
        // Some have no length, some overlap, some run over midnight.
        return { QStringLiteral("Show %1").arg(m_random.bounded(30)), start,
                 start.addSecs(60 * qint64(m_random.bounded(240))) };
    }
    QList<Show> shows()
    {
        QList<Show> result;
        for (int i = m_random.bounded(10, 40); i > 0; --i)
            result.append(newShow());
        return result;
    }
    NamedShows newChannel() { return { QString::number(++m_lastId), shows() }; }
    void insertChannel()
    {
        if (m_channels.size() < 8)
            m_channels.insert(m_random.bounded(int(m_channels.size()) + 1), newChannel());
    }
    QString changeShow()
    {
        QList<Show> &all = m_channels[anyChannel()].second;
        if (all.isEmpty())
            return QStringLiteral("nothing changed");
        const qsizetype row = m_random.bounded(int(all.size()));
        if (m_random.bounded(2) == 0)
            all.removeAt(row);
        else
            all[row] = newShow();
        return QStringLiteral("programme changed");
    }

    QRandomGenerator m_random;
    QList<NamedShows> m_channels;
    int m_lastId = 0;
};

} // namespace guides

#endif // STBUI_TEST_CHANGINGGUIDE_H
