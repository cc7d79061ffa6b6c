// SPDX-License-Identifier: MIT
#ifndef STBUI_STYLEREFERENCE_H
#define STBUI_STYLEREFERENCE_H

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>

/*!
    The style object that a control was given: not owned, and null again when it is destroyed. A control acts on
    a new style object; it does not listen to changes inside one.
*/
template <typename StyleObject>
class StyleReference
{
    Q_DISABLE_COPY_MOVE(StyleReference)
public:
    StyleReference() = default;

    StyleObject *get() const { return m_style; }
    StyleObject *operator->() const { return m_style; }
    explicit operator bool() const { return !m_style.isNull(); }

    /*! From now on refers to \a style; calls \a destroyed on \a control when that object dies. */
    template <typename Function>
    void set(StyleObject *style, QObject *control, Function destroyed)
    {
        QObject::disconnect(m_connection);
        m_style = style;
        m_connection = style ? QObject::connect(style, &QObject::destroyed, control, destroyed)
                             : QMetaObject::Connection();
    }

private:
    QPointer<StyleObject> m_style;
    QMetaObject::Connection m_connection;
};

#endif // STBUI_STYLEREFERENCE_H
