// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_QMLDESIGNSYSTEM_H
#define DESIGN_SYSTEM_QMLDESIGNSYSTEM_H

#include <design_system/animation.h>
#include <design_system/busyindicatorstyle.h>
#include <design_system/buttonstyle.h>
#include <design_system/checkboxstyle.h>
#include <design_system/colors.h>
#include <design_system/fontroles.h>
#include <design_system/keyboardstyle.h>
#include <design_system/layouts.h>
#include <design_system/lineeditstyle.h>
#include <design_system/mainmenu.h>
#include <design_system/mainmenubuttonstyle.h>
#include <design_system/playerepgdatestyle.h>
#include <design_system/playerepgdelegatestyle.h>
#include <design_system/playerepisodesitemstyle.h>
#include <design_system/playerhorizontalepgviewstyle.h>
#include <design_system/playertvchannelitemstyle.h>
#include <design_system/tabbuttonstyle.h>
#include <design_system/tilestyle.h>

#include <QtCore/qhash.h>
#include <QtCore/qobject.h>
#include <QtCore/qstring.h>
#include <QtGui/qfont.h>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace design_system {

/*!
    The singleton that hands out the theme: a style object for each kind of control, the colour tokens, the
    durations and the measures of a screen.

    The theme is read when the singleton is made. The configuration names its file ("UI"/"theme"; none: the
    compiled-in theme), the screen's resolution ("UI"/"resolution": "hd", "fullhd" or "sd"; "hd" when there is
    none, and with a warning when it is another word) and how much larger or smaller than designed its texts
    are ("UI"/"textScale", 1 when there is none, kept between 0.75 and 1.5). What cannot be used in a theme
    file is a warning each, and the compiled-in theme's value stands in for it; see docs/themes.md.

    A change of theme gives every property a new object. All of them are in place before the first change
    signal is emitted, so that a listener may read any property; the signals come in the order of the
    properties. Replaced objects live until the singleton goes, and QML owns none of them.
*/
class STBDESIGN_EXPORT QmlDesignSystem : public QObject
{
    Q_OBJECT
    Q_PROPERTY(design_system::ButtonQmlStyle *primaryButtonStyle READ primaryButtonStyle NOTIFY
                       primaryButtonStyleChanged)
    Q_PROPERTY(design_system::ButtonQmlStyle *standardButtonStyle READ standardButtonStyle NOTIFY
                       standardButtonStyleChanged)
    Q_PROPERTY(design_system::ButtonQmlStyle *playerButtonStyle READ playerButtonStyle NOTIFY
                       playerButtonStyleChanged)
    Q_PROPERTY(design_system::TileQmlStyle *expandableTileStyle READ expandableTileStyle NOTIFY
                       expandableTileStyleChanged)
    Q_PROPERTY(design_system::TileQmlStyle *contentTileStyle READ contentTileStyle NOTIFY
                       contentTileStyleChanged)
    Q_PROPERTY(design_system::TileQmlStyle *vodTileStyle READ vodTileStyle NOTIFY vodTileStyleChanged)
    Q_PROPERTY(design_system::PlayerEpgDelegateQmlStyle *playerEpgDelegateStyle READ playerEpgDelegateStyle
                       NOTIFY playerEpgDelegateStyleChanged)
    Q_PROPERTY(design_system::PlayerHorizontalEpgViewQmlStyle *playerHorizontalEpgViewStyle READ
                       playerHorizontalEpgViewStyle NOTIFY playerHorizontalEpgViewStyleChanged)
    Q_PROPERTY(design_system::PlayerEpgDateQmlStyle *playerEpgDateStyle READ playerEpgDateStyle NOTIFY
                       playerEpgDateStyleChanged)
    Q_PROPERTY(design_system::PlayerEpisodesItemQmlStyle *playerEpisodesItemStyle READ playerEpisodesItemStyle
                       NOTIFY playerEpisodesItemStyleChanged)
    Q_PROPERTY(design_system::PlayerTvChannelItemQmlStyle *playerTvChannelItemStyle READ
                       playerTvChannelItemStyle NOTIFY playerTvChannelItemStyleChanged)
    Q_PROPERTY(design_system::BusyIndicatorQmlStyle *busyIndicatorStyle READ busyIndicatorStyle NOTIFY
                       busyIndicatorStyleChanged)
    Q_PROPERTY(design_system::CheckBoxQmlStyle *standardCheckBoxStyle READ standardCheckBoxStyle NOTIFY
                       standardCheckBoxStyleChanged)
    Q_PROPERTY(design_system::KeyboardQmlStyle *keyboardStyle READ keyboardStyle NOTIFY keyboardStyleChanged)
    Q_PROPERTY(design_system::LineEditQmlStyle *lineEditStyle READ lineEditStyle NOTIFY lineEditStyleChanged)
    Q_PROPERTY(design_system::MainMenuButtonQmlStyle *mainMenuButtonQmlStyle READ mainMenuButtonQmlStyle
                       NOTIFY mainMenuButtonQmlStyleChanged)
    Q_PROPERTY(
            design_system::TabButtonQmlStyle *tabButtonStyle READ tabButtonStyle NOTIFY tabButtonStyleChanged)
    Q_PROPERTY(design_system::Colors *colors READ colors NOTIFY colorsChanged)
    Q_PROPERTY(design_system::Animation *animation READ animation NOTIFY animationChanged)
    Q_PROPERTY(design_system::Layouts *layouts READ layouts NOTIFY layoutsChanged)
    Q_PROPERTY(design_system::MainMenu *mainMenu READ mainMenu NOTIFY mainMenuChanged)
    QML_ELEMENT
    QML_SINGLETON
public:
    explicit QmlDesignSystem(QObject *parent = nullptr);
    ~QmlDesignSystem() override;

    ButtonQmlStyle *primaryButtonStyle() const { return &m_objects.back()->primaryButtonStyle; }
    ButtonQmlStyle *standardButtonStyle() const { return &m_objects.back()->standardButtonStyle; }
    ButtonQmlStyle *playerButtonStyle() const { return &m_objects.back()->playerButtonStyle; }
    TileQmlStyle *expandableTileStyle() const { return &m_objects.back()->expandableTileStyle; }
    TileQmlStyle *contentTileStyle() const { return &m_objects.back()->contentTileStyle; }
    TileQmlStyle *vodTileStyle() const { return &m_objects.back()->vodTileStyle; }
    PlayerEpgDelegateQmlStyle *playerEpgDelegateStyle() const
    {
        return &m_objects.back()->playerEpgDelegateStyle;
    }
    PlayerHorizontalEpgViewQmlStyle *playerHorizontalEpgViewStyle() const
    {
        return &m_objects.back()->playerHorizontalEpgViewStyle;
    }
    PlayerEpgDateQmlStyle *playerEpgDateStyle() const { return &m_objects.back()->playerEpgDateStyle; }
    PlayerEpisodesItemQmlStyle *playerEpisodesItemStyle() const
    {
        return &m_objects.back()->playerEpisodesItemStyle;
    }
    PlayerTvChannelItemQmlStyle *playerTvChannelItemStyle() const
    {
        return &m_objects.back()->playerTvChannelItemStyle;
    }
    BusyIndicatorQmlStyle *busyIndicatorStyle() const { return &m_objects.back()->busyIndicatorStyle; }
    CheckBoxQmlStyle *standardCheckBoxStyle() const { return &m_objects.back()->standardCheckBoxStyle; }
    KeyboardQmlStyle *keyboardStyle() const { return &m_objects.back()->keyboardStyle; }
    LineEditQmlStyle *lineEditStyle() const { return &m_objects.back()->lineEditStyle; }
    MainMenuButtonQmlStyle *mainMenuButtonQmlStyle() const
    {
        return &m_objects.back()->mainMenuButtonQmlStyle;
    }
    TabButtonQmlStyle *tabButtonStyle() const { return &m_objects.back()->tabButtonStyle; }
    Colors *colors() const { return &m_objects.back()->colors; }
    Animation *animation() const { return &m_objects.back()->animation; }
    Layouts *layouts() const { return &m_objects.back()->layouts; }
    MainMenu *mainMenu() const { return &m_objects.back()->mainMenu; }

    /*! The durations of the property animation. */
    AnimationSettings animationSettings() const { return animation()->settings(); }

    /*!
        The font of the role \a sdFont (FontSd::Role) on a standard definition screen, of \a hdFont
        (FontHd::Role) on any other; without the user's text scale, for texts whose place does not grow. A
        number that is no role gives the font of FontHd::Body.
    */
    Q_INVOKABLE QFont unscaledFont(int hdFont, int sdFont) const;

    /*!
        The same font with the user's text scale, as the fonts of the styles have it: for texts that an
        application places beside them.
    */
    Q_INVOKABLE QFont scaledFont(int hdFont, int sdFont) const;

    /*! The path of the theme file; empty for the compiled-in theme. */
    Q_INVOKABLE QString theme() const { return m_theme; }

    /*! "hd", "fullhd" or "sd". */
    Q_INVOKABLE QString resolution() const { return m_resolution; }

    /*!
        Reads the theme file \a path, or goes back to the compiled-in theme when it is empty. Returns false,
        with a warning, when the file cannot be read or is not JSON; every value is then the compiled-in
        theme's.
    */
    Q_INVOKABLE bool setTheme(const QString &path);

    /*!
        Reads the theme anew for another \a resolution. Returns false, with a warning, and changes nothing
        when it is none of "hd", "fullhd" and "sd".
    */
    Q_INVOKABLE bool setResolution(const QString &resolution);

    /*! Reads the configuration and the theme anew. */
    Q_INVOKABLE void reload();

Q_SIGNALS:
    void primaryButtonStyleChanged();
    void standardButtonStyleChanged();
    void playerButtonStyleChanged();
    void expandableTileStyleChanged();
    void contentTileStyleChanged();
    void vodTileStyleChanged();
    void playerEpgDelegateStyleChanged();
    void playerHorizontalEpgViewStyleChanged();
    void playerEpgDateStyleChanged();
    void playerEpisodesItemStyleChanged();
    void playerTvChannelItemStyleChanged();
    void busyIndicatorStyleChanged();
    void standardCheckBoxStyleChanged();
    void keyboardStyleChanged();
    void lineEditStyleChanged();
    void mainMenuButtonQmlStyleChanged();
    void tabButtonStyleChanged();
    void colorsChanged();
    void animationChanged();
    void layoutsChanged();
    void mainMenuChanged();

private:
    struct Objects
    {
        ButtonQmlStyle primaryButtonStyle;
        ButtonQmlStyle standardButtonStyle;
        ButtonQmlStyle playerButtonStyle;
        TileQmlStyle expandableTileStyle;
        TileQmlStyle contentTileStyle;
        TileQmlStyle vodTileStyle;
        PlayerEpgDelegateQmlStyle playerEpgDelegateStyle;
        PlayerHorizontalEpgViewQmlStyle playerHorizontalEpgViewStyle;
        PlayerEpgDateQmlStyle playerEpgDateStyle;
        PlayerEpisodesItemQmlStyle playerEpisodesItemStyle;
        PlayerTvChannelItemQmlStyle playerTvChannelItemStyle;
        BusyIndicatorQmlStyle busyIndicatorStyle;
        CheckBoxQmlStyle standardCheckBoxStyle;
        KeyboardQmlStyle keyboardStyle;
        LineEditQmlStyle lineEditStyle;
        MainMenuButtonQmlStyle mainMenuButtonQmlStyle;
        TabButtonQmlStyle tabButtonStyle;
        Colors colors;
        Animation animation;
        Layouts layouts;
        MainMenu mainMenu;
    };

    void readConfiguration();
    bool loadTheme();
    void emitChanges();

    std::vector<std::unique_ptr<Objects>> m_objects; // of every theme so far; the last one's are shown
    QHash<QString, QFont> m_fonts;
    QString m_theme;
    QString m_resolution;
    double m_textScale = 1;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_QMLDESIGNSYSTEM_H
