// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPGVIEWDELEGATE_H
#define STBUI_STBEPGVIEWDELEGATE_H

#include <design_system/playerepgdelegatestyle.h>

#include <QtQuick/qquickitem.h>

class StbEpgViewDelegatePrivate;

/*!
    A row of a programme guide, the QML element \c EpgViewDelegate: start time, title, subtitle and, while the
    programme is on air, a live badge above the title. It paints itself; it has no child items.

    The width is set from outside. The row computes its height from start time, title and subtitle and writes
    it back: one pixel less than the lowest line of these, and never below 0; a badge alone does not make it
    higher. The start time lies at the row's top left corner, everything else begins at the left edge of the
    style's previewRect. Without a style, or with a width or height of 0 or less, the row paints nothing; without
    a style or width it keeps its height.

    The badge's icon is ":/resources/icons/live_status_on.png" of the application; without it the badge holds
    the label alone. The label is the application's translation of "NOW_IN_LIVE" in the context "QObject". A badge
    whose colour is not set has no ground below them.

    Subtitle and badge label share layouts and pixmaps with all rows of the same text, font and colour, whatever
    the widths are.
*/
class StbEpgViewDelegate : public QQuickItem
{
    Q_OBJECT
    /*!
        The design. Not owned; one that is destroyed counts as null. Fonts, line limits, alignments and text
        widths are taken over when the row is given the style object, everything else whenever it lays out or
        paints; it does not listen to changes inside the object. Null by default; resettable.
    */
    Q_PROPERTY(design_system::PlayerEpgDelegateQmlStyle *style READ style WRITE setStyle RESET resetStyle
                       NOTIFY styleChanged)
    /*! The programme's title: the style's playable colour if live or playable, else the unavailable one. Empty by default. */
    Q_PROPERTY(QString itemTitle READ title WRITE setTitle NOTIFY titleChanged)
    /*! The line below the title; takes the title's place when that is empty. Empty by default. */
    Q_PROPERTY(QString itemSubtitle READ subtitle WRITE setSubtitle NOTIFY subtitleChanged)
    /*! The start time as it is to be shown, for example "20:05". Empty by default. */
    Q_PROPERTY(QString tvProgramStartTimeText READ startTimeText WRITE setStartTimeText NOTIFY
                       startTimeTextChanged)
    /*! Whether the programme is on air now: shows the live badge. Default false. */
    Q_PROPERTY(bool tvProgramIsLive READ isLive WRITE setLive NOTIFY liveChanged)
    /*! Whether the programme is yet to come. A plain row paints it like any other. Default false. */
    Q_PROPERTY(bool tvProgramIsFuture READ isFuture WRITE setFuture NOTIFY futureChanged)
    /*! Whether the programme can be watched: chooses the colour of start time and title. Default false. */
    Q_PROPERTY(bool tvProgramPlayable READ isPlayable WRITE setPlayable NOTIFY playableChanged)
    QML_NAMED_ELEMENT(EpgViewDelegate)
public:
    explicit StbEpgViewDelegate(QQuickItem *parent = nullptr);
    ~StbEpgViewDelegate() override;

    design_system::PlayerEpgDelegateQmlStyle *style() const;
    void setStyle(design_system::PlayerEpgDelegateQmlStyle *style);
    void resetStyle();

    QString title() const;
    void setTitle(const QString &title);

    QString subtitle() const;
    void setSubtitle(const QString &subtitle);

    QString startTimeText() const;
    void setStartTimeText(const QString &text);

    bool isLive() const;
    void setLive(bool live);

    bool isFuture() const;
    void setFuture(bool future);

    bool isPlayable() const;
    void setPlayable(bool playable);

Q_SIGNALS:
    void styleChanged();
    void titleChanged();
    void subtitleChanged();
    void startTimeTextChanged();
    void liveChanged();
    void futureChanged();
    void playableChanged();

protected:
    StbEpgViewDelegate(StbEpgViewDelegatePrivate &dd, QQuickItem *parent);

    void componentComplete() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    Q_DISABLE_COPY_MOVE(StbEpgViewDelegate)
    Q_DECLARE_PRIVATE(StbEpgViewDelegate)
};

#endif // STBUI_STBEPGVIEWDELEGATE_H
