// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_MARKS_H
#define GALLERY_SCREENS_MARKS_H

#include <QtCore/qobject.h>
#include <QtCore/qset.h>

namespace gallery {

/*! The items that carry one kind of mark, by their ids: the favourites, for example. Kept for this run only. */
class Marks : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    bool contains(const QString &id) const { return m_ids.contains(id); }
    void set(const QString &id, bool marked);
    void toggle(const QString &id) { set(id, !contains(id)); }
    /*! Only \a ids carry the mark. */
    void reset(const QSet<QString> &ids);

Q_SIGNALS:
    void changed();

private:
    QSet<QString> m_ids;
};

} // namespace gallery

#endif // GALLERY_SCREENS_MARKS_H
