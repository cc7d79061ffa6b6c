// SPDX-License-Identifier: MIT
#ifndef STBTEST_FOCUSEDSTATES_H
#define STBTEST_FOCUSEDSTATES_H

#include "focusedscene.h"

#include <functional>

/*! The state of a programme, as far as the card shows it. */
struct State
{
    bool playable = false;
    bool live = false;
    bool past = false;
    bool future = false;
    bool reminder = false;
};

inline const State playable { true, false, false, false, false };
inline const State playableLive { true, true, false, false, false };
inline const State past { false, false, true, false, false };
inline const State future { false, false, false, true, false };
inline const State reminded { false, false, false, true, true };
inline const State pastAndFuture { false, false, true, true, false };
inline const State neither {};

inline void apply(FocusedScene &scene, const State &state)
{
    scene.setState(state.playable, state.live, state.past, state.future, state.reminder);
}

inline QString status(const State &state)
{
    if (state.past)
        return "Not available any more";
    return state.reminder ? "Reminder is set" : "On air soon";
}

/*! What the card has to hold in a state, told by the rules alone: "rectangle #colour" or "image WxH". */
inline QStringList expectedParts(const State &state)
{
    const design_system::PlayerEpgDelegateStyle style = oddEpgStyle();
    const auto rectangle = [](const QColor &color) { return "rectangle " + color.name(QColor::HexArgb); };
    const auto text = [](const design_system::TextStyle &textStyle, const QString &string) {
        const QRect extent = textExtent(textStyle, string, 417);
        return QStringLiteral("image %1x%2").arg(extent.width()).arg(extent.height());
    };
    if (state.playable) {
        QStringList parts;
        if (state.live)
            parts << rectangle(style.progressPlayedColor) << rectangle(style.progressRemainderColor);
        return parts << "image 41x43";
    }
    QStringList parts;
    if (state.past || state.future)
        parts << text(style.statusTextStyle, status(state));
    if (state.future) {
        const QString action = state.reminder ? "Forget the reminder" : "Remind me";
        parts << rectangle(style.reminderActionTextStyle.backgroundColor)
              << "- " + text(style.reminderActionTextStyle, action)
              << text(style.startsAtTextStyle, "From 20:05") << "image 21x23";
    }
    return parts;
}

/*! What it holds. */
inline QStringList shownParts(FocusedScene &scene)
{
    QStringList parts;
    for (const stbtest::NodeInfo &node : stbtest::nodeTree(scene.card().node).mid(1)) {
        const QString indent = node.depth > 1 ? "- " : "";
        if (node.type == "Rectangle")
            parts << indent + "rectangle " + node.color.name(QColor::HexArgb);
        else
            parts << indent + QStringLiteral("image %1x%2").arg(node.pixmap.width()).arg(node.pixmap.height());
    }
    return parts;
}

/*! What a fresh row in that state looks like; \a change goes before its first frame. */
inline QImage pictureOf(const State &state, const std::function<void(FocusedScene &)> &change = {})
{
    FocusedScene scene;
    scene.fill();
    apply(scene, state);
    if (change)
        change(scene);
    scene.stage.renderFrame();
    return scene.stage.picture();
}

#endif // STBTEST_FOCUSEDSTATES_H
