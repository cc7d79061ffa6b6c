// SPDX-License-Identifier: MIT
#ifndef GALLERY_TEXTPOOL_H
#define GALLERY_TEXTPOOL_H

#include <QtCore/qset.h>
#include <QtCore/qstring.h>

#include <memory>
#include <vector>

namespace gallery {

/*!
    Keeps many texts in little memory: UTF-8 in large blocks, each text once. Nothing is given back before the
    pool is destroyed. Reading is safe from any thread once nothing is added any more.
*/
class TextPool
{
public:
    /*! A kept text; valid as long as its pool. Null is the empty text. */
    using Ref = const char *;

    /*! Keeps \a text and returns it; the same text gives the same Ref unless the pool holds very many. */
    Ref add(QStringView text);

    /*! No more texts come: frees what was only needed to find texts again. */
    void finish();

    /*! The kept text as a string. */
    static QString text(Ref ref);
    /*! Whether both are the same text, also when it was kept twice. */
    static bool equal(Ref a, Ref b);

    /*! Bytes of the blocks that hold the texts. */
    qsizetype bytes() const { return m_bytes; }

private:
    struct Key
    {
        Ref ref;
        QByteArrayView view() const { return TextPool::view(ref); }
        friend bool operator==(Key a, Key b) { return equal(a.ref, b.ref); }
        friend size_t qHash(Key key, size_t seed) { return qHash(key.view(), seed); }
    };
    static QByteArrayView view(Ref ref);
    char *reserve(qsizetype size);

    std::vector<std::unique_ptr<char[]>> m_blocks;
    char *m_free = nullptr;
    qsizetype m_left = 0;
    qsizetype m_bytes = 0;
    QSet<Key> m_known;
};

} // namespace gallery

#endif // GALLERY_TEXTPOOL_H
