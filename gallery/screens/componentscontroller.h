// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_COMPONENTSCONTROLLER_H
#define GALLERY_SCREENS_COMPONENTSCONTROLLER_H

#include "screens/componentvalues.h"

#include <QtCore/qobject.h>
#include <QtGui/qfont.h>
#include <QtQml/qqmlregistration.h>

namespace gallery {

/*!
    What the screen of components shows and how remote keys change it: a page for each control, with the properties
    that can be edited and the line of QML that makes the control as it is shown. QML shows the properties, makes the
    control from creationQml() and hands every key to press() that the control does not use.
*/
class ComponentsController : public QObject
{
    Q_OBJECT
    /*! The controls' names, and the one that is chosen. */
    Q_PROPERTY(QStringList pages READ pages CONSTANT)
    Q_PROPERTY(int pageRow READ pageRow NOTIFY pageChanged)
    Q_PROPERTY(QString pageName READ pageName NOTIFY pageChanged)
    /*! The chosen control types into a line of text, lies over a picture, has something to do with keys. */
    Q_PROPERTY(bool types READ types NOTIFY pageChanged)
    Q_PROPERTY(bool liesOver READ liesOver NOTIFY pageChanged)
    Q_PROPERTY(bool takesKeys READ takesKeys NOTIFY pageChanged)

    /*! The rows of editors: ComponentValues; and the one that is chosen. */
    Q_PROPERTY(QAbstractItemModel *editors READ editors CONSTANT)
    Q_PROPERTY(int editorRow READ editorRow NOTIFY focusChanged)
    /*! What the keys act on. */
    Q_PROPERTY(Area area READ area NOTIFY focusChanged)
    /*! The control has the keys; only in the area \c Preview. */
    Q_PROPERTY(bool entered READ isEntered NOTIFY focusChanged)

    /*! What OK does where the keys are; empty where it does nothing. */
    Q_PROPERTY(QString okText READ okText NOTIFY okTextChanged)

    /*! One line: imports, and the control with every property that is not as it is by default. */
    Q_PROPERTY(QString qmlText READ qmlText NOTIFY qmlTextChanged)
    /*! The line was copied; until the next key. */
    Q_PROPERTY(bool copied READ isCopied NOTIFY copiedChanged)

    /*! What lengths are multiplied by: pixels of the screen's height to 720. 1 by default. */
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged)
    /*! How many rows a page key moves by, at least 1; the view knows how many it shows. */
    Q_PROPERTY(int rowsPerPage READ rowsPerPage WRITE setRowsPerPage NOTIFY rowsPerPageChanged)
    /*! Whether the screen is laid out from right to left: the next value is on the left then. */
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The shell has it.")
public:
    enum Area { Pages, Preview, Editors, Line };
    Q_ENUM(Area)

    explicit ComponentsController(QObject *parent = nullptr);

    /*! As at the start: the page of \c Button, and all values as their pages begin with. */
    void start();

    QStringList pages() const;
    const ComponentPage &page() const { return m_values.page(); }
    int pageRow() const { return m_values.pageRow(); }
    QString pageName() const { return page().name; }
    bool types() const { return page().types; }
    bool liesOver() const { return page().liesOver; }
    bool takesKeys() const { return page().takesKeys; }

    ComponentValues *editors() { return &m_values; }
    int editorRow() const { return m_editorRow; }
    Area area() const { return m_area; }
    bool isEntered() const { return m_entered; }

    QString okText() const;
    QString qmlText() const;
    /*!
        What the control is made from: the same line, but for what is written when the control is there, and what it is
        of no use without.
    */
    QString creationQml() const;
    bool isCopied() const { return m_copied; }

    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);
    int rowsPerPage() const { return m_rowsPerPage; }
    void setRowsPerPage(int rows);
    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    /*!
        Handles a remote key; false when it means nothing here.

        Among the pages Up, Down, Page Up, Page Down, Home and End choose one, and Right or OK leads to the control. Up
        and Down lead through control, editors and line; Left from the control and the line, and Back from anywhere,
        leads to the pages. OK on the control gives it the keys; Back, and any key that it does not use, comes here, and
        Back takes them from it. In the editors Left and Right choose another value; OK chooses the next one, of a
        number the one that it has at first. OK on the line copies it. Back among the pages asks to leave.
    */
    Q_INVOKABLE bool press(int key);

    /*! The control has changed the property of the editor \a row by itself. */
    void takeValue(int row, const QVariant &value);

    /*! \a font, but with all characters of one width. */
    Q_INVOKABLE static QFont codeFont(const QFont &font);

Q_SIGNALS:
    void pageChanged();
    void focusChanged();
    void okTextChanged();
    void qmlTextChanged();
    void copiedChanged();
    void unitChanged();
    void rowsPerPageChanged();
    void mirroredChanged();
    /*! Another value was chosen for the editor \a row. */
    void valueChosen(int row);
    /*! Back was pressed where there is nothing to go back to. */
    void leaveRequested();

private:
    bool pressInPages(int key);
    bool pressInPreview(int key);
    bool pressInEditors(int key);
    bool pressInLine(int key);
    void choosePage(int row);
    void chooseValue(const QVariant &value);
    void setFocus(Area area, int editorRow = 0, bool entered = false);
    void setCopied(bool copied);
    void copy();

    ComponentValues m_values;
    Area m_area = Pages;
    int m_editorRow = 0;
    bool m_entered = false;
    bool m_copied = false;
    qreal m_unit = 1;
    int m_rowsPerPage = 1;
    bool m_mirrored = false;
};

} // namespace gallery

#endif // GALLERY_SCREENS_COMPONENTSCONTROLLER_H
