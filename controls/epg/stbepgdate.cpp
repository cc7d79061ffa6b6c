// SPDX-License-Identifier: MIT
#include "controls/epg/stbepgdate_p.h"

#include "controls/epg/stbepgdatelayout.h"
#include "controls/propertysetters.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

#include <QtCore/qlocale.h>

using namespace qml_basic_plugin;

StbEpgDatePrivate::StbEpgDatePrivate() = default;
StbEpgDatePrivate::~StbEpgDatePrivate() = default;

StbEpgDate::StbEpgDate(QQuickItem *parent)
    : QQuickItem(*new StbEpgDatePrivate, parent)
{
    setFlag(ItemHasContents);
}

StbEpgDate::~StbEpgDate() = default;

design_system::PlayerEpgDateQmlStyle *StbEpgDate::style() const
{
    Q_D(const StbEpgDate);
    return d->m_style.get();
}

void StbEpgDate::setStyle(design_system::PlayerEpgDateQmlStyle *style)
{
    Q_D(StbEpgDate);
    if (d->m_style.get() == style)
        return;
    const auto styleHasChanged = [this] {
        Q_EMIT styleChanged();
        update();
    };
    d->m_style.set(style, this, styleHasChanged);
    styleHasChanged();
}

void StbEpgDate::resetStyle()
{
    setStyle(nullptr);
}

QDate StbEpgDate::date() const
{
    Q_D(const StbEpgDate);
    return d->m_date;
}

void StbEpgDate::setDate(const QDate &date)
{
    Q_D(StbEpgDate);
    if (!assign(this, d->m_date, date, &StbEpgDate::dateChanged))
        return;
    d->processDateUpdate();
    update();
}

bool StbEpgDate::isActive() const
{
    Q_D(const StbEpgDate);
    return d->m_active;
}

void StbEpgDate::setActive(bool active)
{
    Q_D(StbEpgDate);
    if (assign(this, d->m_active, active, &StbEpgDate::activeChanged))
        update();
}

void StbEpgDatePrivate::processDateUpdate()
{
    if (!m_date.isValid()) {
        m_month.setText(QString());
        m_day.setText(QString());
        return;
    }
    const QLocale locale;
    const bool inFull = locale.name() == QLatin1String("ru_RU"); // this one locale and no other, on purpose
    m_month.setText(
            locale.standaloneMonthName(m_date.month(), inFull ? QLocale::LongFormat : QLocale::ShortFormat));
    m_day.setText(m_date.toString(QStringLiteral("d")));
}

QSGNode *StbEpgDatePrivate::createRoot(const Style &style)
{
    Q_Q(StbEpgDate);
    QSGContext *context = sceneGraphContext();
    QSGRenderContext *renderContext = sceneGraphRenderContext();
    QSGNode *root = createRectangleNode(context, Qt::transparent, nullptr, nullptr);
    m_month.createNode(context, renderContext, root, nullptr);
    m_day.createNode(context, renderContext, root, nullptr);

    const int textWidth = StbEpgDateLayout::textWidth(q->width());
    m_month.setupRenderer(style.monthStyle, textWidth);
    m_day.setupRenderer(style.dayStyle, textWidth);
    return root;
}

QSGNode *StbEpgDate::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    Q_D(StbEpgDate);
    if (!d->m_style || !d->m_date.isValid() || !(width() > 0) || !(height() > 0)) {
        delete oldNode;
        return nullptr;
    }
    const design_system::PlayerEpgDateStyle style = d->m_style->style();
    QSGNode *root = oldNode ? oldNode : d->createRoot(style);
    ChildNodes children(root);
    auto *month = children.next<QSGImageNode>();
    auto *day = children.next<QSGImageNode>();

    bool moved = !oldNode;
    d->m_month.updateNode(month, style.monthColor, &moved);
    d->m_day.updateNode(day, d->m_active ? style.dayActiveColor : style.dayInactiveColor, &moved);
    if (moved) {
        const StbEpgDateLayout layout = StbEpgDateLayout::compute(d->m_month.boundingRect(),
                                                                  d->m_day.boundingRect());
        setNodeRect(month, QRectF(layout.month));
        setNodeRect(day, QRectF(layout.day));
    }
    return root; // its own rectangle is never set: it only holds the texts together
}
