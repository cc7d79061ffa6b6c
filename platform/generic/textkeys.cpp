// SPDX-License-Identifier: MIT
#include "textkeys.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qtextboundaryfinder.h>
#include <QtGui/qevent.h>

#include <algorithm>

namespace stbgeneric {

namespace {

constexpr int passwordEchoOnEdit = 3; // TextInput.PasswordEchoOnEdit; its C++ class is private

/*! \a text as it can stand in a single line. */
QString oneLine(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator
            || c == QChar::ParagraphSeparator)
            c = QLatin1Char(' ');
    }
    return text;
}

/*! How many units of text \a input still takes. */
qsizetype roomIn(const QQuickItem *input)
{
    const auto number = [input](const char *name) { return input->property(name).toInt(); };
    const QString text = input->property("text").toString();
    // Qt lets a hidden password of this kind be written anew as a whole.
    const bool beginsAnew = number("echoMode") == passwordEchoOnEdit
                            && input->property("displayText").toString() != text;
    const qsizetype kept = beginsAnew ? 0 : text.size() - (number("selectionEnd") - number("selectionStart"));
    return number("maximumLength") - kept;
}

/*! The characters at the beginning of \a text that have \a room; Qt would cut through the last one. */
QString fitting(const QString &text, qsizetype room)
{
    if (text.size() <= room)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(std::max(room, qsizetype(0)));
    if (!finder.isAtBoundary())
        finder.toPreviousBoundary();
    return text.left(finder.position());
}

void strike(QQuickItem *input, Qt::Key key)
{
    if (!input || !input->isEnabled())
        return;
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(input, &event);
}

} // namespace

void TextKeys::insert(QQuickItem *input, const QString &text) const
{
    // Qt asks an input method not to write where it may not, and takes what it writes all the same.
    if (!input || !input->isEnabled() || input->property("readOnly").toBool())
        return;
    // With a mask the length is that of the mask, whose blanks are overwritten.
    const bool hasMask = !input->property("inputMask").toString().isEmpty();
    const QString line = hasMask ? oneLine(text) : fitting(oneLine(text), roomIn(input));
    if (line.isEmpty())
        return;
    QInputMethodEvent event;
    event.setCommitString(line);
    QCoreApplication::sendEvent(input, &event);
}

void TextKeys::backspace(QQuickItem *input) const
{
    strike(input, Qt::Key_Backspace);
}

void TextKeys::left(QQuickItem *input) const
{
    strike(input, Qt::Key_Left);
}

void TextKeys::right(QQuickItem *input) const
{
    strike(input, Qt::Key_Right);
}

void TextKeys::endEditing(QQuickItem *input) const
{
    if (!input || input->hasActiveFocus())
        return;
    QFocusEvent event(QEvent::FocusOut, Qt::OtherFocusReason);
    QCoreApplication::sendEvent(input, &event);
}

bool TextKeys::runsToTheLeft(const QString &text, bool otherwise)
{
    for (const char32_t letter : text.toUcs4()) {
        switch (QChar::direction(letter)) {
        case QChar::DirL:
            return false;
        case QChar::DirR:
        case QChar::DirAL:
            return true;
        default: // a digit, a mark or a space says nothing
            break;
        }
    }
    return otherwise;
}

} // namespace stbgeneric
