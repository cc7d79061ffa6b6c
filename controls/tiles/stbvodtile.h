// SPDX-License-Identifier: MIT
#ifndef STBUI_STBVODTILE_H
#define STBUI_STBVODTILE_H

#include "controls/tiles/stbcontenttile.h"

class StbVodTilePrivate;

/*!
    A content tile for video on demand, the QML element \c VodTile. On its picture it shows a rating badge in the
    upper part, the right holder's logo in the lower right corner and, along the lower edge, how far the film was
    watched. All of them move with the picture while the tile expands.
*/
class StbVodTile : public StbContentTile
{
    Q_OBJECT
    /*!
        The text of the badge, for example "12+". Empty by default: no badge. A badge that was shown stays, as its
        padding alone, when the text becomes empty.
    */
    Q_PROPERTY(QString ratingText READ rating WRITE setRating NOTIFY ratingChanged)
    /*!
        The logo, loaded asynchronously from the component's completion on and shown in its own size as soon as it
        is there. Empty by default. Nothing is shown for a URL that cannot be loaded.
    */
    Q_PROPERTY(QUrl rightholderImageSource READ rightholderImageSource WRITE setRightholderImageSource NOTIFY
                       rightholderImageSourceChanged)
    /*! The watched position, in the unit of the duration. 0 by default; 0, less, or not a number: no bar. */
    Q_PROPERTY(double mediaPositionsTimepoint READ timepoint WRITE setTimepoint NOTIFY timepointChanged)
    /*!
        The whole length, in any unit. 0 by default; 0, less, or not a number: no bar. A position at or beyond it
        fills the bar.
    */
    Q_PROPERTY(double moviePosterDuration READ duration WRITE setDuration NOTIFY durationChanged)
    QML_NAMED_ELEMENT(VodTile)
public:
    explicit StbVodTile(QQuickItem *parent = nullptr);
    ~StbVodTile() override;

    QString rating() const;
    void setRating(const QString &rating);

    QUrl rightholderImageSource() const;
    void setRightholderImageSource(const QUrl &source);

    double timepoint() const;
    void setTimepoint(double timepoint);

    double duration() const;
    void setDuration(double duration);

Q_SIGNALS:
    void ratingChanged();
    void rightholderImageSourceChanged();
    void timepointChanged();
    void durationChanged();

protected:
    StbVodTile(StbVodTilePrivate &dd, QQuickItem *parent);

    void componentComplete() override;

private:
    Q_DISABLE_COPY_MOVE(StbVodTile)
    Q_DECLARE_PRIVATE(StbVodTile)
};

#endif // STBUI_STBVODTILE_H
