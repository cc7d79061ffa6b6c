// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_SCREENWINDOW_H
#define GALLERY_APP_SCREENWINDOW_H

#include <QtCore/qurl.h>
#include <QtCore/qvariant.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <memory>
#include <vector>

class QQmlComponent;
class QQmlEngine;

namespace gallery {

class PictureProvider;

/*!
    The window with the screens. Their QML can be thrown away and made anew at any time, each time with an engine of its
    own, because an engine's singletons read the configuration only once. The window stays, and is always as large as
    the root item.
*/
class ScreenWindow : public QQuickWindow
{
    Q_OBJECT
public:
    /*!
        \a source is the document of the root item; modules are found in \a importPaths too. Nothing is made yet. The
        documents \a later are what the root item may load: they are read outside the GUI thread once there is a
        first frame, so that it need not wait for them, and what they are wanted for neither.
    */
    ScreenWindow(const QUrl &source, const QStringList &importPaths, const QList<QUrl> &later = {});
    ~ScreenWindow() override;

    /*!
        Makes engine and root item, which gets \a properties, in place of those that there are. False when that is
        impossible: the window is empty then, and error() has the first thing that is wrong.
    */
    bool build(const QVariantMap &properties);
    /*! Throws root item and engine away. Not to be called from a signal handler in QML. */
    void clear();
    QString error() const { return m_error; }

    /*! Null before build() and after clear(). */
    QQuickItem *rootObject() const { return m_root.get(); }
    QQmlEngine *engine() const { return m_engine.get(); }
    /*! How many pictures are on their way to the screens. */
    int pendingPictures() const;
    /*! How many of the documents for later are being read, or are read. 0 before the first frame. */
    int documentCount() const { return int(m_documents.size()); }

private:
    void makeEngine();
    void readDocuments();
    bool fail(const QString &error);
    void takeSize();

    QUrl m_source;
    QStringList m_importPaths;
    QList<QUrl> m_later;
    QString m_error;
    std::unique_ptr<QQmlEngine> m_engine;
    std::vector<std::unique_ptr<QQmlComponent>> m_documents; // go before the engine
    PictureProvider *m_pictures = nullptr; // the engine's
    std::unique_ptr<QQuickItem> m_root; // goes before the engine
};

} // namespace gallery

#endif // GALLERY_APP_SCREENWINDOW_H
