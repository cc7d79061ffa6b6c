// SPDX-License-Identifier: MIT
#include "screens/componentvalues.h"

namespace gallery {

using Kind = ComponentEditor::Kind;

namespace {

// Of an address the name of the file is enough to tell it from the others.
QString withoutFolder(const QString &text)
{
    return text.contains(QLatin1StringView(":/resources/")) ? text.section(u'/', -1) : text;
}

// Nothing on it moves by itself: whoever takes a picture of the screen gets the same one each time.
int firstPage()
{
    int row = 0;
    while (componentPages().at(row).name != QLatin1StringView("Button"))
        ++row;
    return row;
}

} // namespace

ComponentValues::ComponentValues(QObject *parent)
    : QAbstractListModel(parent)
{
    start();
}

void ComponentValues::start()
{
    beginResetModel();
    m_page = firstPage();
    m_values.clear();
    for (const ComponentPage &page : componentPages())
        m_values.append(page.startValues());
    endResetModel();
}

void ComponentValues::showPage(int row)
{
    beginResetModel();
    m_page = row;
    endResetModel();
}

bool ComponentValues::setValue(int row, const QVariant &value)
{
    if (value == this->value(row))
        return false;
    m_values[m_page][row] = value;
    Q_EMIT dataChanged(index(row), index(row));
    return true;
}

void ComponentValues::setUnit(qreal unit)
{
    m_unit = unit;
    Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int ComponentValues::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(page().editors.size());
}

QVariant ComponentValues::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ComponentEditor &edited = editor(index.row());
    const QVariant present = value(index.row());
    switch (role) {
    case NameRole:
        return edited.name;
    case IsFlagRole:
        return edited.kind == Kind::Flag;
    case IsNumberRole:
        return edited.kind == Kind::Number;
    case CheckedRole:
        return edited.kind == Kind::Flag && present.toBool();
    case TextRole:
        return textOf(index.row());
    case SwatchRole:
        return edited.kind == Kind::Color ? present.toString().section(u'.', -1) : QString();
    case SetRole:
        return edited.isSet(present);
    default:
        return {};
    }
}

QHash<int, QByteArray> ComponentValues::roleNames() const
{
    return { { NameRole, "name" },       { IsFlagRole, "isFlag" }, { IsNumberRole, "isNumber" },
             { CheckedRole, "checked" }, { TextRole, "text" },     { SwatchRole, "swatch" },
             { SetRole, "isSet" } };
}

QString ComponentValues::textOf(int row) const
{
    const ComponentEditor &edited = editor(row);
    const QVariant present = value(row);
    if (!present.isValid())
        return tr("Default");
    if (present.typeId() == QMetaType::QString && edited.kind != Kind::Color)
        return present.toString().isEmpty() ? tr("Empty") : withoutFolder(present.toString());
    if (edited.kind == Kind::Color)
        return present.toString().section(u'.', -1);
    return edited.qml(present, m_unit);
}

} // namespace gallery
