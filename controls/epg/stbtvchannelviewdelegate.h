// SPDX-License-Identifier: MIT
#ifndef STBUI_STBTVCHANNELVIEWDELEGATE_H
#define STBUI_STBTVCHANNELVIEWDELEGATE_H

#include <design_system/playertvchannelitemstyle.h>

#include <QtCore/qurl.h>
#include <QtGui/qpixmap.h>
#include <QtQuick/qquickitem.h>

class StbTvChannelViewDelegatePrivate;

/*!
    A row of the list of TV channels, the QML element \c TvChannelViewDelegate: the channel's logo with the number
    in a box in its corner and a lock, quality badge and name beside it, the programme on air below, a
    "playing" mark at the right for the channel that is on the screen now, and a progress bar along the bottom.
    It paints itself; it has no child items.

    Width and height are set from outside. The texts share what the logo's column and the margins leave of the
    width; badge, spacing and "playing" mark come off the name's share. The name stands beside the badge, in its
    middle. Without quality there is no badge and the name begins at the texts' column: at the badge's inclusive
    right corner, which is one pixel left of the programme's name. Without a style, or with a width or height of
    0 or less, the row paints nothing.

    Until the logo is there, the row shows its cell of a sheet of placeholders; see canvas and
    cachedChannelRect. Another source takes the old logo away at once: the cell comes back until the new logo is
    there. A row with neither logo nor cell shows nothing in the logo's place.

    Icons are resources of the application: ":/resources/icons/lock_icon_white.png" and
    ":/resources/icons/player/playing_content.png", each read when it is first needed; a missing one leaves its
    place empty. The mark's label is the application's translation of "PLAYING" in the context "QObject", taken
    when the channel goes live.

    Quality texts share layouts and pixmaps with all rows of the same text, font and colour, whatever the widths
    are: a row so narrow that it cuts its badge cuts it for all that come while it is remembered. A row without any
    room for texts shares nothing.
*/
class StbTvChannelViewDelegate : public QQuickItem
{
    Q_OBJECT
    /*!
        The design. Not owned; one that is destroyed counts as null. The frame after the row is given another
        object takes over everything: fonts, line limits, alignments, colours and places. The row does not listen
        to changes inside the object. Null by default; resettable.
    */
    Q_PROPERTY(design_system::PlayerTvChannelItemQmlStyle *style READ style WRITE setStyle RESET resetStyle
                       NOTIFY styleChanged)
    /*! Where the logo comes from; loaded in the background, in its own size. Empty by default. */
    Q_PROPERTY(QUrl imageSource READ imageSource WRITE setImageSource NOTIFY imageSourceChanged)
    /*! The channel's name. Empty by default. */
    Q_PROPERTY(QString channelListChannelName READ channelName WRITE setChannelName NOTIFY channelNameChanged)
    /*! The name's colour; the style's when it is invalid, which it is by default. */
    Q_PROPERTY(QColor channelNameColor READ channelNameColor WRITE setChannelNameColor NOTIFY
                       channelNameColorChanged)
    /*! The number as it is to be shown. Without it there is no box. Empty by default. */
    Q_PROPERTY(QString channelListChannelNumber READ channelNumber WRITE setChannelNumber NOTIFY
                       channelNumberChanged)
    /*! The badge's text, for example "HD". Without it there is no badge. Empty by default. */
    Q_PROPERTY(QString channelListChannelQuality READ channelQuality WRITE setChannelQuality NOTIFY
                       channelQualityChanged)
    /*! What is on air. Empty by default. */
    Q_PROPERTY(QString channelListProgramName READ programName WRITE setProgramName NOTIFY programNameChanged)
    /*!
        How much of the programme is over, 0 to 1. What lies outside counts as 0 or 1, what is no number as 0.
        Default 0.
    */
    Q_PROPERTY(double channelListProgramProgress READ progress WRITE setProgress NOTIFY progressChanged)
    /*! Whether this channel is on the screen now: shows the "playing" mark. Default false. */
    Q_PROPERTY(bool channelListChannelLive READ isLive WRITE setLive NOTIFY liveChanged)
    /*! Whether the lock is shown. Default false. */
    Q_PROPERTY(bool channelListLockIconVisible READ isLockIconVisible WRITE setLockIconVisible NOTIFY
                       lockIconVisibleChanged)
    /*!
        The row's cell of the canvas, in the canvas's pixels. A cell that is invalid or does not lie within the
        canvas shows nothing. The null rectangle by default.
    */
    Q_PROPERTY(QRect cachedChannelRect READ cachedChannelRect WRITE setCachedChannelRect NOTIFY
                       cachedChannelRectChanged)
    /*!
        A sheet of placeholders that all rows share: each shows its cell until its logo is there. Accepted only
        once: a row that has a canvas ignores every other one, null included, without a signal. Null by default.
    */
    Q_PROPERTY(QPixmap canvas READ canvas WRITE setCanvas NOTIFY canvasChanged)
    QML_NAMED_ELEMENT(TvChannelViewDelegate)
public:
    explicit StbTvChannelViewDelegate(QQuickItem *parent = nullptr);
    ~StbTvChannelViewDelegate() override;

    design_system::PlayerTvChannelItemQmlStyle *style() const;
    void setStyle(design_system::PlayerTvChannelItemQmlStyle *style);
    void resetStyle();

    QUrl imageSource() const;
    void setImageSource(const QUrl &source);

    QString channelName() const;
    void setChannelName(const QString &name);

    QColor channelNameColor() const;
    void setChannelNameColor(const QColor &color);

    QString channelNumber() const;
    void setChannelNumber(const QString &number);

    QString channelQuality() const;
    void setChannelQuality(const QString &quality);

    QString programName() const;
    void setProgramName(const QString &name);

    double progress() const;
    void setProgress(double progress);

    bool isLive() const;
    void setLive(bool live);

    bool isLockIconVisible() const;
    void setLockIconVisible(bool visible);

    QRect cachedChannelRect() const;
    void setCachedChannelRect(const QRect &rect);

    QPixmap canvas() const;
    void setCanvas(const QPixmap &canvas);

Q_SIGNALS:
    void styleChanged();
    void imageSourceChanged();
    void channelNameChanged();
    void channelNameColorChanged();
    void channelNumberChanged();
    void channelQualityChanged();
    void programNameChanged();
    void progressChanged();
    void liveChanged();
    void lockIconVisibleChanged();
    void cachedChannelRectChanged();
    void canvasChanged();

protected:
    void componentComplete() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    Q_DISABLE_COPY_MOVE(StbTvChannelViewDelegate)
    Q_DECLARE_PRIVATE(StbTvChannelViewDelegate)
};

#endif // STBUI_STBTVCHANNELVIEWDELEGATE_H
