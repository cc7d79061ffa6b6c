// SPDX-License-Identifier: MIT
#ifndef GALLERY_XMLTVPARSER_H
#define GALLERY_XMLTVPARSER_H

#include "gallery/data/guidebuilder.h"
#include "gallery/data/guidereader.h"

#include <QtCore/qxmlstream.h>

#include <algorithm>
#include <array>

namespace gallery {

class GuideInput;

/*!
    Reads the XMLTV format, element by element, into a GuideBuilder. Elements and attributes that it does not
    know are passed over. The report gets the problems and the counts; its guide is not touched.
*/
class XmltvParser
{
    Q_DISABLE_COPY_MOVE(XmltvParser)
public:
    /*! Everything passed here outlives the parser. \a folder is where relative pictures are looked for. */
    XmltvParser(GuideInput *input, const QString &language, const QString &folder, GuideBuilder *builder,
                GuideReport *report);

    /*! Reads to the end, or to the first error of the XML. */
    void parse();

    /*! Whether the root element of a guide was there. */
    bool foundGuide() const { return m_foundGuide; }
    /*! What stopped the reading, without the place; empty when the end was reached. */
    QString error() const { return m_error; }
    /*! The place of the last character that was read, from 1. */
    qint64 line() const { return m_xml.lineNumber(); }
    qint64 column() const { return std::max<qint64>(m_xml.columnNumber(), 1); }

private:
    /*! The best of several texts for one language. */
    struct Choice
    {
        QString text;
        int rank = -1;

        void offer(const QString &candidate, int candidateRank);
    };
    enum Slot { Title, SubTitle, Description, Category, Length, Icon, Number, Name, SlotCount, NoSlot };
    enum class Element { None, Channel, Programme };

    struct Entities : QXmlStreamEntityResolver
    {
        QString resolveUndeclaredEntity(const QString &name) override;
    };

    void startElement();
    void endElement();
    void startEntry(Element element);
    void startDetail();
    void endDetail();
    void finishEntry();
    void finishChannel();
    void finishProgramme();
    std::optional<qint64> timeAttribute(QStringView name, QStringView text);
    int clumpIndex() const;
    int languageRank(QStringView language) const;
    void problem(const QString &text);

    GuideInput *m_input = nullptr;
    QString m_language;
    QString m_folder;
    GuideBuilder *m_builder = nullptr;
    GuideReport *m_report = nullptr;
    Entities m_entities;
    QXmlStreamReader m_xml;
    QString m_error;
    bool m_foundGuide = false;
    int m_depth = 0;

    // The channel or programme being read.
    Element m_element = Element::None;
    QXmlStreamAttributes m_attributes;
    qint64 m_line = 0;
    qint64 m_column = 0;
    std::array<Choice, SlotCount> m_choices;
    // Its child element being read.
    Slot m_slot = NoSlot;
    int m_rank = 0;
    QString m_text;
};

} // namespace gallery

#endif // GALLERY_XMLTVPARSER_H
