// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_STYLEGROUPS_H
#define DESIGN_SYSTEM_STYLEGROUPS_H

#include <design_system/designglobal.h>

#include <QtCore/qobject.h>
#include <QtCore/qsize.h>
#include <QtCore/qstring.h>
#include <QtGui/qcolor.h>
#include <QtGui/qfont.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! A group of a style that holds a font. */
class STBDESIGN_EXPORT FontGroup : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY fontChanged)
    QML_ANONYMOUS
public:
    using QObject::QObject;

Q_SIGNALS:
    void fontChanged();

private:
    QFont m_font; //!< of the text; the application's font when new
};

/*! A group of a style that describes a line of text; the margins are pixels. */
class STBDESIGN_EXPORT TextGroup
    : public design_system::FontGroup // so written, the type description knows it
{
    Q_OBJECT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY colorChanged)
    Q_PROPERTY(int marginLeft MEMBER m_marginLeft NOTIFY marginLeftChanged)
    Q_PROPERTY(int marginRight MEMBER m_marginRight NOTIFY marginRightChanged)
    QML_ANONYMOUS
public:
    using FontGroup::FontGroup;

Q_SIGNALS:
    void colorChanged();
    void marginLeftChanged();
    void marginRightChanged();

private:
    QColor m_color; //!< of the text
    int m_marginLeft = 0; //!< from the left edge of the control
    int m_marginRight = 0; //!< from the right edge of the control
};

/*! A group of a style that describes an icon: where its picture is and how large it is shown, in pixels. */
class STBDESIGN_EXPORT CheckBoxIconGroup : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString path MEMBER m_path NOTIFY pathChanged)
    Q_PROPERTY(QSize size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(int width READ width WRITE setWidth NOTIFY sizeChanged STORED false)
    Q_PROPERTY(int height READ height WRITE setHeight NOTIFY sizeChanged STORED false)
    QML_ANONYMOUS
public:
    using QObject::QObject;

    QSize size() const { return m_size; }
    int width() const { return m_size.width(); }
    int height() const { return m_size.height(); }

    void setSize(QSize size);
    void setWidth(int width);
    void setHeight(int height);

Q_SIGNALS:
    void pathChanged();
    void sizeChanged();

private:
    QString m_path; //!< a file, or a resource as ":/..." or "qrc:/..."; none when new
    QSize m_size = QSize(0, 0); //!< of the picture as it is shown; width and height are its sides
};

} // namespace design_system

#endif // DESIGN_SYSTEM_STYLEGROUPS_H
