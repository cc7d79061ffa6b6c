// SPDX-License-Identifier: MIT
#include "gallerywindow.h"
#include "testkit/testcase.h"

#include <QtCore/qmath.h>
#include <QtQuick/qquickitem.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double largest = 1.5;

/*! A text or a button that is seen, and where. */
struct Part
{
    QString what;
    QRectF place; // on the screen, as far as it is seen
    bool scrolls = false; // sideways or up and down, with others
    bool isCut = false; // sideways, by what it lies in
};

// Where the lines of the text \a item are painted.
QRectF linesOf(const QQuickItem *item)
{
    const QSizeF lines(item->property("contentWidth").toReal(), item->property("contentHeight").toReal());
    const QRectF room = QRectF(0, 0, item->width(), item->height())
                                .adjusted(item->property("leftPadding").toReal(),
                                          item->property("topPadding").toReal(),
                                          -item->property("rightPadding").toReal(),
                                          -item->property("bottomPadding").toReal());
    const auto across = Qt::Alignment(item->property("effectiveHorizontalAlignment").toInt());
    const auto down = Qt::Alignment(item->property("verticalAlignment").toInt());
    QPointF begin = room.topLeft();
    if (across.testFlag(Qt::AlignRight))
        begin.rx() += room.width() - lines.width();
    else if (across.testFlag(Qt::AlignHCenter))
        begin.rx() += (room.width() - lines.width()) / 2;
    if (down.testFlag(Qt::AlignBottom))
        begin.ry() += room.height() - lines.height();
    else if (down.testFlag(Qt::AlignVCenter))
        begin.ry() += (room.height() - lines.height()) / 2;
    return item->mapRectToScene(QRectF(begin, lines));
}

bool isText(const QQuickItem *item)
{
    return item->inherits("QQuickText") && !item->property("text").toString().isEmpty();
}

class Parts
{
public:
    explicit Parts(GalleryWindow &window)
        : m_screen(0, 0, window.window()->width(), window.window()->height())
    {
        const QQuickItem *all = window.window()->contentItem();
        const QQuickItem *over = visibleItem(all, "details");
        // What is below lies under a veil.
        collect(over != nullptr ? over : all, m_screen, false);
    }

    QStringList problems() const
    {
        const QRectF safe = m_screen.adjusted(m_screen.width() / 20 - 1, m_screen.height() / 20 - 1,
                                              1 - m_screen.width() / 20, 1 - m_screen.height() / 20);
        QStringList result;
        for (const Part &part : m_parts) {
            if (part.isCut)
                result.append(part.what + " is cut off"_L1);
            if (!part.scrolls && !safe.contains(part.place))
                result.append(part.what + " is too near to an edge: "_L1 + placeOf(part));
        }
        for (auto one = m_parts.cbegin(); one != m_parts.cend(); ++one) {
            for (auto other = one + 1; other != m_parts.cend(); ++other) {
                const QRectF common = one->place & other->place;
                // Lines have some room above and below their letters.
                if (common.width() > 2
                    && common.height() > 0.2 * std::min(one->place.height(), other->place.height()))
                    result.append(one->what + " and "_L1 + other->what + " lie over each other"_L1);
            }
        }
        return result;
    }

    qsizetype count() const { return m_parts.size(); }

private:
    static QString placeOf(const Part &part)
    {
        return u"%1, %2, %3 x %4"_s.arg(part.place.x())
                .arg(part.place.y())
                .arg(part.place.width())
                .arg(part.place.height());
    }

    static const QQuickItem *visibleItem(const QQuickItem *item, const char *name)
    {
        if (!item->isVisible())
            return nullptr;
        if (item->objectName() == QLatin1StringView(name))
            return item;
        const QList<QQuickItem *> children = item->childItems();
        for (const QQuickItem *child : children) {
            if (const QQuickItem *found = visibleItem(child, name))
                return found;
        }
        return nullptr;
    }

    void collect(const QQuickItem *item, const QRectF &seen, bool scrolls)
    {
        if (!item->isVisible() || item->opacity() <= 0)
            return;
        if (isText(item)) {
            add(u'"' + item->property("text").toString().left(30) + u'"', linesOf(item), seen, scrolls);
        } else if (item->inherits("StbButton")) {
            add("the button \""_L1 + item->property("titleText").toString() + u'"',
                item->mapRectToScene(QRectF(0, 0, item->width(), item->height())), seen, scrolls);
            return;
        }
        const QRectF room = item->clip() ? seen & item->mapRectToScene(item->clipRect()) : seen;
        const bool moves = scrolls || item->clip() || item->inherits("QQuickFlickable");
        const QList<QQuickItem *> children = item->childItems();
        for (const QQuickItem *child : children)
            collect(child, room, moves);
    }

    void add(const QString &what, const QRectF &place, const QRectF &seen, bool scrolls)
    {
        const QRectF part = place & seen;
        // Of what is scrolled away, or about to, only what is seen as a whole counts.
        if (part.isEmpty() || (scrolls && part.height() < place.height() - 1))
            return;
        m_parts.append({ what, part, scrolls, !scrolls && part.width() < place.width() - 1 });
    }

    QRectF m_screen;
    QList<Part> m_parts;
};

QList<QList<Qt::Key>> walks(const QString &screen)
{
    static const QMap<QString, QList<QList<Qt::Key>>> further {
        { "home", { { Qt::Key_Down }, { Qt::Key_Down, Qt::Key_Down }, { Qt::Key_Up } } },
        { "series", { { Qt::Key_Down }, { Qt::Key_Up, Qt::Key_Up, Qt::Key_Up } } },
        { "guide", { { Qt::Key_Down }, { Qt::Key_Info }, { Qt::Key_Home, Qt::Key_Up } } },
        { "channels", { { Qt::Key_Down }, { Qt::Key_Right } } },
        { "player", { { Qt::Key_Left }, { Qt::Key_Return } } },
        { "settings", { { Qt::Key_Right }, { Qt::Key_End, Qt::Key_Return, Qt::Key_End } } },
    };
    return QList<QList<Qt::Key>> { {} } + further.value(screen, { { Qt::Key_Down }, { Qt::Key_Return } });
}

} // namespace

/*! The screens with the largest texts that can be chosen. */
class tst_LargeTexts : public stbtest::TestCase
{
    Q_OBJECT

    GalleryWindow &shown(const QString &resolution, const QString &language)
    {
        if (m_window && m_look == resolution + language)
            return *m_window;
        m_window.reset();
        m_window = std::make_unique<GalleryWindow>(WindowLook { {}, resolution, language, largest });
        m_window->showOwnContent();
        m_look = resolution + language;
        return *m_window;
    }

    std::unique_ptr<GalleryWindow> m_window;
    QString m_look;

private Q_SLOTS:
    void cleanupTestCase() { m_window.reset(); }

    void nothingIsCutOffAndNothingOverlaps_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("screen");
        const QStringList screens = gallery::ShellController::screenNames();
        for (const QString resolution : { "hd", "sd" }) {
            for (const QString language : { "en", "ru", "de", "ar" }) {
                for (const QString &screen : screens) {
                    QTest::addRow("%s %s %s", qPrintable(resolution), qPrintable(language), qPrintable(screen))
                            << resolution << language << screen;
                }
            }
        }
    }
    void nothingIsCutOffAndNothingOverlaps()
    {
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        QFETCH(QString, screen);
        GalleryWindow &window = shown(resolution, language);
        QStringList problems;
        const QList<QList<Qt::Key>> all = walks(screen);
        for (const QList<Qt::Key> &keys : all) {
            window.start(screen, keys);
            const Parts parts(window);
            QVERIFY2(parts.count() > 3 || screen == "player"_L1, "hardly anything is seen");
            const QStringList found = parts.problems();
            for (const QString &problem : found)
                problems.append(keyNames(keys) + u": "_s + problem);
        }
        QVERIFY2(problems.isEmpty(), qPrintable(problems.mid(0, 12).join(u'\n')));
    }
};

STB_TEST_MAIN(tst_LargeTexts)
#include "tst_largetexts.moc"
