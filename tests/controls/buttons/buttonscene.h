// SPDX-License-Identifier: MIT
#ifndef STBTEST_BUTTONSCENE_H
#define STBTEST_BUTTONSCENE_H

#include "buttonstyles.h"
#include "testkit/nodes.h"
#include "testkit/pictures.h"
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

#endif // STBTEST_BUTTONSCENE_H
