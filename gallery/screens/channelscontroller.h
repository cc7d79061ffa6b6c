// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_CHANNELSCONTROLLER_H
#define GALLERY_SCREENS_CHANNELSCONTROLLER_H

#include "screens/channelrows.h"
#include "screens/content.h"
#include "screens/mediaitem.h"

#include <QtCore/qstringlist.h>
#include <QtCore/qtimer.h>
#include <QtQml/qqmlregistration.h>

namespace gallery {

class Clock;

/*!
    What the screen of channels shows and how remote keys change it: the channels of a guide, all or those of one group,
    of which one is chosen. QML shows the properties and hands every key to press().
*/
class ChannelsController : public QObject
{
    Q_OBJECT
    /*! The rows: ChannelRows. */
    Q_PROPERTY(QAbstractItemModel *channels READ channels CONSTANT)
    /*! Row of the chosen channel in \c channels; -1 only without channels. */
    Q_PROPERTY(int channelRow READ channelRow NOTIFY selectionChanged)
    /*!
        The groups as keys reach them: first an empty text for all channels, then each group's name in the order of its
        first channel. Empty when the channels have no groups, or all the same one.
    */
    Q_PROPERTY(QStringList groups READ groups NOTIFY groupsChanged)
    /*! The group that is shown; 0 for all channels. */
    Q_PROPERTY(int groupIndex READ groupIndex NOTIFY selectionChanged)

    /*! What is on the chosen channel; empty when nothing is. */
    Q_PROPERTY(QString title READ title NOTIFY programmeChanged)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY programmeChanged)
    Q_PROPERTY(QString description READ description NOTIFY programmeChanged)
    /*! "20:00 – 21:30". */
    Q_PROPERTY(QString timeRange READ timeRange NOTIFY programmeChanged)
    Q_PROPERTY(QUrl still READ still NOTIFY programmeChanged)
    /*! What comes after it, and when: "21:30"; empty when nothing does. */
    Q_PROPERTY(QString nextTitle READ nextTitle NOTIFY programmeChanged)
    Q_PROPERTY(QString nextTime READ nextTime NOTIFY programmeChanged)

    /*! The digits of a channel's number that were pressed so far; empty two seconds after the last one. */
    Q_PROPERTY(QString typedNumber READ typedNumber NOTIFY typedNumberChanged)
    /*! Whether any channel has a number to type. */
    Q_PROPERTY(bool hasNumbers READ hasNumbers NOTIFY hasNumbersChanged)
    /*!
        What is told until the next key: that the channel cannot be played because it is locked, or that none has the
        number that was typed; else empty.
    */
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)

    /*! How many rows a page key moves by, at least 1; the view knows how many it shows. */
    Q_PROPERTY(int rowsPerPage READ rowsPerPage WRITE setRowsPerPage NOTIFY rowsPerPageChanged)
    /*! Whether the screen is laid out from right to left: the next group is on the left then. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The shell has it.")
public:
    /*! \a clock tells the present and must outlive this object. */
    explicit ChannelsController(Clock *clock, QObject *parent = nullptr);

    /*!
        Shows the channels of \a guide. The chosen channel and the one that plays stay when the guide still has them; else
        the channel in the same row is chosen. So does the group, unless the chosen channel is in another one now. At
        first, and when the one that plays has gone or is locked, the first channel that has something on and is not
        locked plays. The groups of a translated guide have other names, and the same order.
    */
    void setGuide(const Guide &guide, Content content = Content::Other);
    Guide guide() const { return m_channels.guide(); }
    /*! As at the start: all channels, and the one that plays is chosen. */
    void start();
    /*! The channel with this index in the guide plays; one that does not exist or is locked changes nothing. */
    void setPlaying(int channel);

    QAbstractItemModel *channels() { return &m_channels; }
    int channelRow() const { return m_row; }
    /*! Index of the chosen channel in the guide; -1 without channels. */
    int channel() const { return m_channels.channelAt(m_row); }
    /*! Index in the guide of the channel that plays, which is not locked; -1 without one. */
    int playing() const { return guide().channelIndex(m_playingId); }
    QStringList groups() const { return m_groups; }
    int groupIndex() const { return std::max(0, int(m_groups.indexOf(m_group))); }

    /*! What is on the chosen channel; without a title when nothing is. */
    const MediaItem &programme() const { return m_programme; }
    QString title() const { return m_programme.title; }
    QString subtitle() const { return m_programme.subtitle; }
    QString description() const { return m_programme.description; }
    QString timeRange() const;
    QUrl still() const { return m_programme.still; }
    QString nextTitle() const { return m_next.title; }
    QString nextTime() const { return m_next.start.toString(QStringLiteral("HH:mm")); }

    QString typedNumber() const { return m_typedNumber; }
    bool hasNumbers() const { return m_hasNumbers; }
    QString message() const { return m_message; }
    int rowsPerPage() const { return m_rowsPerPage; }
    void setRowsPerPage(int rows);
    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    /*!
        Handles a remote key; false when it means nothing here.

        Up, Down, Channel Up (the next one), Channel Down, Page Up, Page Down, Home and End choose another channel,
        Left and Right another group: the chosen channel stays when the group has it, else its first one is chosen.
        Digits make a number, and the channel that has it is chosen, of the group or else of all: exactly, or else
        without the dot or hyphen in its number ("71" for "7-1"). Without one nothing changes but the message, which
        comes when no longer number begins like this, or when no further digit is typed. Return plays the chosen
        channel, unless it is locked. Info asks for the details of what is on. Back forgets a number that was begun,
        else asks to leave.
    */
    Q_INVOKABLE bool press(int key);

    /*! The next digit begins another number; what was typed is found, or told not to be. */
    void forgetTypedNumber();

Q_SIGNALS:
    void selectionChanged();
    void groupsChanged();
    void programmeChanged();
    void typedNumberChanged();
    void hasNumbersChanged();
    void messageChanged();
    void rowsPerPageChanged();
    void mirroredChanged();
    /*! The channel with this index in the guide is to be played; it is marked as playing. */
    void playRequested(int channel);
    /*! What is on the chosen channel is to be shown on its own: programme(). */
    void detailsRequested();
    /*! Back was pressed where there is nothing to go back to. */
    void leaveRequested();

private:
    bool pressInRows(int key);
    void show(const Guide &guide, const QString &group);
    void chooseRow(int row);
    void chooseGroup(int index);
    void chooseNumber();
    int channelOfNumber(const QString &number, bool exactly) const;
    bool isNumberToType(const QString &beginning) const;
    void play();
    void typeDigit(int digit);
    void setTypedNumber(const QString &number);
    void setMessage(const QString &message);
    void updateProgramme();
    void tick();

    Clock *m_clock;
    ChannelRows m_channels;
    QStringList m_groups;
    QString m_group; // empty: all
    QString m_chosenId;
    QString m_playingId;
    MediaItem m_programme;
    MediaItem m_next;
    QString m_typedNumber;
    QString m_message;
    QTimer m_typing;
    int m_row = -1;
    int m_rowsPerPage = 1;
    bool m_hasNumbers = false;
    bool m_numberFound = false;
    bool m_mirrored = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_CHANNELSCONTROLLER_H
