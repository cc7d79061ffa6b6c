// SPDX-License-Identifier: MIT
#ifndef STBCORE_SHAPEDTEXT_P_H
#define STBCORE_SHAPEDTEXT_P_H

#include <QtCore/qstring.h>
#include <QtGui/qfont.h>
#include <QtGui/qtextlayout.h>

#include <memory>
#include <vector>

namespace stbcore {

/*! What the glyphs and the line breaks of a text depend on. */
struct TextShapeKey
{
    QString text;
    QFont font;
    int maxWidth = 0; // pixels, at least 1
    int maxLines = 1; // at least 1
};

/*!
    The glyphs and lines of one text, made once and never changed, so that any number of renderers may hold
    and draw the same one. Lines carry no position: alignment is the holder's business.
*/
class ShapedText
{
    Q_DISABLE_COPY_MOVE(ShapedText)
public:
    explicit ShapedText(const TextShapeKey &key);
    ~ShapedText() = default;

    /*! Whether a text shaped for \a key would look exactly like this one. */
    bool isGoodFor(const TextShapeKey &key) const;

    const std::vector<QTextLine> &lines() const { return m_lines; }
    bool isRightToLeft() const { return m_rightToLeft; }
    /*! The advance width of the widest line in whole pixels. */
    int width() const { return m_width; }
    /*! Whole pixels by which some line's ink leaves its advance box at the left and at the right. */
    int leftOverhang() const { return m_leftOverhang; }
    int rightOverhang() const { return m_rightOverhang; }

private:
    bool layOut(qsizetype prefixLength);
    qsizetype breakLines();
    void elideLastLine();
    void measure();
    std::unique_ptr<QTextLayout> newLayout(const QString &text) const;

    TextShapeKey m_key;
    std::unique_ptr<QTextLayout> m_body;
    std::unique_ptr<QTextLayout> m_elided;
    std::vector<QTextLine> m_lines;
    int m_width = 0;
    int m_leftOverhang = 0;
    int m_rightOverhang = 0;
    bool m_rightToLeft = false;
    bool m_wrapped = false; // some line ends where the text has no line break
    bool m_cut = false; // some text is not in the lines
};

} // namespace stbcore

#endif // STBCORE_SHAPEDTEXT_P_H
