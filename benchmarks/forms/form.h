// SPDX-License-Identifier: MIT
#ifndef STBBENCH_FORM_H
#define STBBENCH_FORM_H

#include "forms/subject.h"

#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>

#include <memory>
#include <vector>

namespace stbbench {

/*! A form made ready: its QML is compiled. */
class Form
{
public:
    /*! Ends the program when the QML has a mistake or an import is missing. */
    Form(QQmlEngine *engine, const FormSource &source);

    QString name() const { return m_name; }

    /*! An item with the properties \a content, without a parent; ends the program when there is none. */
    std::unique_ptr<QQuickItem> create(const QVariantMap &content);

private:
    QString m_name;
    QQmlComponent m_component;
    QVariantMap m_constants;
};

/*! A subject with its forms made ready, in the subject's order. */
struct Bench
{
    Subject subject;
    std::vector<std::unique_ptr<Form>> forms;
};

/*!
    Every subject, with the engine that they share. Whatever the user's settings are: fading is off, so that a
    picture that arrived is there in one frame.
*/
class Workshop
{
public:
    Workshop();
    ~Workshop();
    Q_DISABLE_COPY_MOVE(Workshop)

    /*! All of them, or the one whose key is \a key; empty when there is none. */
    std::vector<Bench> benches(const QString &key = QString());

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace stbbench

#endif // STBBENCH_FORM_H
