// SPDX-License-Identifier: MIT
#include "testkit/shownstage.h"

#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgrendererinterface.h>
#include <QtTest/qtest.h>

namespace stbtest {

ShownStage::ShownStage(const QSize &size, const QColor &background)
    : m_window(std::make_unique<QQuickWindow>())
{
    m_window->setFlags(Qt::FramelessWindowHint);
    m_window->setGeometry(QRect(QPoint(), size));
    m_window->setColor(background);
    m_window->show();
    if (!QTest::qWaitForWindowExposed(m_window.get()))
        qWarning("The window system did not show the window");
}

ShownStage::~ShownStage() = default;

QQuickWindow *ShownStage::window() const
{
    return m_window.get();
}

QQuickItem *ShownStage::contentItem() const
{
    return m_window->contentItem();
}

bool ShownStage::isSoftware() const
{
    return m_window->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
}

QImage ShownStage::picture() const
{
    return m_window->grabWindow();
}

} // namespace stbtest
