// SPDX-License-Identifier: MIT
#include "screens/componentscontroller.h"

#include "screens/remotekey.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qclipboard.h>
#include <QtGui/qguiapplication.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

ComponentsController::ComponentsController(QObject *parent)
    : QObject(parent)
{
    connect(this, &ComponentsController::pageChanged, this, &ComponentsController::okTextChanged);
    connect(this, &ComponentsController::focusChanged, this, &ComponentsController::okTextChanged);
}

void ComponentsController::start()
{
    m_values.start();
    setCopied(false);
    setFocus(Pages);
    Q_EMIT pageChanged();
    Q_EMIT qmlTextChanged();
}

QStringList ComponentsController::pages() const
{
    QStringList result;
    for (const ComponentPage &page : componentPages())
        result.append(page.name);
    return result;
}

QString ComponentsController::qmlText() const
{
    return page().wholeQml(m_values.values(), m_unit);
}

QString ComponentsController::okText() const
{
    const auto translated = [](const char *text) {
        return QCoreApplication::translate("ComponentHints", text);
    };
    switch (m_area) {
    case Pages:
        return takesKeys() ? translated(QT_TRANSLATE_NOOP("ComponentHints", "Try out"))
                           : translated(QT_TRANSLATE_NOOP("ComponentHints", "Open"));
    case Preview:
        return takesKeys() && !m_entered ? translated(QT_TRANSLATE_NOOP("ComponentHints", "Use the control"))
                                         : QString();
    case Editors:
        break;
    case Line:
        return translated(QT_TRANSLATE_NOOP("ComponentHints", "Copy"));
    }
    switch (m_values.editor(m_editorRow).kind) {
    case ComponentEditor::Kind::Flag:
        return translated(QT_TRANSLATE_NOOP("ComponentHints", "Switch"));
    case ComponentEditor::Kind::Number:
        return translated(QT_TRANSLATE_NOOP("ComponentHints", "Reset"));
    default:
        return translated(QT_TRANSLATE_NOOP("ComponentHints", "Next"));
    }
}

QString ComponentsController::creationQml() const
{
    return page().qml(page().valuesOfNew(m_values.values()), m_unit);
}

void ComponentsController::setUnit(qreal unit)
{
    if (unit <= 0 || qFuzzyCompare(unit, m_unit))
        return;
    m_unit = unit;
    m_values.setUnit(unit);
    Q_EMIT unitChanged();
    Q_EMIT qmlTextChanged();
}

void ComponentsController::setRowsPerPage(int rows)
{
    rows = std::max(1, rows);
    if (rows == m_rowsPerPage)
        return;
    m_rowsPerPage = rows;
    Q_EMIT rowsPerPageChanged();
}

void ComponentsController::setMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    Q_EMIT mirroredChanged();
}

bool ComponentsController::press(int key)
{
    setCopied(false);
    // The focus is this object's; it does not go from item to item.
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
        return true;
    switch (m_area) {
    case Pages:
        return pressInPages(key);
    case Preview:
        return pressInPreview(key);
    case Editors:
        return pressInEditors(key);
    case Line:
        return pressInLine(key);
    }
    return false;
}

bool ComponentsController::pressInPages(int key)
{
    if (isBackKey(key)) {
        Q_EMIT leaveRequested();
        return true;
    }
    if (isSelectKey(key) || readingStep(key, m_mirrored) > 0) {
        setFocus(Preview);
        return true;
    }
    switch (key) {
    case Qt::Key_Up:
        choosePage(pageRow() - 1);
        return true;
    case Qt::Key_Down:
        choosePage(pageRow() + 1);
        return true;
    case Qt::Key_PageUp:
        choosePage(pageRow() - m_rowsPerPage);
        return true;
    case Qt::Key_PageDown:
        choosePage(pageRow() + m_rowsPerPage);
        return true;
    case Qt::Key_Home:
        choosePage(0);
        return true;
    case Qt::Key_End:
        choosePage(int(componentPages().size()) - 1);
        return true;
    default:
        return isArrow(key);
    }
}

bool ComponentsController::pressInPreview(int key)
{
    if (m_entered) {
        if (isBackKey(key))
            setFocus(Preview);
        // An arrow at the end of what the control shows leads nowhere.
        return isBackKey(key) || isSelectKey(key) || isArrow(key);
    }
    if (isBackKey(key) || readingStep(key, m_mirrored) < 0)
        setFocus(Pages);
    else if (key == Qt::Key_Down)
        setFocus(Editors);
    else if (isSelectKey(key))
        setFocus(Preview, 0, takesKeys());
    else
        return isArrow(key);
    return true;
}

bool ComponentsController::pressInEditors(int key)
{
    const int last = m_values.rowCount() - 1;
    const QVariant value = m_values.value(m_editorRow);
    if (isBackKey(key))
        setFocus(Pages);
    else if (isSelectKey(key))
        chooseValue(m_values.editor(m_editorRow).next(value));
    else if (const int step = readingStep(key, m_mirrored))
        chooseValue(m_values.editor(m_editorRow).neighbour(value, step));
    else if (key == Qt::Key_Up && m_editorRow == 0)
        setFocus(Preview);
    else if (key == Qt::Key_Up)
        setFocus(Editors, m_editorRow - 1);
    else if (key == Qt::Key_Down && m_editorRow == last)
        setFocus(Line);
    else if (key == Qt::Key_Down)
        setFocus(Editors, m_editorRow + 1);
    else
        return false;
    return true;
}

bool ComponentsController::pressInLine(int key)
{
    if (isBackKey(key) || readingStep(key, m_mirrored) < 0)
        setFocus(Pages);
    else if (key == Qt::Key_Up)
        setFocus(Editors, m_values.rowCount() - 1);
    else if (isSelectKey(key))
        copy();
    else
        return isArrow(key);
    return true;
}

void ComponentsController::choosePage(int row)
{
    row = std::clamp(row, 0, int(componentPages().size()) - 1);
    if (row == pageRow())
        return;
    m_values.showPage(row);
    Q_EMIT pageChanged();
    Q_EMIT qmlTextChanged();
}

void ComponentsController::chooseValue(const QVariant &value)
{
    if (!m_values.setValue(m_editorRow, value))
        return;
    Q_EMIT qmlTextChanged();
    Q_EMIT valueChosen(m_editorRow);
}

void ComponentsController::takeValue(int row, const QVariant &value)
{
    if (row < 0 || row >= m_values.rowCount())
        return;
    const ComponentEditor &editor = m_values.editor(row);
    QVariant taken = value;
    if (!editor.isFedBack || !taken.convert(editor.start.metaType()))
        return;
    if (m_values.setValue(row, taken))
        Q_EMIT qmlTextChanged();
}

void ComponentsController::setFocus(Area area, int editorRow, bool entered)
{
    if (area == m_area && editorRow == m_editorRow && entered == m_entered)
        return;
    m_area = area;
    m_editorRow = editorRow;
    m_entered = entered;
    Q_EMIT focusChanged();
}

void ComponentsController::setCopied(bool copied)
{
    if (copied == m_copied)
        return;
    m_copied = copied;
    Q_EMIT copiedChanged();
}

void ComponentsController::copy()
{
    QGuiApplication::clipboard()->setText(qmlText());
    setCopied(true);
}

QFont ComponentsController::codeFont(const QFont &font)
{
    QFont result = font;
    result.setFamilies({ u"DejaVu Sans Mono"_s, u"Noto Sans Mono"_s, u"Liberation Mono"_s, u"monospace"_s });
    result.setStyleHint(QFont::Monospace);
    return result;
}

} // namespace gallery
