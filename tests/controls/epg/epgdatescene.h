// SPDX-License-Identifier: MIT
#ifndef STBTEST_EPGDATESCENE_H
#define STBTEST_EPGDATESCENE_H

#include "epgstyles.h"

#include <controls/epg/stbepgdate.h>

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

#endif // STBTEST_EPGDATESCENE_H
