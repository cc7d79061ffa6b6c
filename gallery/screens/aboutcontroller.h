// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_ABOUTCONTROLLER_H
#define GALLERY_SCREENS_ABOUTCONTROLLER_H

#include <QtCore/qobject.h>
#include <QtGui/qfont.h>
#include <QtQml/qqmlregistration.h>

namespace gallery {

class SettingsController;

/*!
    What the program tells of itself, and how remote keys scroll through it. QML shows the properties, tells how much
    there is to scroll, and hands every key to press().
*/
class AboutController : public QObject
{
    Q_OBJECT
    /*! The program and its version: "stbui-gallery 1.0.0". */
    Q_PROPERTY(QString program READ program CONSTANT)
    /*! The QML module whose controls are shown, with the version that the screens import. */
    Q_PROPERTY(QString module READ module CONSTANT)
    /*! The running Qt, and the one that the program was built with when that is another. */
    Q_PROPERTY(QString qt READ qt CONSTANT)
    /*! The theme and the language in force, as the settings name them. */
    Q_PROPERTY(QString theme READ theme NOTIFY settingsChanged)
    Q_PROPERTY(QString language READ language NOTIFY settingsChanged)
    /*! The project's licence, word by word, each paragraph in one line. */
    Q_PROPERTY(QString licence READ licence CONSTANT)

    /*! Pixels: how high the text and its view are (the view knows), and how much of the text is above the view. */
    Q_PROPERTY(int textHeight READ textHeight WRITE setTextHeight NOTIFY heightsChanged)
    Q_PROPERTY(int viewHeight READ viewHeight WRITE setViewHeight NOTIFY heightsChanged)
    Q_PROPERTY(int position READ position NOTIFY positionChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The shell has it.")
public:
    /*! \a settings tells theme and language and must outlive this object. */
    explicit AboutController(const SettingsController *settings, QObject *parent = nullptr);

    /*! As at the start: the text from its beginning. */
    void start() { scrollTo(0); }

    QString program() const;
    QString module() const;
    QString qt() const;
    QString theme() const;
    QString language() const;
    QString licence() const;

    int textHeight() const { return m_textHeight; }
    void setTextHeight(int height);
    int viewHeight() const { return m_viewHeight; }
    void setViewHeight(int height);
    int position() const;

    /*! What draws the screens: \a graphicsApi is a GraphicsInfo::GraphicsApi. */
    Q_INVOKABLE QString renderer(int graphicsApi) const;
    /*! The family of the font that is really used for \a font. */
    Q_INVOKABLE QString fontFamily(const QFont &font) const;

    /*!
        Handles a remote key; false when it means nothing here.

        Up and Down scroll by a sixth of the view, Page Up and Page Down by nearly the whole, Home and End to the
        beginning and the end. Back asks to leave.
    */
    Q_INVOKABLE bool press(int key);

Q_SIGNALS:
    void settingsChanged();
    void heightsChanged();
    void positionChanged();
    void leaveRequested();

private:
    void scrollTo(int place);

    const SettingsController *m_settings;
    int m_textHeight = 0;
    int m_viewHeight = 0;
    int m_position = 0; // as keys left it: a text that is laid out anew is lower for a moment
};

} // namespace gallery

#endif // GALLERY_SCREENS_ABOUTCONTROLLER_H
