// SPDX-License-Identifier: MIT
#ifndef STBBENCH_SUBJECT_H
#define STBBENCH_SUBJECT_H

#include <QtCore/qbytearray.h>
#include <QtCore/qlist.h>
#include <QtCore/qobject.h>
#include <QtCore/qpoint.h>
#include <QtCore/qstring.h>
#include <QtCore/qvariant.h>

#include <functional>
#include <memory>

namespace stbbench {

/*! One way to show a control, as QML text. */
struct FormSource
{
    QString name; // column of the tables
    QByteArray qml;
    QVariantMap constants; // the same for each item of the form, such as its style
};

/*! Something that happens to an item that is shown; what the frame after it costs is a row of the tables. */
struct Change
{
    enum class Kind {
        Set, // the properties are set
        Update, // the item is told to update, and nothing has changed
        Arrival, // something that goes on by itself asks for a frame: a picture that is loaded, a busy throbber
    };

    QString name;
    QVariantMap properties;
    Kind kind = Kind::Set;
    bool comparable = true; // false where the forms show the same thing in their own way each
};

/*! A control, the forms that show it and what happens to them. All forms have the same properties. */
struct Subject
{
    QString key; // in budgets.json and on the command line
    QList<FormSource> forms; // this module's first
    /*! The properties of the item number index, without pictures; texts are its own up to textNumbers. */
    std::function<QVariantMap(int index)> content;
    QString pictureProperty; // asks for a poster; empty for a control that shows none
    /*! What happens to the item number first; the changes use up the numbers before first + 10. */
    std::function<QList<Change>(int first)> changes;
    std::shared_ptr<QObject> style; // referred to by the module's form
};

/*! Texts repeat after so many numbers: one form can show the same texts as another and other pictures. */
constexpr int textNumbers = 100000;

/*! The subjects, one function and one file for a family. */
Subject epgRow();
Subject button();
Subject buttonWithCheckIndicator();
Subject expandableTile();
Subject contentTile();
Subject vodTile();
Subject epgCard();
Subject epgProgram();
Subject epgDate();
Subject channelRow();
Subject startedEpisode();
Subject newEpisode();
Subject viewedEpisode();
Subject comingEpisode();

QList<Subject> allSubjects();

} // namespace stbbench

#endif // STBBENCH_SUBJECT_H
