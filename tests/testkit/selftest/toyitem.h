// SPDX-License-Identifier: MIT
#ifndef STBTEST_TOYITEM_H
#define STBTEST_TOYITEM_H

#include <QtGui/qcolor.h>
#include <QtGui/qimage.h>
#include <QtQuick/qquickitem.h>

/*!
    A control of the smallest kind: a rectangle over the whole item and, when it has a picture colour, an image of
    8 x 6 pixels at (pictureX, 2). It can be told to make the mistakes that the kit has to find.
*/
class ToyItem : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(QColor pictureColor READ pictureColor WRITE setPictureColor NOTIFY pictureColorChanged)
    Q_PROPERTY(int pictureX READ pictureX WRITE setPictureX NOTIFY pictureXChanged)
    Q_PROPERTY(QObject *style READ style WRITE setStyle NOTIFY styleChanged)
public:
    enum Mistake {
        NoMistake,
        NoUpdateOnColor, // the colour is stored, nobody is told
        StalePicture, // the second picture colour keeps the first picture
        StaleAfterWindow, // a new window's nodes miss the picture
        WrongPictureOrder, // the picture's place depends on what was set first
        AlwaysDirty, // every paint update paints the whole item
    };

    explicit ToyItem(Mistake mistake = NoMistake, QQuickItem *parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    QColor pictureColor() const { return m_pictureColor; }
    void setPictureColor(const QColor &color);
    int pictureX() const { return m_pictureX; }
    void setPictureX(int x);
    QObject *style() const { return m_style; }
    void setStyle(QObject *style);

Q_SIGNALS:
    void colorChanged();
    void pictureColorChanged();
    void pictureXChanged();
    void styleChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    void updatePicture(QSGNode *root);

    const Mistake m_mistake;
    QColor m_color = Qt::red;
    QColor m_pictureColor = Qt::transparent;
    int m_pictureX = 3;
    QObject *m_style = nullptr;
    bool m_pictureSet = false;
    bool m_pictureWasSet = false;
    bool m_hadNodes = false;
};

#endif // STBTEST_TOYITEM_H
