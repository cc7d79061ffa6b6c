// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPGVIEWDELEGATEFOCUSED_H
#define STBUI_STBEPGVIEWDELEGATEFOCUSED_H

#include "controls/epg/stbepgviewdelegate.h"

#include <QtCore/qrect.h>
#include <QtCore/qurl.h>

class StbEpgViewDelegateFocusedPrivate;

/*!
    A row of a programme guide in its focused form, the QML element \c EpgViewDelegateFocused: above the badge and
    the texts of an EpgViewDelegate lies a card, the style's previewRect, with the programme's picture, a fill over
    it, and on top what can be done with the programme:

    - playable: the play icon in the card's middle, and while the programme is live a progress bar at the bottom;
    - past, not playable: a notice in the card's middle;
    - future, not playable: the reminder icon, the status and the start time as a stack in the middle of what the
      action bar at the bottom leaves free.

    What is both past and future has the block of the future with the notice of the past as its status. What is
    neither, and not playable, has a bare card.

    Heights inside the card are measured from the row's top, wherever the top of previewRect is. The played part
    and the rest of the progress bar overlap by one pixel: no seam shows between them.

    The words are the application's translations, looked up whenever the row paints: "WATCH_UNAVAILABLE",
    "LIVE_SOON", "ADD_REMINDER" and "DELETE_REMINDER" in the context "QObject", "REMINDER_WAS_SET" and "ON" in
    "stbui::EpgListModel". The icons are ":/resources/icons/single_epg/epg_preview_play.png", tinted with the
    style's playIconColor, and ":/resources/icons/reminder_small.png"; a missing one leaves its place empty.

    Status and action label share layouts and pixmaps with all rows of the same text, font and colour, whatever the
    widths are.

    Another style moves everything on the card at once, the picture too, whatever size the texts have in it.
*/
class StbEpgViewDelegateFocused : public StbEpgViewDelegate
{
    Q_OBJECT
    /*!
        Where the focus frame belongs: the style's previewRect, or a null rectangle without a style. The signal
        comes with every other style, after styleChanged.
    */
    Q_PROPERTY(QRect customFocusRect READ customFocusRect NOTIFY customFocusRectChanged)
    /*!
        The programme's picture, stretched over the card. A relative URL is taken from the QML document; nothing is
        loaded before the component is complete. The picture is shared with all who show the same URL in this way,
        and one from a file or a resource is read at once. While there is none, the card's fill stands alone; a new
        URL takes the picture of before away and shows the new one when it is there. Empty by default.
    */
    Q_PROPERTY(QUrl imageSource READ imageSource WRITE setImageSource NOTIFY imageSourceChanged)
    /*!
        How much of a live, playable programme is over, 0 to 1. What lies outside is stored as it is and painted as
        the nearer end, not-a-number as 0. Default 0.
    */
    Q_PROPERTY(double tvProgramProgress READ progress WRITE setProgress NOTIFY progressChanged)
    /*! Whether a reminder is set for a future programme: chooses status and action. Default false. */
    Q_PROPERTY(bool tvProgramHasReminder READ hasReminder WRITE setReminder NOTIFY reminderChanged)
    /*! Whether the programme is over: without being playable it shows the notice. Default false. */
    Q_PROPERTY(bool tvProgramIsPast READ isPast WRITE setPast NOTIFY pastChanged)
    QML_NAMED_ELEMENT(EpgViewDelegateFocused)
public:
    explicit StbEpgViewDelegateFocused(QQuickItem *parent = nullptr);
    ~StbEpgViewDelegateFocused() override;

    QRect customFocusRect() const;

    QUrl imageSource() const;
    void setImageSource(const QUrl &source);

    double progress() const;
    void setProgress(double progress);

    bool hasReminder() const;
    void setReminder(bool reminder);

    bool isPast() const;
    void setPast(bool past);

Q_SIGNALS:
    void customFocusRectChanged();
    void imageSourceChanged();
    void progressChanged();
    void reminderChanged();
    void pastChanged();

protected:
    void componentComplete() override;

private:
    Q_DISABLE_COPY_MOVE(StbEpgViewDelegateFocused)
    Q_DECLARE_PRIVATE(StbEpgViewDelegateFocused)
};

#endif // STBUI_STBEPGVIEWDELEGATEFOCUSED_H
