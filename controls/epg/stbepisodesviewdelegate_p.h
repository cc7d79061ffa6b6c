// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPISODESVIEWDELEGATE_P_H
#define STBUI_STBEPISODESVIEWDELEGATE_P_H

#include "controls/epg/stbepisodesviewdelegate.h"
#include "controls/stylereference.h"
#include "scenegraph/iconnodebuilder.h"
#include "scenegraph/picture.h"
#include "scenegraph/textnodebuilder.h"

#include <QtQuick/private/qquickitem_p.h>

class StbEpisodesViewDelegatePrivate : public QQuickItemPrivate
{
    Q_DECLARE_PUBLIC(StbEpisodesViewDelegate)
public:
    using Style = design_system::PlayerEpisodesItemStyle;
    using TextSignal = void (StbEpisodesViewDelegate::*)();

    enum class ItemType {
        Unknown, //!< never painted
        Default,
        Unviewed,
        Viewed,
        ComingSoon,
    };

    StbEpisodesViewDelegatePrivate();
    ~StbEpisodesViewDelegatePrivate() override;

    void setItemType(const QString &type);
    void setText(qml_basic_plugin::TextNodeBuilder &builder, const QString &text, TextSignal changed);
    /*! Hands the stored status to the text or the lines that show it. */
    void distributeStatus();
    /*! Starts to load the picture. */
    void loadLogo();
    /*! Reads the play icon, for the kinds of episodes that show one. */
    void loadPlayIcon();

    bool isPlayable() const;
    /*! \a oldNode with the picture, if there is one by now, or a new tree. */
    QSGNode *updatePaintNode(const Style &style, QSGNode *oldNode);
    QSGNode *createRoot(const Style &style);
    QSGRectangleNode *createRectangle(QSGNode *under, const QColor &color, const QRect &rect);
    QSGImageNode *createText(QSGNode *under, qml_basic_plugin::TextNodeBuilder &builder,
                             const design_system::TextStyle &style, int maxWidth, const QColor &color);
    void createTitles(QSGNode *root, const Style &style);
    void createBadge(QSGNode *overlay, const Style &style);
    void createDate(QSGNode *overlay, const Style &style);
    void createPlayIcon(QSGNode *overlay, const Style &style);
    void createProgress(QSGNode *overlay, const Style &style);

    StyleReference<design_system::PlayerEpisodesItemQmlStyle> m_style;
    QString m_listItemType;
    ItemType m_itemType = ItemType::Unknown;
    QUrl m_imageSource;
    qml_basic_plugin::Picture m_picture;
    QString m_status;
    qint64 m_viewedPosition = 0;
    qint64 m_duration = 0;
    qml_basic_plugin::TextNodeBuilder m_title;
    qml_basic_plugin::TextNodeBuilder m_subtitle;
    qml_basic_plugin::TextNodeBuilder m_statusText;
    qml_basic_plugin::TextNodeBuilder m_upperDate;
    qml_basic_plugin::TextNodeBuilder m_lowerDate;
    qml_basic_plugin::IconNodeBuilder m_playIcon;
    bool m_hasImageNode = false;
};

#endif // STBUI_STBEPISODESVIEWDELEGATE_P_H
