// SPDX-License-Identifier: MIT
#ifndef STBBENCH_FORMS_H
#define STBBENCH_FORMS_H

#include <QtCore/qstring.h>
#include <QtCore/qvariant.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>

#include <memory>

namespace design_system {
class PlayerEpgDelegateQmlStyle;
}

namespace stbbench {

/*! One programme of a guide, the content of a row. */
struct Programme
{
    QString startTime;
    QString title;
    QString subtitle;
    bool live = false;
};

/*! The programme number \a index of an endless list; no two have the same texts. */
Programme programme(int index);

/*!
    One way to show a programme, in QML. All forms have the same properties: itemTitle, itemSubtitle,
    tvProgramStartTimeText, tvProgramIsLive and tvProgramPlayable.
*/
class Form
{
public:
    Form(const QString &name, QQmlEngine *engine, const QByteArray &qml, const QVariantMap &constants);

    QString name() const { return m_name; }

    /*! A row of this form that shows \a programme, without a parent; ends the program when there is none. */
    std::unique_ptr<QQuickItem> create(const Programme &programme);

private:
    QString m_name;
    QQmlComponent m_component;
    QVariantMap m_constants;
};

/*! The forms that are compared, with the engine and the style that they share. Fixed, whatever the theme is. */
class Forms
{
public:
    Forms();
    ~Forms();

    /*! This module's EpgViewDelegate. */
    Form &row();
    /*! The same row composed of Rectangle, Text and Image. */
    Form &composedRow();

private:
    QQmlEngine m_engine;
    std::unique_ptr<design_system::PlayerEpgDelegateQmlStyle> m_style;
    std::unique_ptr<Form> m_row;
    std::unique_ptr<Form> m_composedRow;
};

} // namespace stbbench

#endif // STBBENCH_FORMS_H
