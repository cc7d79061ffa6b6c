// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_BUSYINDICATORSTYLE_H
#define DESIGN_SYSTEM_BUSYINDICATORSTYLE_H

#include <design_system/stylegroups.h>

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! The look of BusyIndicator. Lengths are pixels; a new object's are 0 and its colours invalid. */
class STBDESIGN_EXPORT BusyIndicatorQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(design_system::TextGroup *header READ header CONSTANT)
    Q_PROPERTY(design_system::TextGroup *description READ description CONSTANT)
    Q_PROPERTY(int width MEMBER m_width NOTIFY widthChanged)
    Q_PROPERTY(int height MEMBER m_height NOTIFY heightChanged)
    Q_PROPERTY(int penWidth MEMBER m_penWidth NOTIFY penWidthChanged)
    QML_ELEMENT
public:
    using QObject::QObject;

    TextGroup *header() { return &m_header; }
    TextGroup *description() { return &m_description; }

Q_SIGNALS:
    void widthChanged();
    void heightChanged();
    void penWidthChanged();

private:
    TextGroup m_header; //!< the line below the circle
    TextGroup m_description; //!< the text below the header
    int m_width = 0; //!< of the turning circle
    int m_height = 0; //!< of the turning circle
    int m_penWidth = 0; //!< thickness of the turning circle's line
};

} // namespace design_system

#endif // DESIGN_SYSTEM_BUSYINDICATORSTYLE_H
