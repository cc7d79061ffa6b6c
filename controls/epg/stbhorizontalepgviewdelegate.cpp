// SPDX-License-Identifier: MIT
#include "controls/epg/stbhorizontalepgviewdelegate_p.h"

#include "controls/epg/stbhorizontalepgviewdelegatelayout.h"
#include "controls/propertysetters.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

using namespace qml_basic_plugin;

StbHorizontalEpgViewDelegatePrivate::StbHorizontalEpgViewDelegatePrivate() = default;
StbHorizontalEpgViewDelegatePrivate::~StbHorizontalEpgViewDelegatePrivate() = default;

StbHorizontalEpgViewDelegate::StbHorizontalEpgViewDelegate(QQuickItem *parent)
    : QQuickItem(*new StbHorizontalEpgViewDelegatePrivate, parent)
{
    setFlag(ItemHasContents);
}

StbHorizontalEpgViewDelegate::~StbHorizontalEpgViewDelegate() = default;

design_system::PlayerHorizontalEpgViewQmlStyle *StbHorizontalEpgViewDelegate::style() const
{
    Q_D(const StbHorizontalEpgViewDelegate);
    return d->m_style.get();
}

void StbHorizontalEpgViewDelegate::setStyle(design_system::PlayerHorizontalEpgViewQmlStyle *style)
{
    Q_D(StbHorizontalEpgViewDelegate);
    if (d->m_style.get() == style)
        return;
    const auto styleHasChanged = [this] {
        Q_EMIT styleChanged();
        update();
    };
    d->m_style.set(style, this, styleHasChanged);
    styleHasChanged();
}

void StbHorizontalEpgViewDelegate::resetStyle()
{
    setStyle(nullptr);
}

QUrl StbHorizontalEpgViewDelegate::imageSource() const
{
    Q_D(const StbHorizontalEpgViewDelegate);
    return d->m_imageSource;
}

void StbHorizontalEpgViewDelegate::setImageSource(const QUrl &source)
{
    Q_D(StbHorizontalEpgViewDelegate);
    if (assign(this, d->m_imageSource, source, &StbHorizontalEpgViewDelegate::imageSourceChanged)
        && isComponentComplete())
        d->loadImage();
}

QString StbHorizontalEpgViewDelegate::title() const
{
    Q_D(const StbHorizontalEpgViewDelegate);
    return d->m_title.text();
}

void StbHorizontalEpgViewDelegate::setTitle(const QString &title)
{
    Q_D(StbHorizontalEpgViewDelegate);
    d->setText(d->m_title, title, &StbHorizontalEpgViewDelegate::titleChanged);
}

QString StbHorizontalEpgViewDelegate::exactDate() const
{
    Q_D(const StbHorizontalEpgViewDelegate);
    return d->m_exactDate.text();
}

void StbHorizontalEpgViewDelegate::setExactDate(const QString &date)
{
    Q_D(StbHorizontalEpgViewDelegate);
    d->setText(d->m_exactDate, date, &StbHorizontalEpgViewDelegate::exactDateChanged);
}

QString StbHorizontalEpgViewDelegate::description() const
{
    Q_D(const StbHorizontalEpgViewDelegate);
    return d->m_description.text();
}

void StbHorizontalEpgViewDelegate::setDescription(const QString &description)
{
    Q_D(StbHorizontalEpgViewDelegate);
    d->setText(d->m_description, description, &StbHorizontalEpgViewDelegate::descriptionChanged);
}

void StbHorizontalEpgViewDelegate::componentComplete()
{
    Q_D(StbHorizontalEpgViewDelegate);
    QQuickItem::componentComplete();
    if (d->m_imageSource.isValid())
        d->loadImage();
}

void StbHorizontalEpgViewDelegatePrivate::loadImage()
{
    Q_Q(StbHorizontalEpgViewDelegate);
    m_picture.load(q, m_imageSource, SLOT(update()));
}

void StbHorizontalEpgViewDelegatePrivate::setText(TextNodeBuilder &builder, const QString &text,
                                                  TextSignal changed)
{
    Q_Q(StbHorizontalEpgViewDelegate);
    if (assignText(q, builder, text, changed))
        q->update();
}

QSGNode *StbHorizontalEpgViewDelegatePrivate::createRoot(const Style &style)
{
    m_hasImageNode = false;
    QSGContext *context = sceneGraphContext();
    QSGRenderContext *renderContext = sceneGraphRenderContext();
    QSGNode *root = createRectangleNode(context, Qt::transparent, nullptr, nullptr);
    m_title.createNode(context, renderContext, root, nullptr);
    m_exactDate.createNode(context, renderContext, root, nullptr);
    m_description.createNode(context, renderContext, root, nullptr);

    const int textWidth = StbHorizontalEpgViewDelegateLayout::textWidth(style);
    m_title.setupRenderer(style.titleStyle, textWidth);
    m_exactDate.setupRenderer(style.dateStyle, textWidth);
    m_description.setupRenderer(style.descriptionStyle, textWidth);
    return root;
}

void StbHorizontalEpgViewDelegatePrivate::updateChildren(QSGNode *root, const Style &style, bool rootIsNew)
{
    Q_Q(StbHorizontalEpgViewDelegate);
    ChildNodes children(root);
    auto *title = children.next<QSGImageNode>();
    auto *date = children.next<QSGImageNode>();
    auto *description = children.next<QSGImageNode>();
    QSGTexture *texture = m_picture.texture(sceneGraphRenderContext(), q->window());
    QSGImageNode *image = m_picture.placeNode(children, m_hasImageNode, sceneGraphContext(), texture);

    bool textsMoved = rootIsNew;
    m_title.updateNode(title, style.titleColor, &textsMoved);
    m_exactDate.updateNode(date, style.dateColor, &textsMoved);
    m_description.updateNode(description, style.descriptionColor, &textsMoved);

    const auto layout = StbHorizontalEpgViewDelegateLayout::compute(style, q->height(),
                                                                    { m_exactDate.boundingRect().size(),
                                                                      m_title.boundingRect().size(),
                                                                      m_description.boundingRect().size() });
    if (image && children.created())
        setNodeRect(image, layout.image);
    if (!textsMoved)
        return;
    setNodeRect(date, layout.date);
    setNodeRect(title, layout.title);
    setNodeRect(description, layout.description);
}

QSGNode *StbHorizontalEpgViewDelegate::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    Q_D(StbHorizontalEpgViewDelegate);
    if (!d->m_style || !(width() > 0) || !(height() > 0)) {
        delete oldNode;
        return nullptr;
    }
    const design_system::PlayerHorizontalEpgViewStyle style = d->m_style->style();
    auto *root = static_cast<QSGRectangleNode *>(oldNode ? oldNode : d->createRoot(style));
    d->updateChildren(root, style, !oldNode);
    setNodeRect(root, QRectF(0, 0, width(), height()));
    setNodeColor(root, visibleColor(style.backgroundColor));
    return root;
}
