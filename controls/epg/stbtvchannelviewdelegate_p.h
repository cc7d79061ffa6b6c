// SPDX-License-Identifier: MIT
#ifndef STBUI_STBTVCHANNELVIEWDELEGATE_P_H
#define STBUI_STBTVCHANNELVIEWDELEGATE_P_H

#include "controls/epg/stbtvchannelviewdelegate.h"
#include "controls/epg/stbtvchannelviewdelegatelayout.h"
#include "controls/stylereference.h"
#include "scenegraph/iconnodebuilder.h"
#include "scenegraph/picture.h"
#include "scenegraph/textnodebuilder.h"

#include <QtQuick/private/qquickitem_p.h>
#include <QtQuick/private/qsgcontext_p.h>

#include <memory>

namespace qml_basic_plugin {
class ChildNodes;
}
class QSGImageNode;
class QSGRectangleNode;

class StbTvChannelViewDelegatePrivate : public QQuickItemPrivate
{
    Q_DECLARE_PUBLIC(StbTvChannelViewDelegate)
public:
    using Style = design_system::PlayerTvChannelItemStyle;
    using Layout = StbTvChannelViewDelegateLayout;
    using TextSignal = void (StbTvChannelViewDelegate::*)();

    /*! What the logo's node shows. */
    enum class LogoPicture {
        None,
        CanvasCell, //!< in a texture of the node's own
        Logo, //!< in the texture of m_logo
    };

    /*! The nodes of one paint update; those of optional parts are null while the part is not there. */
    struct Nodes
    {
        QSGImageNode *logo;
        QSGRectangleNode *numberBox;
        QSGRectangleNode *qualityBox;
        QSGImageNode *name;
        QSGImageNode *program;
        QSGRectangleNode *progressPlayed;
        QSGRectangleNode *progressRemainder;
        QSGImageNode *lockIcon;
        QSGImageNode *playingText;
        QSGImageNode *playingIcon;
    };

    StbTvChannelViewDelegatePrivate();
    ~StbTvChannelViewDelegatePrivate() override;

    /*! Starts to load the logo. */
    void loadLogo();

    void setText(qml_basic_plugin::TextNodeBuilder &builder, const QString &text, TextSignal changed);
    /*! Whether the canvas has a cell for this row. */
    bool hasCanvasCell() const;

    QSGNode *createRoot();
    Nodes placeNodes(QSGNode *root);
    QSGImageNode *placeLogo(qml_basic_plugin::ChildNodes &children);
    void showCanvasCell(QSGImageNode *node);
    /*! The node of a part that is not always there; \a builder may be null while it is not wanted. */
    template <typename Builder>
    QSGImageNode *placeOptional(qml_basic_plugin::ChildNodes &children, bool wanted, bool &present,
                                Builder *builder);
    /*! Brings the texts' pictures up to date and returns what is to be placed. */
    Layout::Content updateTexts(const Nodes &nodes, const Style &style, bool setUp);
    void updateName(QSGImageNode *node, const Style &style, bool setUp, int nameWidth);
    void updateIcons(const Nodes &nodes, const Style &style, const Layout &layout);

    StyleReference<design_system::PlayerTvChannelItemQmlStyle> m_style;
    QUrl m_imageSource;
    qml_basic_plugin::Picture m_logo;
    qml_basic_plugin::IconNodeBuilder m_lockIcon;
    qml_basic_plugin::IconNodeBuilder m_playingIcon;
    qml_basic_plugin::TextNodeBuilder m_channelName;
    qml_basic_plugin::TextNodeBuilder m_channelNumber;
    qml_basic_plugin::TextNodeBuilder m_channelQuality;
    qml_basic_plugin::TextNodeBuilder m_programName;
    std::unique_ptr<qml_basic_plugin::TextNodeBuilder> m_playingText; // there while the row is live
    QColor m_channelNameColor;
    double m_progress = 0;
    bool m_live = false;
    bool m_lockIconVisible = false;
    QRect m_cachedChannelRect;
    QPixmap m_canvas;
    bool m_styleDirty = false; // the renderers do not know the style's fonts yet
    int m_textWidth = 0; // what the renderers were set up with; one from the cache may have another
    LogoPicture m_logoPicture = LogoPicture::None;
    bool m_logoPresent = false; // which nodes there are
    bool m_lockIconPresent = false;
    bool m_playingTextPresent = false;
    bool m_playingIconPresent = false;
};

#endif // STBUI_STBTVCHANNELVIEWDELEGATE_P_H
