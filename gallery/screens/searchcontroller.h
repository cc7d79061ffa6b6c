// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_SEARCHCONTROLLER_H
#define GALLERY_SCREENS_SEARCHCONTROLLER_H

#include "gallery/data/catalogue.h"
#include "gallery/data/programmesearch.h"
#include "screens/tilemodel.h"

#include <QtCore/qtimer.h>
#include <QtQml/qqmlregistration.h>

namespace gallery {

class Clock;

/*!
    The search: a line of text that an on-screen keyboard or a real one types, and what is found for it among the
    programmes of the guide and the films and series of the catalogue, as one types. QML shows the properties; keys that
    the on-screen keyboard does not use go to press().

    What is found comes with the next look at the results; a guide so long that this takes a while is looked through
    between keys.
*/
class SearchController : public QObject
{
    Q_OBJECT
    /*! What is searched for, of a longer text only its beginning, and the place of the cursor in it. */
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(int cursor READ cursor WRITE setCursor NOTIFY cursorChanged)
    /*! The most characters that the text may have. */
    Q_PROPERTY(int maximumLength READ maximumLength CONSTANT)

    /*! What is found, a TileModel: the best first. */
    Q_PROPERTY(QAbstractItemModel *results READ results CONSTANT)
    /*! The chosen result; -1 without any. */
    Q_PROPERTY(int resultRow READ resultRow NOTIFY selectionChanged)
    /*! Whether keys act on the results; else on the keyboard. */
    Q_PROPERTY(bool inResults READ isInResults NOTIFY selectionChanged)
    /*! The first line of results that is in sight: no line further than it must be to show the chosen result. */
    Q_PROPERTY(int firstLine READ firstLine NOTIFY selectionChanged)
    /*! The chosen result's title, and what is known of it: "2021 · Drama · 1 h 48 min". */
    Q_PROPERTY(QString title READ title NOTIFY selectionChanged)
    Q_PROPERTY(QString facts READ facts NOTIFY selectionChanged)
    /*! Whether the chosen result is something of a channel, so that its channel is what is made a favourite. */
    Q_PROPERTY(bool ofChannel READ isOfChannel NOTIFY selectionChanged)
    /*! What is told until the next key: that the channel is not played because it is locked; else empty. */
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    /*! What stands in the place of results when there are none. */
    Q_PROPERTY(QString message READ message NOTIFY resultsChanged)
    /*! What is looked for has not all been looked at yet. */
    Q_PROPERTY(bool searching READ isSearching NOTIFY resultsChanged)

    /*! How many results stand side by side, and how many lines of them are in sight; at least 1. The view knows. */
    Q_PROPERTY(int columns READ columns WRITE setColumns NOTIFY layoutChanged)
    Q_PROPERTY(int lines READ lines WRITE setLines NOTIFY layoutChanged)
    /*! Whether the results are below the keyboard; else they are beside it, where reading goes on. */
    Q_PROPERTY(bool resultsBelow READ isResultsBelow WRITE setResultsBelow NOTIFY layoutChanged)

    /*!
        The edges of the on-screen keyboard beyond which an arrow leads to the results, and those that its current key
        is at (it tells them): Qt.RightEdge and so on. Without results no arrow leads there.
    */
    Q_PROPERTY(int openEdges READ openEdges NOTIFY waysChanged)
    Q_PROPERTY(int keyEdges READ keyEdges WRITE setKeyEdges NOTIFY waysChanged)
    /*! The arrow that leads from the current key to the results, as a sign; empty where none does. */
    Q_PROPERTY(QString resultsArrow READ resultsArrow NOTIFY waysChanged)
    /*! The state of the on-screen keyboard, kept here while it comes and goes. Key: -1 for the first letter. */
    Q_PROPERTY(int keyboardKey MEMBER m_keyboardKey NOTIFY keyboardChanged)
    Q_PROPERTY(bool keyboardShift MEMBER m_keyboardShift NOTIFY keyboardChanged)
    Q_PROPERTY(bool keyboardCapsLock MEMBER m_keyboardCapsLock NOTIFY keyboardChanged)
    Q_PROPERTY(bool keyboardSymbols MEMBER m_keyboardSymbols NOTIFY keyboardChanged)
    /*! The language of its letters; empty for that of the program, which it is again when that has changed. */
    Q_PROPERTY(QString keyboardLanguage READ keyboardLanguage WRITE setKeyboardLanguage NOTIFY keyboardChanged)

    /*! Whether the screen is laid out from right to left: the results are at the left of the keyboard then. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The shell has it.")
public:
    /*! As many films and series are found at most. */
    static constexpr int videoLimit = 20;
    /*! Looking through a long guide stops after this many milliseconds to let keys and pictures through. */
    static constexpr int sliceTime = 8;

    /*! \a clock and \a favourites outlive this object. */
    SearchController(Clock *clock, Marks *favourites, QObject *parent = nullptr);

    void setGuide(const Guide &guide);
    void setCatalogue(const Catalogue &catalogue);
    /*! As at the start: nothing is typed, and keys act on the keyboard. */
    void start();

    QString text() const { return m_text; }
    void setText(const QString &text);
    int cursor() const { return m_cursor; }
    void setCursor(int cursor);
    static int maximumLength() { return 60; }

    QAbstractItemModel *results() { return &m_results; }
    int resultRow() const { return m_row; }
    bool isInResults() const { return m_inResults; }
    int firstLine() const { return m_firstLine; }
    QString message() const;
    bool isSearching() const { return m_searching; }
    QString title() const { return item() == nullptr ? QString() : item()->title; }
    QString facts() const { return item() == nullptr ? QString() : gallery::facts(*item()); }
    /*! The chosen result; null without any. */
    const MediaItem *item() const { return m_row < 0 ? nullptr : &m_results.items().at(m_row); }
    bool isOfChannel() const { return item() != nullptr && item()->isProgramme(); }
    QString notice() const { return m_notice; }
    /*! Tells why the chosen result's channel is not played: it is locked. Until the next key. */
    void refuse();

    int columns() const { return m_columns; }
    void setColumns(int columns);
    int lines() const { return m_lines; }
    void setLines(int lines);
    bool isResultsBelow() const { return m_resultsBelow; }
    void setResultsBelow(bool below);
    int openEdges() const;
    int keyEdges() const { return m_keyEdges; }
    void setKeyEdges(int edges);
    QString resultsArrow() const;
    QString keyboardLanguage() const;
    void setKeyboardLanguage(const QString &language);
    /*! The on-screen keyboard tells all of its state but the current key. */
    Q_INVOKABLE void keepKeyboard(const QString &language, bool shift, bool capsLock, bool symbols);
    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    /*!
        Handles a remote key that the on-screen keyboard has no use for; false when it means nothing here. \a text is
        what it types on a real keyboard while \a modifiers are held.

        From the keyboard, an arrow beyond an open edge, Page Down and Channel Down lead to the results. The arrow back
        from the first column or line, Page Up from the first line, Channel Up and Back return to the keyboard. Among the
        results arrows, Page Up, Page Down, Home and End choose one, Return and Info open it, Play plays the channel of a
        programme that has begun and opens anything else, and the yellow key makes the result, or its channel, a favourite
        or none. On the keyboard Back asks to leave. Digits and what a real keyboard types go into the text from anywhere.
    */
    Q_INVOKABLE bool press(int key, const QString &text = {}, int modifiers = Qt::NoModifier);

Q_SIGNALS:
    void textChanged();
    void cursorChanged();
    void selectionChanged();
    void resultsChanged();
    void noticeChanged();
    void layoutChanged();
    void waysChanged();
    void keyboardChanged();
    void mirroredChanged();
    /*! The chosen result is to be shown on its own. */
    void itemOpened();
    /*! The channel of the chosen result, a programme that has begun, is to be played. */
    void watchRequested();
    void leaveRequested();

private:
    bool pressOnKeyboard(int key);
    bool pressInResults(int key);
    bool moveInResults(int key);
    bool moveByLines(int key);
    void play();
    void setNotice(const QString &notice);
    void insert(const QString &text);
    void change(const QString &text, int cursor);
    void searchAnew();
    void search();
    void work();
    void showResults();
    QList<int> videos(TextMatch match) const;
    QList<MediaItem> found() const;
    void chooseResult(int row);
    void setInResults(bool inResults);
    void scroll();

    Clock *m_clock;
    Marks *m_favourites;
    Catalogue m_catalogue;
    QStringList m_videoTitles; // folded, of all entries
    TitleIndex m_index;
    ProgrammeSearch m_search;
    TileModel m_results;
    QTimer m_work;
    QStringList m_words;
    QString m_text;
    int m_cursor = 0;
    bool m_changing = false; // the text and the cursor go together: a view tells of a cursor between them
    int m_row = -1;
    int m_firstLine = 0;
    int m_columns = 1;
    int m_lines = 1;
    bool m_resultsBelow = false;
    bool m_inResults = false;
    bool m_searching = false;
    bool m_otherWords = false; // since the results that are shown
    QString m_notice;
    int m_keyEdges = 0;
    int m_keyboardKey = -1;
    bool m_startingKeyboard = false;
    bool m_keyboardShift = false;
    bool m_keyboardCapsLock = false;
    bool m_keyboardSymbols = false;
    QString m_keyboardLanguage;
    QString m_keyboardLocale; // the program's when the language was chosen
    bool m_mirrored = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_SEARCHCONTROLLER_H
