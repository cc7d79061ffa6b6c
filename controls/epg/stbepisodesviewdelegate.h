// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPISODESVIEWDELEGATE_H
#define STBUI_STBEPISODESVIEWDELEGATE_H

#include <design_system/playerepisodesitemstyle.h>

#include <QtCore/qurl.h>
#include <QtQuick/qquickitem.h>

class StbEpisodesViewDelegatePrivate;

/*!
    An episode in the list of a series' episodes, the QML element \c EpisodesViewDelegate: a picture under a
    tinting overlay, title and subtitle right of it, and on the picture what the kind of episode asks for: a play
    icon, a badge, the viewed part, or the day of an episode to come. It paints itself; it has no child items.

    A list fills a cell once. Style, kind, picture, status and the two positions are accepted only while they are
    unset, and what is painted is made once, in the first frame with a style, a known kind and a size: from then on
    only the picture still arrives, and nothing else that changes is shown. A cell that was without size, without
    style or in another window is made anew, of what its properties hold then. The order in which the properties
    are set does not matter.

    Width and height are set from outside; neither is taken from the style. Without a style or a known kind, or with
    a width or height of 0 or less, nothing is painted. The picture fills the style's tileRect; the texts stand right
    of its width, and the play icon and the day's height refer to a tile at 0, 0, wherever the tile lies.

    The application's resources hold the play icon, ":/resources/icons/player/status/play.png"; without it there is
    none.
*/
class StbEpisodesViewDelegate : public QQuickItem
{
    Q_OBJECT
    /*!
        The design. Not owned. The first object is kept, a reset does nothing; one that is destroyed counts as
        null, the cell is empty until it gets another. Null by default.
    */
    Q_PROPERTY(design_system::PlayerEpisodesItemQmlStyle *style READ style WRITE setStyle RESET resetStyle
                       NOTIFY styleChanged FINAL)
    /*!
        The kind of episode; the first text that is not empty is kept.
        - "defaultTile": begun; play icon, progress, and the status above it.
        - "unViewedTile": play icon, and the status as a badge.
        - "viewedTile": the status as a badge.
        - "comingSoonTile": title and subtitle in a colour of their own, and the status as a day in two lines.

        Any other text is no kind: such a cell is never painted. Empty by default.
    */
    Q_PROPERTY(QString listItemType READ listItemType WRITE setListItemType NOTIFY listItemTypeChanged FINAL)
    /*!
        The picture, in its own size and scaled into the style's tileRect, whatever its proportions are; the
        loading begins when the component is complete. Cells with the same picture share it. The first URL that is
        not empty is kept. While it is loading, and when it cannot be loaded, there is none. Empty by default.
    */
    Q_PROPERTY(QUrl imageSource READ imageSource WRITE setImageSource NOTIFY imageSourceChanged FINAL)
    /*! The episode's title. It can change; what is painted already does not follow. Empty by default. */
    Q_PROPERTY(QString itemTitle READ title WRITE setTitle NOTIFY titleChanged FINAL)
    /*! What stands below the title; otherwise as the title. Empty by default. */
    Q_PROPERTY(QString itemSubtitle READ subtitle WRITE setSubtitle NOTIFY subtitleChanged FINAL)
    /*!
        For example "Viewed" or "12 min left"; without a text there is no badge. An episode to come gets two words
        with one space between, "12 March", for the upper and the lower line of the day; any other text is kept but
        not shown, and on purpose such an episode's status reads back as an empty text. The first text that is not
        empty is kept. Empty by default.
    */
    Q_PROPERTY(QString itemStatus READ status WRITE setStatus NOTIFY statusChanged FINAL)
    /*!
        How far the episode was viewed, in the unit of the duration. Fractions are cut off; NaN counts as 0, and
        values beyond 64-bit integers as the nearest one. The first value above 0 is kept. 0 by default.
    */
    Q_PROPERTY(double mediaPositionsProgressBarViewed READ viewedPosition WRITE setViewedPosition NOTIFY
                       timepointChanged FINAL)
    /*!
        How long the episode is; stored as the viewed position is. With 0 or less the bar shows no viewed part.
        A viewed position beyond it makes the viewed part longer than the bar, one below 0 moves the bar's
        beginning to the left. 0 by default.
    */
    Q_PROPERTY(double mediaPositionsProgressBarValue READ duration WRITE setDuration NOTIFY durationChanged
                       FINAL)
    QML_NAMED_ELEMENT(EpisodesViewDelegate)
public:
    explicit StbEpisodesViewDelegate(QQuickItem *parent = nullptr);
    ~StbEpisodesViewDelegate() override;

    design_system::PlayerEpisodesItemQmlStyle *style() const;
    void setStyle(design_system::PlayerEpisodesItemQmlStyle *style);
    void resetStyle();

    QString listItemType() const;
    void setListItemType(const QString &type);

    QUrl imageSource() const;
    void setImageSource(const QUrl &source);

    QString title() const;
    void setTitle(const QString &title);

    QString subtitle() const;
    void setSubtitle(const QString &subtitle);

    QString status() const;
    void setStatus(const QString &status);

    double viewedPosition() const;
    void setViewedPosition(double position);

    double duration() const;
    void setDuration(double duration);

Q_SIGNALS:
    void styleChanged();
    void listItemTypeChanged();
    void imageSourceChanged();
    void titleChanged();
    void subtitleChanged();
    void statusChanged();
    void timepointChanged();
    void durationChanged();

protected:
    void componentComplete() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    Q_DISABLE_COPY_MOVE(StbEpisodesViewDelegate)
    Q_DECLARE_PRIVATE(StbEpisodesViewDelegate)
};

#endif // STBUI_STBEPISODESVIEWDELEGATE_H
