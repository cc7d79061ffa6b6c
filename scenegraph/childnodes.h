// SPDX-License-Identifier: MIT
#ifndef STBUI_CHILDNODES_H
#define STBUI_CHILDNODES_H

#include <QtQuick/qsgnode.h>

#include <concepts>

namespace qml_basic_plugin {

/*!
    Walks the children that a class keeps under a root in a fixed order, some of them absent: finds each by its
    place, makes it there when it is wanted and missing, and removes and deletes it when it is not wanted.

    Which children are there is told by one presence flag each. A flag that outlived its root does no harm: where
    no node follows, the child is made anew. Children behind the last one walked over, those of a derived class, are left alone, and
    whatever is made later is put in its own place before them.

    \code
    ChildNodes children(root);
    auto *title = children.next<QSGImageNode>();
    auto *badge = children.place<QSGRectangleNode>(m_live, m_badgePresent, makeBadge);
    \endcode
*/
class ChildNodes
{
public:
    explicit ChildNodes(QSGNode *root)
        : m_root(root)
        , m_next(root->firstChild())
    {
    }

    /*!
        Walks the children of a derived class: those behind \a after, the last one that its base class keeps.
        \a root is the parent of \a after.
    */
    ChildNodes(QSGNode *root, QSGNode *after)
        : m_root(root)
        , m_next(after->nextSibling())
        , m_last(after)
    {
    }

    /*! The node of the next place, one that is always there. */
    template <typename Node>
    Node *next()
    {
        auto *node = static_cast<Node *>(m_next);
        m_next = node->nextSibling();
        m_last = node;
        return node;
    }

    /*!
        The node of the next place, or null when it is not \a wanted. \a present tells whether it is there and
        is brought up to date. \a create makes a missing one: it gets the root and the node to insert before,
        null for the end, and returns the node that it inserted.
    */
    template <typename Node, std::invocable<QSGNode *, QSGNode *> Create>
    Node *place(bool wanted, bool &present, Create &&create)
    {
        auto *node = present ? static_cast<Node *>(m_next) : nullptr;
        m_created = false;
        if (node)
            m_next = node->nextSibling();
        if (node && !wanted) {
            m_root->removeChildNode(node);
            delete node;
            node = nullptr;
        } else if (wanted && !node) {
            node = create(m_root, m_next);
            m_created = true;
        }
        present = node != nullptr;
        if (node)
            m_last = node;
        return node;
    }

    /*! Whether the last place() made its node. */
    bool created() const { return m_created; }
    /*! The last node walked over that is there; null when there is none. */
    QSGNode *last() const { return m_last; }

private:
    QSGNode *m_root;
    QSGNode *m_next;
    QSGNode *m_last = nullptr;
    bool m_created = false;
};

} // namespace qml_basic_plugin

#endif // STBUI_CHILDNODES_H
