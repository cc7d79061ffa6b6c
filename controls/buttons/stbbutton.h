// SPDX-License-Identifier: MIT
#ifndef STBUI_STBBUTTON_H
#define STBUI_STBBUTTON_H

#include <design_system/buttonstyle.h>

#include <QtQuick/qquickitem.h>

class StbButtonPrivate;

/*!
    A push button, the QML element \c Button: a background with an icon on either side of a title and a
    subtitle, or a throbber instead of all that while the button is busy. It paints itself; it has no child
    items. It handles no keys: who has the focus and what is checked is told from outside.

    Every colour is one of four of the style: disabled, while the item or one that it lies in is not enabled,
    else checked, else focused, else normal. An icon takes the colour with all its pixels but the black ones. A
    background whose colour is not set is not painted.

    A button of fixed width, which every one is until isFixedWidth is assigned, has the style's size unless it
    is given another. Its lines stand in the middle of the height and share the width between the icons: the
    left icon lies at the left edge, the right one at the style's iconTopOffset, and a left icon without any
    text in the middle. Any other button is as wide as its content and paddings, and meant for one line.
    Without content a button takes no implicit height. The implicit height is taken from the style once: a
    later style leaves a button that has a height as high as it is.

    A line that becomes empty keeps taking the room that it took last; the other line does not jump.
*/
class StbButton : public QQuickItem
{
    Q_OBJECT
    /*!
        The design. Not owned; one that is destroyed counts as null. Fonts, line limits, alignments and the
        implicit width are taken over when the button is given the style object, everything else whenever it
        lays out or paints; it does not listen to changes inside the object. Null by default, and the button
        paints nothing then; resettable.
    */
    Q_PROPERTY(design_system::ButtonQmlStyle *style READ style WRITE setStyle RESET resetStyle NOTIFY
                       styleChanged)
    /*!
        The picture left of the texts: a file, or a resource as ":/..." or "qrc:/...". A leading "qrc" is taken
        off and reads back without, so that assigning it again counts as a change. One that cannot be read is no
        icon. Empty by default.
    */
    Q_PROPERTY(QString leftIconSource READ leftIconSource WRITE setLeftIconSource NOTIFY leftIconSourceChanged)
    /*! The picture right of the texts; otherwise as leftIconSource. */
    Q_PROPERTY(QString rightIconSource READ rightIconSource WRITE setRightIconSource NOTIFY
                       rightIconSourceChanged)
    /*! The main line. Empty by default. */
    Q_PROPERTY(QString titleText READ titleText WRITE setTitleText NOTIFY titleChanged)
    /*! The line below the title. Empty by default. */
    Q_PROPERTY(QString subtitleText READ subtitleText WRITE setSubtitleText NOTIFY subtitleChanged)
    /*! Whether the button is painted as the one that the user is at. Default false. */
    Q_PROPERTY(bool focused READ isFocused WRITE setFocused NOTIFY focusedChanged)
    /*! Whether the button is painted as chosen. Default false. */
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked NOTIFY checkedChanged)
    /*! Kept for QML that sets it; it has no effect, and reads back the value of checked. */
    Q_PROPERTY(bool checkable READ isCheckable WRITE setCheckable NOTIFY checkableChanged)
    /*!
        Whether the width is set from outside, and the texts are wrapped and elided to fit in, or the implicit
        width follows the content. Reads true until it is assigned; the first assignment always counts as a
        change. A button that becomes fixed keeps the width that it has.
    */
    Q_PROPERTY(bool isFixedWidth READ isFixedWidth WRITE setIsFixedWidth NOTIFY fixedWidthChanged)
    /*!
        Whether an animated throbber is shown in place of icons and texts; 2/5 of the button's height large.
        The animation runs only while it can be seen. Default false.
    */
    Q_PROPERTY(bool throbberVisible READ isThrobberVisible WRITE setThrobberVisible NOTIFY
                       throbberVisibleChanged)
    /*! Whether the title has the colour titleForcedColor in every state. Default false. */
    Q_PROPERTY(bool forceTitleColor READ forceTitleColor WRITE setForceTitleColor NOTIFY forceTitleColorChanged)
    /*! The title's colour while forceTitleColor is set; an invalid one, the default, has no effect. */
    Q_PROPERTY(QColor titleForcedColor READ titleForcedColor WRITE setTitleForcedColor NOTIFY
                       titleForcedColorChanged)
    /*! Pixels left of the content of a button that is not fixed; 0, the default, or less: the style's. */
    Q_PROPERTY(qreal leftPadding READ leftPadding WRITE setLeftPadding NOTIFY leftPaddingChanged)
    /*! Pixels right of the content of a button that is not fixed; 0, the default, or less: the style's. */
    Q_PROPERTY(qreal rightPadding READ rightPadding WRITE setRightPadding NOTIFY rightPaddingChanged)
    /*! Kept for QML that sets it: always 0, whatever is assigned. */
    Q_PROPERTY(qreal roundingRadius READ roundingRadius WRITE setRoundingRadius NOTIFY roundingRadiusChanged)
    QML_NAMED_ELEMENT(Button)
public:
    explicit StbButton(QQuickItem *parent = nullptr);
    ~StbButton() override;

    design_system::ButtonQmlStyle *style() const;
    void setStyle(design_system::ButtonQmlStyle *style);
    void resetStyle();

    QString leftIconSource() const;
    void setLeftIconSource(const QString &source);

    QString rightIconSource() const;
    void setRightIconSource(const QString &source);

    QString titleText() const;
    void setTitleText(const QString &text);

    QString subtitleText() const;
    void setSubtitleText(const QString &text);

    bool isFocused() const;
    void setFocused(bool focused);

    bool isChecked() const;
    void setChecked(bool checked);

    bool isCheckable() const;
    void setCheckable(bool checkable);

    bool isFixedWidth() const;
    void setIsFixedWidth(bool fixed);

    bool isThrobberVisible() const;
    void setThrobberVisible(bool visible);

    bool forceTitleColor() const;
    void setForceTitleColor(bool force);

    QColor titleForcedColor() const;
    void setTitleForcedColor(const QColor &color);

    qreal leftPadding() const;
    void setLeftPadding(qreal padding);

    qreal rightPadding() const;
    void setRightPadding(qreal padding);

    qreal roundingRadius() const;
    void setRoundingRadius(qreal radius);

Q_SIGNALS:
    void styleChanged();
    void leftIconSourceChanged();
    void rightIconSourceChanged();
    void titleChanged();
    void subtitleChanged();
    void focusedChanged();
    void checkedChanged();
    void checkableChanged();
    void fixedWidthChanged();
    void throbberVisibleChanged();
    void forceTitleColorChanged();
    void titleForcedColorChanged();
    void leftPaddingChanged();
    void rightPaddingChanged();
    void roundingRadiusChanged();

protected:
    StbButton(StbButtonPrivate &dd, QQuickItem *parent);

    void componentComplete() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private Q_SLOTS:
    void processThrobberUpdated();

private:
    Q_DISABLE_COPY_MOVE(StbButton)
    Q_DECLARE_PRIVATE(StbButton)
};

#endif // STBUI_STBBUTTON_H
