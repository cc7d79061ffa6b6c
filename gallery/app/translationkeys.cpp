// SPDX-License-Identifier: MIT
#include <QtCore/qcoreapplication.h>

// The words that the controls look up at run time. They stand here for lupdate, which finds no call that
// names them, so that the catalogues keep them.
namespace {

[[maybe_unused]] constexpr const char *controlKeys[] {
    //: Label on a programme that is on air
    QT_TRANSLATE_NOOP("QObject", "NOW_IN_LIVE"),
    //: Status of a programme that cannot be watched
    QT_TRANSLATE_NOOP("QObject", "WATCH_UNAVAILABLE"),
    //: Status of a programme that is to come
    QT_TRANSLATE_NOOP("QObject", "LIVE_SOON"),
    //: Action: be reminded of a programme
    QT_TRANSLATE_NOOP("QObject", "ADD_REMINDER"),
    //: Action: no longer be reminded of a programme
    QT_TRANSLATE_NOOP("QObject", "DELETE_REMINDER"),
    //: On the channel that plays now
    QT_TRANSLATE_NOOP("QObject", "PLAYING"),
    //: Status: a reminder is set for this programme
    QT_TRANSLATE_NOOP("stbui::EpgListModel", "REMINDER_WAS_SET"),
    //: Before the time at which a programme starts: "At 20:05"
    QT_TRANSLATE_NOOP("stbui::EpgListModel", "ON"),
    //: Status: this programme plays now
    QT_TRANSLATE_NOOP("stbui::EpgListModel", "PLAYING"),
    // What the controls say where nobody gave them a word, the on-screen keyboard and the views.
    QT_TRANSLATE_NOOP("BusyIndicator", "Please wait"),
    QT_TRANSLATE_NOOP("CircleProgressBar", "Progress"),
    QT_TRANSLATE_NOOP("LineEdit", "Text field"),
    QT_TRANSLATE_NOOP("Keyboard", "Keyboard"),
    QT_TRANSLATE_NOOP("ScrollBar", "Scroll bar"),
    QT_TRANSLATE_NOOP("ScrolledGridView", "Grid"),
    QT_TRANSLATE_NOOP("ScrolledListView", "List"),
    //: On a key of the on-screen keyboard
    QT_TRANSLATE_NOOP("stbgeneric::KeyboardPad", "Space"),
    //: A key of the on-screen keyboard
    QT_TRANSLATE_NOOP("stbgeneric::KeyboardPad", "Backspace"),
    QT_TRANSLATE_NOOP("stbgeneric::KeyboardPad", "Cursor left"),
    QT_TRANSLATE_NOOP("stbgeneric::KeyboardPad", "Cursor right"),
    //: On a key of the on-screen keyboard
    QT_TRANSLATE_NOOP("stbgeneric::KeyboardPad", "Shift"),
    QT_TRANSLATE_NOOP("stbgeneric::KeyboardPad", "Caps lock"),
    QT_TRANSLATE_NOOP("stbgeneric::KeyboardPad", "Letters"),
    QT_TRANSLATE_NOOP("stbgeneric::KeyboardPad", "Symbols"),
    QT_TRANSLATE_NOOP("stbgeneric::KeyboardPad", "Language: %1"),
};

} // namespace
