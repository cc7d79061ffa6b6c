// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_COMPONENTPAGES_H
#define GALLERY_SCREENS_COMPONENTPAGES_H

#include <QtCore/qlist.h>
#include <QtCore/qmargins.h>
#include <QtCore/qstringlist.h>
#include <QtCore/qvariant.h>

namespace gallery {

/*! One of the values that a property can be given: as QML says it, and as it reads back. */
struct ComponentChoice
{
    QString qml;
    QVariant value;
};

/*! A property of a control that can be edited, and its values. */
struct ComponentEditor
{
    enum class Kind {
        Flag, //!< false or true
        Number, //!< from \c from to \c to by \c step
        Text, //!< a text or an address; one of \c choices
        Choice, //!< one of \c choices
        Color //!< a colour of the theme by its name, or none; the value is the QML expression
    };

    QString name;
    Kind kind = Kind::Flag;
    /*! What the property is when nothing is set; invalid when the style or the language decides. */
    QVariant defaultValue {};
    /*! What the page begins with. */
    QVariant start {};
    qreal from = 0;
    qreal to = 0;
    qreal step = 1;
    /*! The numbers are pixels of a screen 720 pixels high, and grow with the resolution. */
    bool isLength = false;
    /*! In the order of the keys; without them a text of the user's is a value too. */
    QList<ComponentChoice> choices {};
    /*! The control changes the property itself, such as a check box does. */
    bool isFedBack = false;
    /*!
        A change is written into the control that is there, because it shows how it gets there. Else the control is
        made anew, for many keep something of what was before.
    */
    bool isWritten = false;
    /*! Written after the control is there: it shows only how it gets to a value, not that it began with it. */
    bool isLate = false;

    /*! All values that keys lead to, in their order. */
    QList<QVariant> values() const;
    /*! The one before \a value (\a direction -1) or after it (1); the same one at the end. */
    QVariant neighbour(const QVariant &value, int direction) const;
    /*! What OK makes of \a value: the next one, from the last one the first; a number becomes what it was at first. */
    QVariant next(const QVariant &value) const;
    /*! Whether \a value has to be told, because nothing else leads to it. */
    bool isSet(const QVariant &value) const;
    /*! \a value as it is written in QML; lengths are multiplied by \a unit. */
    QString qml(const QVariant &value, qreal unit) const;
    /*! \a value as the property reads it back, multiplied by \a unit when it is a length. */
    QVariant written(const QVariant &value, qreal unit) const;
};

/*! A control, and what of it can be edited. */
struct ComponentPage
{
    /*! The type's name in QML, and the last part of its module's name: "Basic" or "Generic". */
    QString name;
    QString module;
    /*!
        What the control needs to be seen, as QML: "style: ...", "model: 12". Numbers in angle brackets are pixels of a
        screen 720 pixels high.
    */
    QStringList settings {};
    QList<ComponentEditor> editors {};
    /*! Keys mean something to the control. */
    bool takesKeys = false;
    /*! It types into a line of text, which is shown above it. */
    bool types = false;
    /*! It lies over something else; a picture is shown below it. */
    bool liesOver = false;
    /*!
        What the control is of no use without, around its place "%1", and how it is told of that: both only for who
        copies the line, as the page has the like already.
    */
    QString surroundings {};
    QString surroundingsSetting {};
    /*! How far the picture sticks out of the item, in pixels of a screen 720 pixels high. */
    QMargins overhang {};

    /*!
        One line of QML: imports, and the control with its settings and all \a values (one for each editor) that have to
        be told. \a unit is what lengths are multiplied by.
    */
    QString qml(const QList<QVariant> &values, qreal unit) const;
    /*! The same with what the control is of no use without. */
    QString wholeQml(const QList<QVariant> &values, qreal unit) const;
    QList<QVariant> startValues() const;
    /*! \a values, but what is late as it is at the start: what a control is made with. */
    QList<QVariant> valuesOfNew(const QList<QVariant> &values) const;

private:
    QString body(const QStringList &allSettings, const QList<QVariant> &values, qreal unit) const;
};

/*! All pages: first the controls of Stbui.UI.Qml.Controls.Basic by name, then what only Generic has. */
const QList<ComponentPage> &componentPages();

} // namespace gallery

#endif // GALLERY_SCREENS_COMPONENTPAGES_H
