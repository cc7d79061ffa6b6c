// SPDX-License-Identifier: MIT
#include "screens/searchcontroller.h"

#include "gallery/data/clock.h"
#include "screens/marks.h"
#include "screens/remotekey.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qelapsedtimer.h>
#include <QtCore/qhash.h>
#include <QtCore/qlocale.h>

#include <algorithm>

namespace gallery {

namespace {

// Programmes between two looks at the time.
constexpr int programmesAtOnce = 1000;

bool isSame(const MediaItem &a, const MediaItem &b)
{
    return a.id == b.id && a.start == b.start && a.title == b.title;
}

} // namespace

SearchController::SearchController(Clock *clock, Marks *favourites, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
    , m_favourites(favourites)
    , m_results(favourites)
{
    m_work.setSingleShot(true);
    m_work.setInterval(0);
    connect(&m_work, &QTimer::timeout, this, &SearchController::work);
    connect(m_clock, &Clock::nowChanged, this, &SearchController::search);
    for (const auto change : { &SearchController::selectionChanged, &SearchController::resultsChanged,
                               &SearchController::layoutChanged, &SearchController::mirroredChanged })
        connect(this, change, this, &SearchController::waysChanged);
}

void SearchController::setGuide(const Guide &guide)
{
    m_index = TitleIndex(guide);
    search();
}

void SearchController::setCatalogue(const Catalogue &catalogue)
{
    m_catalogue = catalogue;
    m_videoTitles.clear();
    search();
}

void SearchController::start()
{
    m_keyboardKey = -1;
    m_keyboardShift = false;
    m_keyboardCapsLock = false;
    m_keyboardSymbols = false;
    m_keyboardLanguage.clear();
    m_startingKeyboard = true;
    Q_EMIT keyboardChanged();
    m_startingKeyboard = false;
    change({}, 0);
    setInResults(false);
    // A long guide is read while the first letter is being chosen.
    m_work.start();
}

// --- text -----------------------------------------------------------------------------------------------

void SearchController::setText(const QString &text)
{
    const QString bounded = text.left(maximumLength());
    if (bounded == m_text)
        return;
    m_text = bounded;
    Q_EMIT textChanged();
    searchAnew();
}

void SearchController::setCursor(int cursor)
{
    // The view may tell of it before it tells of the text.
    if (m_changing || cursor == m_cursor)
        return;
    m_cursor = cursor;
    Q_EMIT cursorChanged();
}

void SearchController::insert(const QString &text)
{
    const QString inserted = text.left(maximumLength() - m_text.size());
    const int place = std::clamp(m_cursor, 0, int(m_text.size()));
    QString changed = m_text;
    changed.insert(place, inserted);
    change(changed, place + int(inserted.size()));
    setInResults(false);
}

void SearchController::change(const QString &text, int cursor)
{
    m_changing = true;
    m_text = text;
    m_cursor = cursor;
    Q_EMIT textChanged();
    m_changing = false;
    Q_EMIT cursorChanged();
    searchAnew();
}

QString SearchController::keyboardLanguage() const
{
    return m_keyboardLocale == QLocale().name() ? m_keyboardLanguage : QString();
}

void SearchController::setKeyboardLanguage(const QString &language)
{
    if (language == keyboardLanguage())
        return;
    m_keyboardLanguage = language;
    m_keyboardLocale = QLocale().name();
    Q_EMIT keyboardChanged();
}

void SearchController::keepKeyboard(const QString &language, bool shift, bool capsLock, bool symbols)
{
    // While it takes over a start, it tells of what it has not taken over yet.
    if (m_startingKeyboard)
        return;
    if (language == keyboardLanguage() && shift == m_keyboardShift && capsLock == m_keyboardCapsLock
        && symbols == m_keyboardSymbols)
        return;
    m_keyboardShift = shift;
    m_keyboardCapsLock = capsLock;
    m_keyboardSymbols = symbols;
    m_keyboardLanguage = language;
    m_keyboardLocale = QLocale().name();
    Q_EMIT keyboardChanged();
}

// --- search ---------------------------------------------------------------------------------------------

void SearchController::searchAnew()
{
    m_otherWords = true;
    search();
}

void SearchController::search()
{
    m_words = searchWords(m_text);
    m_searching = !m_words.isEmpty();
    if (!m_searching) {
        showResults();
        return;
    }
    m_search.start(m_words, m_clock->now().toSecsSinceEpoch());
    work();
    if (m_searching)
        Q_EMIT resultsChanged();
}

void SearchController::work()
{
    QElapsedTimer timer;
    timer.start();
    bool done = false;
    while (!done && timer.elapsed() < sliceTime) {
        if (m_searching)
            done = m_search.step(m_index, programmesAtOnce);
        else
            m_index.read(programmesAtOnce);
        done = done || (!m_searching && m_index.isComplete());
    }
    if (!done) {
        m_work.start();
        return;
    }
    m_work.stop();
    if (m_searching) {
        m_searching = false;
        showResults();
    }
}

QList<int> SearchController::videos(TextMatch match) const
{
    QList<int> entries;
    for (int i = 0; i < m_catalogue.count(); ++i) {
        if (m_catalogue.entry(i).kind != CatalogueEntry::Kind::Episode
            && matchOf(m_videoTitles.at(i), m_words) == match)
            entries.append(i);
    }
    return entries;
}

QList<MediaItem> SearchController::found() const
{
    QList<MediaItem> items;
    if (m_words.isEmpty())
        return items;
    int left = videoLimit;
    for (const TextMatch match : { TextMatch::WordStart, TextMatch::Inside }) {
        const auto addProgrammes = [&](bool over) {
            for (const ProgrammeSearch::Hit &hit : m_search.hits()) {
                if (hit.match == match && (hit.time == ProgrammeSearch::Time::Over) == over)
                    items.append(programmeItem(m_index.guide(), hit.place.channel, hit.place.programme,
                                               m_clock->now()));
            }
        };
        addProgrammes(false);
        for (const int entry : videos(match)) {
            if (left-- > 0)
                items.append(catalogueItem(m_catalogue, entry));
        }
        addProgrammes(true);
    }
    return items;
}

void SearchController::showResults()
{
    if (m_videoTitles.isEmpty()) {
        for (int i = 0; i < m_catalogue.count(); ++i)
            m_videoTitles.append(foldedText(m_catalogue.entry(i).title));
    }
    const MediaItem before = item() == nullptr ? MediaItem() : *item();
    const QList<MediaItem> items = found();
    m_results.setItems(items);
    const auto same = std::find_if(items.cbegin(), items.cend(),
                                   [&before](const MediaItem &item) { return isSame(item, before); });
    int row = m_otherWords ? 0 : m_row;
    if (!m_otherWords && same != items.cend())
        row = int(same - items.cbegin());
    m_otherWords = false;
    m_inResults = m_inResults && !items.isEmpty();
    // A view forgets its current item when the model is reset: it is told again, changed or not.
    chooseResult(row);
    Q_EMIT resultsChanged();
}

QString SearchController::message() const
{
    if (m_words.isEmpty())
        return QCoreApplication::translate("SearchScreen", "Type the name of a programme, a film or a series");
    if (m_results.count() > 0)
        return {};
    if (m_searching)
        return QCoreApplication::translate("SearchScreen", "Searching…");
    //: %1 is what the viewer has typed
    return QCoreApplication::translate("SearchScreen", "Nothing found for “%1”").arg(m_text.simplified());
}

// --- keys -----------------------------------------------------------------------------------------------

bool SearchController::press(int key, const QString &text, int modifiers)
{
    setNotice({});
    if (isBackKey(key)) {
        if (m_inResults)
            setInResults(false);
        else
            Q_EMIT leaveRequested();
        return true;
    }
    constexpr int commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (!text.isEmpty() && text.at(0).isPrint() && (modifiers & commands) == 0) {
        insert(text);
        return true;
    }
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        insert(QString::number(key - Qt::Key_0));
        return true;
    }
    return m_inResults ? pressInResults(key) : pressOnKeyboard(key);
}

bool SearchController::pressOnKeyboard(int key)
{
    const bool leadsThere = key == Qt::Key_Down || (!m_resultsBelow && readingStep(key, m_mirrored) == 1)
                            || key == Qt::Key_PageDown || channelStep(key) < 0;
    if (leadsThere)
        setInResults(true);
    return leadsThere || isSelectKey(key) || isArrowKey(key);
}

bool SearchController::pressInResults(int key)
{
    const int meant = remoteKey(key);
    if (isSelectKey(key) || meant == Qt::Key_Info)
        Q_EMIT itemOpened();
    else if (meant == Qt::Key_Yellow)
        m_favourites->toggle(item()->id);
    else if (isPlayPauseKey(key))
        play();
    else if (channelStep(key) != 0)
        setInResults(channelStep(key) < 0);
    else
        return moveInResults(key);
    return true;
}

// As in the guide; what is not on yet, and a film, has a page that tells what can be done with it.
void SearchController::play()
{
    const bool hasBegun = isOfChannel() && item()->position >= 0;
    if (hasBegun)
        Q_EMIT watchRequested();
    else
        Q_EMIT itemOpened();
}

void SearchController::refuse()
{
    setNotice(lockedText());
}

void SearchController::setNotice(const QString &notice)
{
    if (notice == m_notice)
        return;
    m_notice = notice;
    Q_EMIT noticeChanged();
}

bool SearchController::moveInResults(int key)
{
    const int column = m_row % m_columns;
    if (const int step = readingStep(key, m_mirrored)) {
        if (column + step < 0 && !m_resultsBelow)
            setInResults(false);
        else if (column + step >= 0 && column + step < m_columns)
            chooseResult(m_row + step);
        return true;
    }
    if (key == Qt::Key_Home || key == Qt::Key_End) {
        chooseResult(key == Qt::Key_Home ? 0 : m_results.count() - 1);
        return true;
    }
    return moveByLines(key);
}

bool SearchController::moveByLines(int key)
{
    static const QHash<int, std::pair<int, bool>> steps { { Qt::Key_Up, { -1, false } },
                                                          { Qt::Key_Down, { 1, false } },
                                                          { Qt::Key_PageUp, { -1, true } },
                                                          { Qt::Key_PageDown, { 1, true } } };
    const auto step = steps.constFind(key);
    if (step == steps.cend())
        return false;
    const auto [direction, byPage] = *step;
    const int line = m_row / m_columns;
    const int lastLine = (m_results.count() - 1) / m_columns;
    if (line == 0 && direction < 0 && (byPage || m_resultsBelow))
        setInResults(false);
    const int next = std::clamp(line + direction * (byPage ? m_lines : 1), 0, lastLine);
    chooseResult(next * m_columns + m_row % m_columns);
    return true;
}

// The nearest result that there is.
void SearchController::chooseResult(int row)
{
    m_row = std::clamp(row, std::min(0, m_results.count() - 1), m_results.count() - 1);
    scroll();
}

void SearchController::setInResults(bool inResults)
{
    m_inResults = inResults && m_results.count() > 0;
    Q_EMIT selectionChanged();
}

void SearchController::scroll()
{
    // No empty line behind the last one, and the chosen result in sight.
    const int line = std::max(0, m_row) / m_columns;
    const int count = (m_results.count() + m_columns - 1) / m_columns;
    m_firstLine = std::clamp(m_firstLine, 0, std::max(0, count - m_lines));
    m_firstLine = std::clamp(m_firstLine, std::max(0, line - m_lines + 1), line);
    Q_EMIT selectionChanged();
}

// --- layout ---------------------------------------------------------------------------------------------

void SearchController::setColumns(int columns)
{
    columns = std::max(1, columns);
    if (columns == m_columns)
        return;
    m_columns = columns;
    scroll();
    Q_EMIT layoutChanged();
}

void SearchController::setLines(int lines)
{
    lines = std::max(1, lines);
    if (lines == m_lines)
        return;
    m_lines = lines;
    scroll();
    Q_EMIT layoutChanged();
}

void SearchController::setResultsBelow(bool below)
{
    if (below == m_resultsBelow)
        return;
    m_resultsBelow = below;
    Q_EMIT layoutChanged();
}

int SearchController::openEdges() const
{
    if (m_results.count() == 0)
        return 0;
    const int side = m_mirrored ? Qt::LeftEdge : Qt::RightEdge;
    return m_resultsBelow ? int(Qt::BottomEdge) : Qt::BottomEdge | side;
}

void SearchController::setKeyEdges(int edges)
{
    if (edges == m_keyEdges)
        return;
    m_keyEdges = edges;
    Q_EMIT waysChanged();
}

QString SearchController::resultsArrow() const
{
    const int ways = m_inResults ? 0 : openEdges() & m_keyEdges;
    // Where there are two, the one that leads to where the results are.
    if (ways & Qt::RightEdge)
        return QStringLiteral("▶");
    if (ways & Qt::LeftEdge)
        return QStringLiteral("◀");
    return ways & Qt::BottomEdge ? QStringLiteral("▼") : QString();
}

void SearchController::setMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    Q_EMIT mirroredChanged();
}

} // namespace gallery
