// SPDX-License-Identifier: MIT
#ifndef STBUI_STBHORIZONTALEPGVIEWDELEGATE_H
#define STBUI_STBHORIZONTALEPGVIEWDELEGATE_H

#include <design_system/playerhorizontalepgviewstyle.h>

#include <QtCore/qurl.h>
#include <QtQuick/qquickitem.h>

class StbHorizontalEpgViewDelegatePrivate;

/*!
    A programme in the player's horizontal list, the QML element \c HorizontalEpgViewDelegate: a filled rectangle, a
    picture at the left and vertically centred, and right of it the date, the title and the description below each
    other, beginning at the height of the picture's upper edge. It paints itself; it has no child items.

    Width and height are set from outside; neither is taken from the style. Without a style, or with a width or
    height of 0 or less, nothing is painted. The texts keep their column when there is no picture, and an empty
    text keeps the gap below it. The picture is painted above the texts. Its vertical place is not rounded: a style
    whose heights differ by an odd number puts it, and the texts, on half pixels.

    Most of the design is taken over when the cell begins to paint, that is in the first frame with a style and a
    size, in this window: fonts, line limits, alignments, and the texts' width, which is the style's delegateRect
    less paddings, spacing and picture, whatever the item's width is. Another style object changes none of these
    while there is something painted, and neither it nor another height moves the texts, until a text gets another
    size. A cell that was without style or size begins anew. A picture keeps the place that it had when it came.
*/
class StbHorizontalEpgViewDelegate : public QQuickItem
{
    Q_OBJECT
    /*!
        The design. Not owned; one that is destroyed counts as null. The colours of another object show at once,
        everything else as told above; the cell does not listen to changes inside the object. Null by default;
        resettable.
    */
    Q_PROPERTY(design_system::PlayerHorizontalEpgViewQmlStyle *style READ style WRITE setStyle RESET
                       resetStyle NOTIFY styleChanged)
    /*!
        The picture, loaded asynchronously in its own size and scaled into the style's imageRect, whatever its
        proportions are; the loading begins when the component is complete. While it is loading, and when it
        cannot be loaded, there is none, and nothing in its place. Empty by default.
    */
    Q_PROPERTY(QUrl imageSource READ imageSource WRITE setImageSource NOTIFY imageSourceChanged)
    /*! The programme's title. Empty by default. */
    Q_PROPERTY(QString itemTitle READ title WRITE setTitle NOTIFY titleChanged)
    /*! Day and time as they are to be shown, for example "Today, 20:05 - 20:45". Empty by default. */
    Q_PROPERTY(QString tvProgramExactDate READ exactDate WRITE setExactDate NOTIFY exactDateChanged)
    /*! What the programme is about. Empty by default. */
    Q_PROPERTY(QString tvProgramDescription READ description WRITE setDescription NOTIFY descriptionChanged)
    QML_NAMED_ELEMENT(HorizontalEpgViewDelegate)
public:
    explicit StbHorizontalEpgViewDelegate(QQuickItem *parent = nullptr);
    ~StbHorizontalEpgViewDelegate() override;

    design_system::PlayerHorizontalEpgViewQmlStyle *style() const;
    void setStyle(design_system::PlayerHorizontalEpgViewQmlStyle *style);
    void resetStyle();

    QUrl imageSource() const;
    void setImageSource(const QUrl &source);

    QString title() const;
    void setTitle(const QString &title);

    QString exactDate() const;
    void setExactDate(const QString &date);

    QString description() const;
    void setDescription(const QString &description);

Q_SIGNALS:
    void styleChanged();
    void imageSourceChanged();
    void titleChanged();
    void exactDateChanged();
    void descriptionChanged();

protected:
    void componentComplete() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    Q_DISABLE_COPY_MOVE(StbHorizontalEpgViewDelegate)
    Q_DECLARE_PRIVATE(StbHorizontalEpgViewDelegate)
};

#endif // STBUI_STBHORIZONTALEPGVIEWDELEGATE_H
