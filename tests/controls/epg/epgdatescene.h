// SPDX-License-Identifier: MIT
#ifndef STBTEST_EPGDATESCENE_H
#define STBTEST_EPGDATESCENE_H

#include "epgstyles.h"
#include "testkit/nodes.h"
#include "testkit/stage.h"

#include <controls/epg/stbepgdate_p.h>

#include <QtCore/qlocale.h>

/*! A default locale, in force as long as it lives. */
class DefaultLocale
{
public:
    explicit DefaultLocale(const QLocale &locale) { QLocale::setDefault(locale); }
    ~DefaultLocale() { QLocale::setDefault(m_previous); }
    Q_DISABLE_COPY_MOVE(DefaultLocale)

private:
    const QLocale m_previous;
};

/*! A \a Stage with one cell at 20, 30 on a coloured ground. The cell has a size and nothing else. */
template <typename Stage>
struct EpgDateScene
{
    EpgDateScene()
    {
        style.setStyle(oddEpgDateStyle());
        other.setStyle(otherEpgDateStyle());
        cell.setParentItem(stage.contentItem());
        cell.setPosition(QPointF(20, 30));
        cell.setSize(QSizeF(151, 71));
    }
    void fill(const QDate &date = QDate(2026, 3, 15))
    {
        cell.setStyle(&style);
        cell.setDate(date);
    }

    Stage stage { QSize(200, 130), QColor(0, 60, 40) };
    design_system::PlayerEpgDateQmlStyle style; // odd
    design_system::PlayerEpgDateQmlStyle other;
    StbEpgDate cell;
};

/*! The same with an offscreen stage. */
struct OffscreenEpgDateScene : EpgDateScene<stbtest::Stage>
{
    void fillAndPaint(const QDate &date = QDate(2026, 3, 15))
    {
        fill(date);
        stage.renderFrame();
    }
    StbEpgDatePrivate *d() { return static_cast<StbEpgDatePrivate *>(QQuickItemPrivate::get(&cell)); }
    QList<stbtest::NodeInfo> children() { return stbtest::childNodes(stbtest::paintNode(&cell)); }
    static QRect onStage(const stbtest::NodeInfo &node) { return node.rect.toRect().translated(20, 30); }
};

#endif // STBTEST_EPGDATESCENE_H
