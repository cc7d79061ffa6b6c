// SPDX-License-Identifier: MIT
#include "screens/aboutcontroller.h"

#include "screens/remotekey.h"
#include "screens/settingscontroller.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qfile.h>
#include <QtGui/qfontinfo.h>
#include <QtQuick/qsgrendererinterface.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

// The file breaks its lines for a page of print.
QString joinedLines(const QString &text)
{
    QStringList paragraphs = text.trimmed().split(u"\n\n"_s);
    for (QString &paragraph : paragraphs)
        paragraph = paragraph.simplified();
    return paragraphs.join(u"\n\n"_s);
}

} // namespace

AboutController::AboutController(const SettingsController *settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
    connect(m_settings, &SettingsController::checkedChanged, this, &AboutController::settingsChanged);
}

QString AboutController::program() const
{
    return u"stbui-gallery "_s + QStringLiteral(STBUI_VERSION);
}

QString AboutController::module() const
{
    return u"Stbui.UI.Qml.Controls.Basic 1.0"_s;
}

QString AboutController::qt() const
{
    const QString running = QString::fromLatin1(qVersion());
    const QString built = QStringLiteral(QT_VERSION_STR);
    return running == built
                   ? running
                   : QCoreApplication::translate("AboutScreen", "%1, built with %2").arg(running, built);
}

QString AboutController::theme() const
{
    return m_settings->themeTitle();
}

QString AboutController::language() const
{
    return m_settings->languageTitle();
}

QString AboutController::licence() const
{
    QFile file(u":/stbui/LICENSE"_s);
    return file.open(QIODevice::ReadOnly) ? joinedLines(QString::fromUtf8(file.readAll())) : QString();
}

QString AboutController::renderer(int graphicsApi) const
{
    switch (graphicsApi) {
    case QSGRendererInterface::Software:
        return QCoreApplication::translate("AboutScreen", "Software");
    case QSGRendererInterface::OpenGL:
        return u"OpenGL"_s;
    case QSGRendererInterface::Vulkan:
        return u"Vulkan"_s;
    case QSGRendererInterface::Metal:
        return u"Metal"_s;
    case QSGRendererInterface::Direct3D11:
        return u"Direct3D 11"_s;
    default:
        return QCoreApplication::translate("AboutScreen", "Unknown");
    }
}

QString AboutController::fontFamily(const QFont &font) const
{
    return QFontInfo(font).family();
}

void AboutController::setTextHeight(int height)
{
    if (height == m_textHeight)
        return;
    m_textHeight = height;
    Q_EMIT heightsChanged();
    Q_EMIT positionChanged();
}

void AboutController::setViewHeight(int height)
{
    if (height == m_viewHeight)
        return;
    m_viewHeight = height;
    Q_EMIT heightsChanged();
    Q_EMIT positionChanged();
}

bool AboutController::press(int key)
{
    const int step = std::max(1, m_viewHeight / 6);
    switch (key) {
    case Qt::Key_Up:
        scrollTo(position() - step);
        return true;
    case Qt::Key_Down:
        scrollTo(position() + step);
        return true;
    case Qt::Key_PageUp:
        scrollTo(position() - m_viewHeight + step);
        return true;
    case Qt::Key_PageDown:
        scrollTo(position() + m_viewHeight - step);
        return true;
    case Qt::Key_Home:
        scrollTo(0);
        return true;
    case Qt::Key_End:
        scrollTo(m_textHeight);
        return true;
    default:
        if (!isBackKey(key))
            return false;
        Q_EMIT leaveRequested();
        return true;
    }
}

int AboutController::position() const
{
    return std::clamp(m_position, 0, std::max(0, m_textHeight - m_viewHeight));
}

void AboutController::scrollTo(int place)
{
    const int before = position();
    m_position = std::clamp(place, 0, std::max(0, m_textHeight - m_viewHeight));
    if (position() != before)
        Q_EMIT positionChanged();
}

} // namespace gallery
