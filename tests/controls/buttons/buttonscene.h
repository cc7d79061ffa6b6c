// SPDX-License-Identifier: MIT
#ifndef STBTEST_BUTTONSCENE_H
#define STBTEST_BUTTONSCENE_H

#include "buttonstyles.h"
#include "testkit/nodes.h"
#include "testkit/stage.h"

#include <QtQml/qqmlparserstatus.h>
#include <QtQuick/qquickitem.h>

#include <initializer_list>

/*! A coloured stage with one button, which is complete as if QML had made it. */
template <typename Button>
struct ButtonScene
{
    ButtonScene()
    {
        style.setStyle(oddButtonStyle());
        static_cast<QQmlParserStatus &>(button).componentComplete();
        button.setParentItem(stage.contentItem());
        button.setPosition(QPointF(20, 30));
    }

    /*! Style, both lines and both icons. */
    void fill()
    {
        button.setStyle(&style);
        button.setTitleText(QStringLiteral("Watch now"));
        button.setSubtitleText(QStringLiteral("From the start"));
        button.setLeftIconSource(QStringLiteral(":/icons/left.png"));
        button.setRightIconSource(QStringLiteral(":/icons/right.png"));
    }

    stbtest::NodeInfo root() { return stbtest::nodeTree(stbtest::paintNode(&button)).value(0); }
    QList<stbtest::NodeInfo> children() { return stbtest::childNodes(stbtest::paintNode(&button)); }
    QRect area() const
    {
        return QRectF(button.position(), QSizeF(button.width(), button.height())).toAlignedRect();
    }

    stbtest::Stage stage { QSize(640, 300), QColor(0, 60, 40) };
    design_system::ButtonQmlStyle style;
    Button button;
};

/*! Whether the opaque pixels of \a pixmap, of which there are some, all have this colour. */
inline bool isPaintedIn(const QPixmap &pixmap, const QColor &color)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    int opaque = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) < 255)
                continue;
            ++opaque;
            if (pixel != color.rgb())
                return false;
        }
    }
    return opaque > 0;
}

#endif // STBTEST_BUTTONSCENE_H
