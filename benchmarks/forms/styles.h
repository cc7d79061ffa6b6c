// SPDX-License-Identifier: MIT
#ifndef STBBENCH_STYLES_H
#define STBBENCH_STYLES_H

#include "forms/subject.h"

#include <design_system/textstyle.h>

namespace stbbench {

/*! The part of a style that tells about one text, \a width wide, in the font of all benchmarks. */
inline design_system::TextStyle textStyle(int width, int pixelSize, int lines, const QColor &color)
{
    design_system::TextStyle style;
    style.rect = QRect(0, 0, width, 1);
    style.font = QFont(QStringLiteral("DejaVu Sans"));
    style.font.setPixelSize(pixelSize);
    style.maxLineCount = lines;
    style.color = color;
    return style;
}

/*! A style object for the form of this module; it belongs to the subject. */
template <typename StyleObject, typename Style>
std::shared_ptr<StyleObject> styleObject(const Style &style)
{
    auto object = std::make_shared<StyleObject>();
    object->setStyle(style);
    return object;
}

/*! This module's form: \a element with the style object \a style. */
template <typename StyleObject>
FormSource moduleForm(const char *element, const std::shared_ptr<StyleObject> &style)
{
    return { QStringLiteral("module"),
             QByteArray("import Stbui.UI.Qml.Controls.Basic\n") + element,
             { { QStringLiteral("style"), QVariant::fromValue(style.get()) } } };
}

/*! The same composed in QML: qml/Composed\a name.qml of Qt Quick alone. */
inline FormSource plainForm(const char *name)
{
    return { QStringLiteral("plain QML"), QByteArray("Composed") + name + " {}", {} };
}

/*! qml/Controls\a name.qml, on Qt Quick Controls. */
inline FormSource controlsForm(const char *name)
{
    return { QStringLiteral("Qt Controls"), QByteArray("Controls") + name + " {}", {} };
}

/*! A change of the one property \a property. */
inline Change change(const char *name, const char *property, const QVariant &value)
{
    return { QString::fromLatin1(name), { { QLatin1String(property), value } } };
}

} // namespace stbbench

#endif // STBBENCH_STYLES_H
