// SPDX-License-Identifier: MIT
#include "renderedfocus.h"

#include "accessibletree.h"
#include "gallerywindow.h"
#include "testkit/contrast.h"
#include "testkit/pictures.h"

#include <QtGui/qevent.h>
#include <QtQuick/qquickitem.h>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int noticed = 6; // of 255, in one channel
constexpr int reach = 3; // pixels

using Undo = std::function<void()>;

void sendFocus(QQuickWindow *window, QEvent::Type type)
{
    QFocusEvent event(type, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(window, &event);
}

// A value that C++ sets leaves the binding in force.
Undo takeProperty(QQuickItem *item, const char *name, const QVariant &value)
{
    const QVariant before = item->property(name);
    item->setProperty(name, value);
    return [item, name, before] { item->setProperty(name, before); };
}

std::vector<Undo> takeFocus(QQuickWindow *window)
{
    std::vector<Undo> undo;
    const QList<QQuickItem *> items = visibleItems(window);
    for (QQuickItem *item : items) {
        if (QStringList { u"focusPlate"_s, u"buttonPlate"_s, u"focusFrame"_s }.contains(item->objectName()))
            undo.push_back(takeProperty(item, "opacity", 0));
        else if (item->state() == "focused"_L1)
            undo.push_back(takeProperty(item, "state",
                                        item->property("checked").toBool() ? u"checked"_s : u"normal"_s));
        else if (item->inherits("StbButton") && item->property("focused").toBool())
            undo.push_back(takeProperty(item, "focused", false));
    }
    sendFocus(window, QEvent::FocusOut);
    undo.emplace_back([window] { sendFocus(window, QEvent::FocusIn); });
    return undo;
}

/*! For each pixel of two pictures: what differs, and what is outside of all that differs. */
class Difference
{
public:
    Difference(const QImage &a, const QImage &b)
        : m_size(a.size())
        , m_kinds(size_t(a.width()) * size_t(a.height()), Kind::Same)
    {
        for (int row = 0; row < a.height(); ++row) {
            for (int column = 0; column < a.width(); ++column) {
                if (differ(a.pixel(column, row), b.pixel(column, row)))
                    at(column, row) = Kind::Differs;
            }
        }
        floodOutside();
    }

    bool differs(int column, int row) const { return isKind(column, row, Kind::Differs); }
    bool isOutside(int column, int row) const { return isKind(column, row, Kind::Outside); }

private:
    enum class Kind : char { Same, Differs, Outside };

    static bool differ(QRgb a, QRgb b)
    {
        return std::abs(qRed(a) - qRed(b)) > noticed || std::abs(qGreen(a) - qGreen(b)) > noticed
               || std::abs(qBlue(a) - qBlue(b)) > noticed;
    }
    Kind &at(int column, int row) { return m_kinds[size_t(row) * size_t(m_size.width()) + size_t(column)]; }
    bool isKind(int column, int row, Kind kind) const
    {
        return QRect(QPoint(), m_size).contains(column, row)
               && m_kinds[size_t(row) * size_t(m_size.width()) + size_t(column)] == kind;
    }
    void floodOutside()
    {
        std::vector<QPoint> stack;
        for (int column = 0; column < m_size.width(); ++column)
            stack.insert(stack.end(), { { column, 0 }, { column, m_size.height() - 1 } });
        for (int row = 0; row < m_size.height(); ++row)
            stack.insert(stack.end(), { { 0, row }, { m_size.width() - 1, row } });
        while (!stack.empty()) {
            const QPoint point = stack.back();
            stack.pop_back();
            if (!isKind(point.x(), point.y(), Kind::Same))
                continue;
            at(point.x(), point.y()) = Kind::Outside;
            for (const QPoint &next : { QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1) })
                stack.push_back(point + next);
        }
    }

    const QSize m_size;
    std::vector<Kind> m_kinds;
};

// The best contrast of the pixel at \a column, \a row to one nearby that shows the focus; none if it is not beside one.
std::optional<double> contrastAround(const QImage &picture, const Difference &difference, int column, int row)
{
    bool isBeside = false;
    for (const QPoint &step : { QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1) })
        isBeside = isBeside || difference.differs(column + step.x(), row + step.y());
    if (!isBeside)
        return {};
    const QColor own = QColor::fromRgb(picture.pixel(column, row));
    double best = 1;
    for (int dy = -reach; dy <= reach; ++dy) {
        for (int dx = -reach; dx <= reach; ++dx) {
            if (difference.differs(column + dx, row + dy))
                best = std::max(best,
                                stbtest::contrast(own, QColor::fromRgb(picture.pixel(column + dx, row + dy))));
        }
    }
    return best;
}

} // namespace

std::optional<double> focusContrast(const QImage &focused, const QImage &unfocused)
{
    const QRect bounds = stbtest::comparePictures(focused, unfocused, noticed).bounds;
    if (bounds.isEmpty())
        return {};
    const QRect around = bounds.adjusted(-reach, -reach, reach, reach) & focused.rect();
    const QImage picture = focused.copy(around);
    const Difference difference(picture, unfocused.copy(around));
    double smallest = 21;
    for (int row = 0; row < picture.height(); ++row) {
        for (int column = 0; column < picture.width(); ++column) {
            if (!difference.isOutside(column, row))
                continue;
            if (const std::optional<double> best = contrastAround(picture, difference, column, row))
                smallest = std::min(smallest, *best);
        }
    }
    return smallest;
}

std::optional<double> focusContrast(GalleryWindow &window)
{
    const QImage focused = window.picture();
    const std::vector<Undo> undo = takeFocus(window.window());
    window.settle();
    const QImage unfocused = window.window()->grabWindow();
    for (const Undo &step : undo)
        step();
    window.settle();
    if (const QString change = window.changeFrom(focused); !change.isEmpty())
        qWarning("The focus is not what it was before: %s", qPrintable(change));
    return focusContrast(focused, unfocused);
}
