// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_COLORS_H
#define DESIGN_SYSTEM_COLORS_H

#include <design_system/designglobal.h>

#include <QtCore/qhash.h>
#include <QtCore/qobject.h>
#include <QtCore/qstring.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*!
    The colour tokens of the theme. The tokens that every theme has are properties; a theme may name more,
    which token() gives.
*/
class STBDESIGN_EXPORT Colors : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QColor sochi MEMBER m_sochi NOTIFY sochiChanged)
    Q_PROPERTY(QColor sochi20 MEMBER m_sochi20 NOTIFY sochi20Changed)
    Q_PROPERTY(QColor sochi50 MEMBER m_sochi50 NOTIFY sochi50Changed)
    Q_PROPERTY(QColor berlin MEMBER m_berlin NOTIFY berlinChanged)
    Q_PROPERTY(QColor bogota MEMBER m_bogota NOTIFY bogotaChanged)
    Q_PROPERTY(QColor bamako MEMBER m_bamako NOTIFY bamakoChanged)
    Q_PROPERTY(QColor oslo MEMBER m_oslo NOTIFY osloChanged)
    Q_PROPERTY(QColor lima MEMBER m_lima NOTIFY limaChanged)
    Q_PROPERTY(QColor quito MEMBER m_quito NOTIFY quitoChanged)
    Q_PROPERTY(QColor dakar MEMBER m_dakar NOTIFY dakarChanged)
    QML_ANONYMOUS
public:
    using QObject::QObject;

    /*! The colour of the token \a name, one of the properties or a token of the theme's own; else invalid. */
    Q_INVOKABLE QColor token(const QString &name) const { return m_tokens.value(name); }

    /*! Takes over all of \a tokens; the properties are those of the same name. */
    void setTokens(const QHash<QString, QColor> &tokens);

Q_SIGNALS:
    void sochiChanged();
    void sochi20Changed();
    void sochi50Changed();
    void berlinChanged();
    void bogotaChanged();
    void bamakoChanged();
    void osloChanged();
    void limaChanged();
    void quitoChanged();
    void dakarChanged();

private:
    QHash<QString, QColor> m_tokens;
    QColor m_sochi; //!< text, icons and everything that must be read first
    QColor m_sochi20; //!< sochi at 20 per cent: tracks, hairlines
    QColor m_sochi50; //!< sochi at 50 per cent: handles, what is switched off
    QColor m_berlin; //!< the accent: progress, what is chosen
    QColor m_bogota; //!< raised surface: keys, buttons, input
    QColor m_bamako; //!< quiet surface: cards, tracks of scroll bars
    QColor m_oslo; //!< the screen behind everything, and text on bright fills
    QColor m_lima; //!< text that is read second
    QColor m_quito; //!< fill of what has the focus; text on it is oslo
    QColor m_dakar; //!< on air, and errors
};

} // namespace design_system

#endif // DESIGN_SYSTEM_COLORS_H
