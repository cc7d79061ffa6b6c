// SPDX-License-Identifier: MIT
#include "forms/form.h"

#include "forms/pictures.h"
#include "testkit/fakeplatform.h"

#include <QtQuick/qquickwindow.h>

namespace stbbench {

QList<Subject> allSubjects()
{
    return { epgRow(),
             epgCard(),
             epgProgram(),
             epgDate(),
             channelRow(),
             startedEpisode(),
             newEpisode(),
             viewedEpisode(),
             comingEpisode(),
             button(),
             buttonWithCheckIndicator(),
             expandableTile(),
             contentTile(),
             vodTile() };
}

Form::Form(QQmlEngine *engine, const FormSource &source)
    : m_name(source.name)
    , m_component(engine)
    , m_constants(source.constants)
{
    // From this folder, so that a form finds the others by their names.
    m_component.setData(source.qml, QUrl(QStringLiteral("qrc:/forms/qml/form.qml")));
    if (!m_component.isReady())
        qFatal("%s: %s", qPrintable(m_name), qPrintable(m_component.errorString()));
}

std::unique_ptr<QQuickItem> Form::create(const QVariantMap &content)
{
    QVariantMap properties = m_constants;
    properties.insert(content);
    std::unique_ptr<QObject> object(m_component.createWithInitialProperties(properties));
    auto *item = qobject_cast<QQuickItem *>(object.get());
    if (!item)
        qFatal("%s makes no item: %s", qPrintable(m_name), qPrintable(m_component.errorString()));
    static_cast<void>(object.release()); // the item is owned from here on
    return std::unique_ptr<QQuickItem>(item);
}

struct Workshop::Private
{
    stbtest::MemoryConfiguration configuration;
    QQmlEngine engine;
};

Workshop::Workshop()
    : d(std::make_unique<Private>())
{
    d->configuration.setValue(QStringLiteral("Animations"), QStringLiteral("fadeEffectEnabled"), false);
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    addPictureProvider(&d->engine);
}

Workshop::~Workshop() = default;

std::vector<Bench> Workshop::benches(const QString &key)
{
    std::vector<Bench> benches;
    for (const Subject &subject : allSubjects()) {
        if (!key.isEmpty() && subject.key != key)
            continue;
        benches.push_back({ subject, {} });
        for (const FormSource &source : subject.forms)
            benches.back().forms.push_back(std::make_unique<Form>(&d->engine, source));
    }
    return benches;
}

} // namespace stbbench
