// SPDX-License-Identifier: MIT
#ifndef STBUI_STBCONTENTTILE_H
#define STBUI_STBCONTENTTILE_H

#include "controls/tiles/stbexpandabletile.h"

class StbContentTilePrivate;

/*!
    An expandable tile with a caption below its picture, the QML element \c ContentTile: a favourite icon and the
    title in the first line, then a subtitle and a status.

    The caption hangs below the picture's present rectangle and so below the item, whose height is that of the
    resting picture: whoever places tiles below each other leaves room for it. It moves down while the tile
    expands. Every line has the width of the style's tile rectangle; the title makes room for the icon.

    The icon is ":/resources/icons/favorite_small.png" of the application, read when a tile with a style becomes a
    favourite for the first time, and tinted then: it keeps the tint of that style. Without the file there is no
    icon.

    A line that was shown once keeps its spacing when its text becomes empty, so that the lines below it stay
    apart; a line that never had a text takes no room.
*/
class StbContentTile : public StbExpandableTile
{
    Q_OBJECT
    /*! The first line, in the style's title colour. Empty by default. */
    Q_PROPERTY(QString itemTitle READ title WRITE setTitle NOTIFY titleChanged)
    /*! The second line, in the style's subtitle colour. Empty by default. */
    Q_PROPERTY(QString itemSubtitle READ subtitle WRITE setSubtitle NOTIFY subtitleChanged)
    /*! The third line, in the style's status colour. Empty by default. */
    Q_PROPERTY(QString itemStatus READ status WRITE setStatus NOTIFY statusChanged)
    /*! Whether the favourite icon is shown before the title. Default false. */
    Q_PROPERTY(bool itemIsFavourite READ isFavorite WRITE setFavorite NOTIFY favoriteChanged)
    QML_NAMED_ELEMENT(ContentTile)
public:
    explicit StbContentTile(QQuickItem *parent = nullptr);
    ~StbContentTile() override;

    QString title() const;
    void setTitle(const QString &title);

    QString subtitle() const;
    void setSubtitle(const QString &subtitle);

    QString status() const;
    void setStatus(const QString &status);

    bool isFavorite() const;
    void setFavorite(bool favorite);

Q_SIGNALS:
    void titleChanged();
    void subtitleChanged();
    void statusChanged();
    void favoriteChanged();

protected:
    StbContentTile(StbContentTilePrivate &dd, QQuickItem *parent);

private:
    Q_DISABLE_COPY_MOVE(StbContentTile)
    Q_DECLARE_PRIVATE(StbContentTile)
};

#endif // STBUI_STBCONTENTTILE_H
