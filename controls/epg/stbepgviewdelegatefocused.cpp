// SPDX-License-Identifier: MIT
#include "controls/epg/stbepgviewdelegatefocused_p.h"

#include "controls/epg/stbepgviewdelegatefocusedlayout.h"
#include "controls/propertysetters.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

#include <QtCore/qcoreapplication.h>

using namespace qml_basic_plugin;

namespace {

QString translated(const char *key)
{
    return QCoreApplication::translate("QObject", key);
}

QString translatedInList(const char *key)
{
    return QCoreApplication::translate("stbui::EpgListModel", key);
}

} // namespace

StbEpgViewDelegateFocusedPrivate::StbEpgViewDelegateFocusedPrivate() = default;
StbEpgViewDelegateFocusedPrivate::~StbEpgViewDelegateFocusedPrivate() = default;

StbEpgViewDelegateFocused::StbEpgViewDelegateFocused(QQuickItem *parent)
    : StbEpgViewDelegate(*new StbEpgViewDelegateFocusedPrivate, parent)
{
    connect(this, &StbEpgViewDelegate::styleChanged, this, &StbEpgViewDelegateFocused::customFocusRectChanged);
}

StbEpgViewDelegateFocused::~StbEpgViewDelegateFocused() = default;

QRect StbEpgViewDelegateFocused::customFocusRect() const
{
    Q_D(const StbEpgViewDelegateFocused);
    return d->m_style ? d->m_style->style().previewRect : QRect();
}

QUrl StbEpgViewDelegateFocused::imageSource() const
{
    Q_D(const StbEpgViewDelegateFocused);
    return d->m_imageSource;
}

void StbEpgViewDelegateFocused::setImageSource(const QUrl &source)
{
    Q_D(StbEpgViewDelegateFocused);
    if (assign(this, d->m_imageSource, source, &StbEpgViewDelegateFocused::imageSourceChanged)
        && isComponentComplete())
        d->loadLogo();
}

double StbEpgViewDelegateFocused::progress() const
{
    Q_D(const StbEpgViewDelegateFocused);
    return d->m_progress;
}

void StbEpgViewDelegateFocused::setProgress(double progress)
{
    Q_D(StbEpgViewDelegateFocused);
    if (assign(this, d->m_progress, progress, &StbEpgViewDelegateFocused::progressChanged))
        update();
}

bool StbEpgViewDelegateFocused::hasReminder() const
{
    Q_D(const StbEpgViewDelegateFocused);
    return d->m_hasReminder;
}

void StbEpgViewDelegateFocused::setReminder(bool reminder)
{
    Q_D(StbEpgViewDelegateFocused);
    if (assign(this, d->m_hasReminder, reminder, &StbEpgViewDelegateFocused::reminderChanged))
        update();
}

bool StbEpgViewDelegateFocused::isPast() const
{
    Q_D(const StbEpgViewDelegateFocused);
    return d->m_past;
}

void StbEpgViewDelegateFocused::setPast(bool past)
{
    Q_D(StbEpgViewDelegateFocused);
    if (assign(this, d->m_past, past, &StbEpgViewDelegateFocused::pastChanged))
        update();
}

void StbEpgViewDelegateFocused::componentComplete()
{
    Q_D(StbEpgViewDelegateFocused);
    StbEpgViewDelegate::componentComplete();
    if (d->m_imageSource.isValid())
        d->loadLogo();
    d->loadPlayIcon();
}

void StbEpgViewDelegateFocusedPrivate::loadLogo()
{
    Q_Q(StbEpgViewDelegateFocused);
    m_image.load(q, m_imageSource, SLOT(update()), Picture::Loading::Cached);
}

void StbEpgViewDelegateFocusedPrivate::loadPlayIcon()
{
    if (!m_playIcon.isLoaded())
        m_playIcon.load(QStringLiteral(":/resources/icons/single_epg/epg_preview_play.png"),
                        m_style ? m_style->style().playIconColor : QColor());
}

void StbEpgViewDelegateFocusedPrivate::loadReminderIcon()
{
    if (!m_reminderIcon.isLoaded())
        m_reminderIcon.load(QStringLiteral(":/resources/icons/reminder_small.png"), QColor());
}

void StbEpgViewDelegateFocusedPrivate::setUpCardRenderers(const Style &style)
{
    const int textWidth = style.previewRect.width();
    // Notices and actions repeat from row to row; the line with the start time does not.
    m_statusText.setupRenderer(style.statusTextStyle, textWidth);
    m_statusText.setCachingEnabled(true);
    m_startsAtText.setupRenderer(style.startsAtTextStyle, textWidth);
    m_reminderActionText.setupRenderer(style.reminderActionTextStyle, textWidth);
    m_reminderActionText.setCachingEnabled(true);
    m_title.setMaxLineCount(style.focusedTitleMaxLineCount);
}

void StbEpgViewDelegateFocusedPrivate::relayoutExtendedItem(const Style &style, int &top)
{
    top += style.previewRect.height() + style.previewBottomSpacing;
    if (m_styleDirty)
        setUpCardRenderers(style);
    loadPlayIcon();
    loadReminderIcon();
}

QString StbEpgViewDelegateFocusedPrivate::statusText() const
{
    if (m_past)
        return translated("WATCH_UNAVAILABLE");
    return m_hasReminder ? translatedInList("REMINDER_WAS_SET") : translated("LIVE_SOON");
}

QString StbEpgViewDelegateFocusedPrivate::startsAtText() const
{
    return QStringLiteral("%1 %2").arg(translatedInList("ON"), m_startTimeText.text());
}

QString StbEpgViewDelegateFocusedPrivate::reminderActionText() const
{
    return m_hasReminder ? translated("DELETE_REMINDER") : translated("ADD_REMINDER");
}

template <typename Builder>
QSGImageNode *StbEpgViewDelegateFocusedPrivate::placeImage(ChildNodes &children, bool wanted, bool &present,
                                                           Builder &builder)
{
    return children.place<QSGImageNode>(wanted, present, [&](QSGNode *root, QSGNode *before) {
        return builder.createNode(sceneGraphContext(), sceneGraphRenderContext(), root, before);
    });
}

QSGRectangleNode *StbEpgViewDelegateFocusedPrivate::updateCard(ChildNodes &children, const Style &style)
{
    Q_Q(StbEpgViewDelegateFocused);
    QSGTexture *texture = m_image.texture(sceneGraphRenderContext(), q->window());
    QSGImageNode *picture = m_image.placeNode(children, m_imageNodePresent, sceneGraphContext(), texture);
    if (picture)
        setNodeRect(picture, nodeRect(style.previewRect));
    bool present = true; // from the root's first update on
    QSGRectangleNode *card = placeRectangleNode(children, true, present, sceneGraphContext(), style.cardColor);
    setNodeRect(card, nodeRect(style.previewRect));
    return card;
}

void StbEpgViewDelegateFocusedPrivate::updatePlayNodes(ChildNodes &parts, const Style &style, CardNodes &nodes)
{
    const bool inProgress = m_playable && m_live;
    bool playedPresent = m_progressNodesPresent; // one flag for the two
    nodes.played = placeRectangleNode(parts, inProgress, playedPresent, sceneGraphContext(),
                                      style.progressPlayedColor);
    nodes.remainder = placeRectangleNode(parts, inProgress, m_progressNodesPresent, sceneGraphContext(),
                                         style.progressRemainderColor);

    nodes.playIcon = placeImage(parts, m_playable, m_playIconNodePresent, m_playIcon);
    if (nodes.playIcon) {
        m_playIcon.colorize(style.playIconColor);
        m_playIcon.updateNode(nodes.playIcon, nullptr);
    }
}

void StbEpgViewDelegateFocusedPrivate::updateStatusNode(ChildNodes &parts, const Style &style,
                                                        CardNodes &nodes)
{
    nodes.status = placeImage(parts, !m_playable && (m_past || m_future), m_statusNodePresent, m_statusText);
    if (!nodes.status)
        return;
    m_statusText.setText(statusText());
    m_statusText.updateNode(nodes.status, style.statusTextStyle.color, nullptr);
}

void StbEpgViewDelegateFocusedPrivate::updateReminderNodes(ChildNodes &parts, const Style &style,
                                                           CardNodes &nodes)
{
    const bool wanted = hasReminderBlock();
    bool barPresent = m_reminderNodesPresent; // one flag for them all
    bool startsAtPresent = m_reminderNodesPresent;
    nodes.reminderBar = placeRectangleNode(parts, wanted, barPresent, sceneGraphContext(),
                                           style.reminderActionTextStyle.backgroundColor);
    if (parts.created())
        m_reminderActionText.createNode(sceneGraphContext(), sceneGraphRenderContext(), nodes.reminderBar,
                                        nullptr);
    nodes.startsAt = placeImage(parts, wanted, startsAtPresent, m_startsAtText);
    nodes.reminderIcon = placeImage(parts, wanted, m_reminderNodesPresent, m_reminderIcon);
    if (!wanted)
        return;

    nodes.reminderAction = static_cast<QSGImageNode *>(nodes.reminderBar->firstChild());
    m_reminderActionText.setText(reminderActionText());
    m_reminderActionText.updateNode(nodes.reminderAction, style.reminderActionTextStyle.color, nullptr);
    m_startsAtText.setText(startsAtText());
    m_startsAtText.updateNode(nodes.startsAt, style.startsAtTextStyle.color, nullptr);
    m_reminderIcon.updateNode(nodes.reminderIcon, nullptr);
}

// Everything gets its place anew: a style or a new node can move what kept its size.
void StbEpgViewDelegateFocusedPrivate::placeCardNodes(const Style &style, const CardNodes &nodes)
{
    const auto layout = StbEpgViewDelegateFocusedLayout::compute(style,
                                                                 { m_progress, m_playIcon.pixmap().size(),
                                                                   m_reminderIcon.pixmap().size(),
                                                                   m_statusText.boundingRect(),
                                                                   m_startsAtText.boundingRect(),
                                                                   m_reminderActionText.boundingRect() });
    if (nodes.played) {
        setNodeRect(nodes.played, nodeRect(layout.played));
        setNodeRect(nodes.remainder, nodeRect(layout.remainder));
    }
    if (nodes.playIcon)
        placeImageNode(nodes.playIcon, layout.playIcon);
    if (nodes.status)
        placeImageNode(nodes.status, nodes.reminderBar ? layout.status : layout.notice);
    if (nodes.reminderBar) {
        setNodeRect(nodes.reminderBar, nodeRect(layout.reminderBar));
        placeImageNode(nodes.reminderAction, layout.reminderAction);
        placeImageNode(nodes.startsAt, layout.startsAt);
        placeImageNode(nodes.reminderIcon, layout.reminderIcon);
    }
}

void StbEpgViewDelegateFocusedPrivate::updateExtendedNodes(const Style &style, QSGNode *lastBaseNode)
{
    ChildNodes children(lastBaseNode->parent(), lastBaseNode);
    ChildNodes parts(updateCard(children, style));
    CardNodes nodes;
    updatePlayNodes(parts, style, nodes);
    updateStatusNode(parts, style, nodes);
    updateReminderNodes(parts, style, nodes);
    placeCardNodes(style, nodes);
}
