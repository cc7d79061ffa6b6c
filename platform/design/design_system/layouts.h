// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_LAYOUTS_H
#define DESIGN_SYSTEM_LAYOUTS_H

#include <design_system/designglobal.h>

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! The measures of a screen, in pixels; those of views are for MediaListView and MediaGridView. */
class STBDESIGN_EXPORT Layouts : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int screenWidth MEMBER m_screenWidth NOTIFY screenWidthChanged)
    Q_PROPERTY(int screenHeight MEMBER m_screenHeight NOTIFY screenHeightChanged)
    Q_PROPERTY(int viewHorizontalSpacing MEMBER m_viewHorizontalSpacing NOTIFY viewHorizontalSpacingChanged)
    Q_PROPERTY(int viewVerticalSpacing MEMBER m_viewVerticalSpacing NOTIFY viewVerticalSpacingChanged)
    Q_PROPERTY(int viewLeftMargin MEMBER m_viewLeftMargin NOTIFY viewLeftMarginChanged)
    Q_PROPERTY(int viewRightMargin MEMBER m_viewRightMargin NOTIFY viewRightMarginChanged)
    QML_ANONYMOUS
public:
    using QObject::QObject;

Q_SIGNALS:
    void screenWidthChanged();
    void screenHeightChanged();
    void viewHorizontalSpacingChanged();
    void viewVerticalSpacingChanged();
    void viewLeftMarginChanged();
    void viewRightMarginChanged();

private:
    int m_screenWidth = 0; //!< of the whole screen; MediaBlock is as wide
    int m_screenHeight = 0; //!< of the whole screen
    int m_viewHorizontalSpacing = 0; //!< between the columns of a grid or list
    int m_viewVerticalSpacing = 0; //!< between the rows of a grid
    int m_viewLeftMargin = 0; //!< the left safe area
    int m_viewRightMargin = 0; //!< the right safe area
};

} // namespace design_system

#endif // DESIGN_SYSTEM_LAYOUTS_H
