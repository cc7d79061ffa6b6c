// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_COMPONENTVALUES_H
#define GALLERY_SCREENS_COMPONENTVALUES_H

#include "screens/componentpages.h"

#include <QtCore/qabstractitemmodel.h>

namespace gallery {

/*! The editors of one page, a row for each, and the values of all pages. */
class ComponentValues : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        NameRole = Qt::UserRole, //!< of the property
        IsFlagRole, //!< whether the value is true or false
        IsNumberRole,
        CheckedRole, //!< whether the value is true
        TextRole, //!< the value as it is to be shown
        SwatchRole, //!< name of the theme's colour that is the value, or nothing
        SetRole //!< whether the value is not the default
    };

    explicit ComponentValues(QObject *parent = nullptr);

    /*! The page of \c Button, and all values as their pages begin with. */
    void start();
    /*! Shows another page, which must exist; its values are those it had last. */
    void showPage(int row);
    int pageRow() const { return m_page; }
    const ComponentPage &page() const { return componentPages().at(m_page); }
    const ComponentEditor &editor(int row) const { return page().editors.at(row); }
    const QList<QVariant> &values() const { return m_values.at(m_page); }
    QVariant value(int row) const { return values().at(row); }
    /*! False when that is the value already. */
    bool setValue(int row, const QVariant &value);
    /*! What lengths are multiplied by; 1 by default. */
    void setUnit(qreal unit);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QString textOf(int row) const;

    QList<QList<QVariant>> m_values; // of each page, one for each editor
    int m_page = 0;
    qreal m_unit = 1;
};

} // namespace gallery

#endif // GALLERY_SCREENS_COMPONENTVALUES_H
