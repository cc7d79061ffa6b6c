// SPDX-License-Identifier: MIT
#include "app/screenwindow.h"

#include "screens/pictureprovider.h"

#include <QtCore/qcoreapplication.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>

using namespace Qt::StringLiterals;

namespace gallery {

ScreenWindow::ScreenWindow(const QUrl &source, const QStringList &importPaths, const QList<QUrl> &later)
    : m_source(source)
    , m_importPaths(importPaths)
    , m_later(later)
{
    connect(this, &QQuickWindow::frameSwapped, this, &ScreenWindow::readDocuments);
}

ScreenWindow::~ScreenWindow() = default;

bool ScreenWindow::build(const QVariantMap &properties)
{
    clear();
    makeEngine();
    QQmlComponent component(m_engine.get(), m_source);
    // A component that is not ready, asked all the same, ends the program with Qt 6.4.
    std::unique_ptr<QObject> made(component.isReady() ? component.createWithInitialProperties(properties)
                                                      : nullptr);
    if (made == nullptr) {
        const QList<QQmlError> errors = component.errors();
        return fail(errors.isEmpty() ? u"%1 cannot be loaded"_s.arg(m_source.toString())
                                     : errors.constFirst().toString());
    }
    auto *item = qobject_cast<QQuickItem *>(made.get());
    if (item == nullptr) {
        made.reset();
        return fail(u"%1 is no item"_s.arg(m_source.toString()));
    }
    static_cast<void>(made.release());
    m_root.reset(item);
    m_error.clear();
    m_root->setParentItem(contentItem());
    connect(m_root.get(), &QQuickItem::widthChanged, this, &ScreenWindow::takeSize);
    connect(m_root.get(), &QQuickItem::heightChanged, this, &ScreenWindow::takeSize);
    takeSize();
    return true;
}

void ScreenWindow::clear()
{
    m_root.reset();
    // What the screens have let go of before still has pictures on their way, which go with the engine: an item of
    // the next engine that wants the same picture would wait for it forever.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_pictures = nullptr;
    m_documents.clear();
    m_engine.reset();
}

void ScreenWindow::readDocuments()
{
    if (m_root == nullptr || !m_documents.empty())
        return;
    for (const QUrl &document : std::as_const(m_later))
        m_documents.push_back(
                std::make_unique<QQmlComponent>(m_engine.get(), document, QQmlComponent::Asynchronous));
}

int ScreenWindow::pendingPictures() const
{
    return m_pictures == nullptr ? 0 : m_pictures->pendingPictures();
}

void ScreenWindow::makeEngine()
{
    m_engine = std::make_unique<QQmlEngine>();
    for (const QString &path : std::as_const(m_importPaths))
        m_engine->addImportPath(path);
    m_pictures = new PictureProvider;
    m_engine->addImageProvider(PictureProvider::name(), m_pictures);
    m_engine->setIncubationController(incubationController());
}

bool ScreenWindow::fail(const QString &error)
{
    m_error = error;
    clear();
    return false;
}

void ScreenWindow::takeSize()
{
    const QSize size = m_root->size().toSize();
    if (!size.isEmpty())
        resize(size);
}

} // namespace gallery
