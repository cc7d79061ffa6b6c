// SPDX-License-Identifier: MIT
#include "testkit/qmlscene.h"

#include <QtQml/qqmlcomponent.h>

namespace stbtest {

QmlScene::QmlScene()
{
    m_engine.addImportPath(QStringLiteral(STBTEST_QML_IMPORT_PATH));
}

QQmlEngine *QmlScene::engine()
{
    return &m_engine;
}

std::unique_ptr<QObject> QmlScene::createObject(const QString &text)
{
    QQmlComponent component(&m_engine);
    component.setData(text.toUtf8(), QUrl(QStringLiteral("qrc:/test/text.qml")));
    return create(component);
}

std::unique_ptr<QObject> QmlScene::createObject(const QUrl &url)
{
    QQmlComponent component(&m_engine, url);
    return create(component);
}

std::unique_ptr<QObject> QmlScene::create(QQmlComponent &component)
{
    m_errorString.clear();
    std::unique_ptr<QObject> object(component.isReady() ? component.create() : nullptr);
    if (!object || component.isError()) {
        fail(component.errorString());
        return nullptr;
    }
    return object;
}

QString QmlScene::errorString() const
{
    return m_errorString;
}

void QmlScene::fail(const QString &message)
{
    m_errorString = message;
    qWarning("%s", qPrintable(message));
}

} // namespace stbtest
