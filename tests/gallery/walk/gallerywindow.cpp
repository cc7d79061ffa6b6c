// SPDX-License-Identifier: MIT
#include "gallerywindow.h"

#include "app/languages.h"
#include "gallery/data/catalogueloader.h"
#include "gallery/data/ownguide.h"
#include "screens/pictureprovider.h"
#include "testkit/pictures.h"

#include <QtCore/qmetaobject.h>
#include <QtCore/qtimezone.h>
#include <QtGui/qevent.h>
#include <QtQml/qqmlengine.h>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuick/private/qquickwindow_p.h>
#include <QtTest/qtest.h>

Q_IMPORT_QML_PLUGIN(GalleryPlugin)

using namespace Qt::StringLiterals;

namespace {

// A picture that has not changed for so many looks, some time apart, is taken for finished.
constexpr int restingLooks = 3;
constexpr int pauseBetweenLooks = 15; // milliseconds
constexpr int mostLooks = 300;

// What is translucent is blended again where it is painted again, which may round another way.
constexpr int roundingError = 2;

} // namespace

GalleryWindow::GalleryWindow(const WindowLook &look)
    : m_language(look.language.isEmpty() ? u"en"_s : look.language)
{
    if (!look.theme.isEmpty())
        m_configuration.setValue(u"UI"_s, u"theme"_s, ":/stbui/design/themes/"_L1 + look.theme + ".json"_L1);
    if (!look.resolution.isEmpty())
        m_configuration.setValue(u"UI"_s, u"resolution"_s, look.resolution);
    m_configuration.setValue(u"UI"_s, u"textScale"_s, look.textScale);
    for (const QString &key : { u"focusingEnabled"_s, u"layoutScrollingEnabled"_s,
                                u"viewportScrollingEnabled"_s, u"fadeEffectEnabled"_s, u"slidingEnabled"_s })
        m_configuration.setValue(u"Animations"_s, key, false);
    if (!gallery::installLanguage(m_language))
        qWarning("There is no language \"%s\"", qPrintable(m_language));
    m_shell.setMirrored(QGuiApplication::layoutDirection() == Qt::RightToLeft);

    m_view.engine()->addImportPath(u"qrc:/"_s);
    m_view.engine()->addImageProvider(gallery::PictureProvider::name(), new gallery::PictureProvider);
    m_view.setFlags(Qt::FramelessWindowHint);
    m_view.setResizeMode(QQuickView::SizeViewToRootObject);
    m_view.setInitialProperties({ { u"controller"_s, QVariant::fromValue(&m_shell) } });
    m_view.setSource(QUrl(u"qrc:/Gallery/Shell.qml"_s));
    m_view.show();
    if (!QTest::qWaitForWindowActive(&m_view))
        qWarning("The window does not become active");
}

GalleryWindow::~GalleryWindow()
{
    m_view.setSource({}); // what uses the shell goes before it
    gallery::installLanguage(u"en"_s);
}

void GalleryWindow::showOwnContent()
{
    const QDateTime now(QDate(2026, 3, 8), QTime(20, 5), QTimeZone::utc());
    m_shell.clock()->setFixed(now);
    m_shell.setCatalogue(gallery::ownCatalogue(m_language, now.date()));
    m_shell.guide()->setGuide(gallery::ownGuide(now, m_language));
}

void GalleryWindow::start(const QString &screen, const QList<Qt::Key> &keys)
{
    m_shell.start(screen);
    settle();
    for (const Qt::Key key : keys)
        press(key);
}

void GalleryWindow::press(Qt::Key key)
{
    for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_view, &event);
    }
    settle();
}

void GalleryWindow::settle()
{
    // Laying out may ask for more, such as the deletion of what has gone.
    for (int i = 0; i < 2; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QQuickWindowPrivate::get(&m_view)->polishItems();
    }
    // A search goes on between events when the machine is slow.
    const auto *search = m_shell.property("search").value<QObject *>();
    while (search && search->property("searching").toBool())
        QCoreApplication::processEvents();
}

QImage GalleryWindow::picture()
{
    QImage last = m_view.grabWindow();
    int resting = 0;
    for (int i = 0; i < mostLooks && resting < restingLooks; ++i) {
        QTest::qWait(pauseBetweenLooks);
        const QImage next = m_view.grabWindow();
        resting = next == last ? resting + 1 : 0;
        last = next;
    }
    return last;
}

QString GalleryWindow::changeFrom(const QImage &before)
{
    const QImage now = m_view.grabWindow();
    const stbtest::PictureDifference difference = stbtest::comparePictures(now, before, roundingError);
    if (difference.pixels == 0 && !difference.sizesDiffer)
        return {};
    return difference.text() + u"; "_s + stbtest::savePicture(before, u"before"_s) + u", "_s
           + stbtest::savePicture(now, u"now"_s);
}

QList<Qt::Key> plainKeys()
{
    return { Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Return, Qt::Key_Back };
}

QString keyNames(const QList<Qt::Key> &keys)
{
    const auto names = QMetaEnum::fromType<Qt::Key>();
    QStringList result;
    for (const Qt::Key key : keys)
        result.append(QLatin1StringView(names.valueToKey(key)).mid(4).toString()); // without "Key_"
    return result.isEmpty() ? u"no key"_s : result.join(u' ');
}
