// SPDX-License-Identifier: MIT
#include "gallery/data/xmltvparser.h"

#include "gallery/data/guideinput.h"
#include "gallery/data/pictureaddress.h"
#include "gallery/data/playlist.h"
#include "gallery/data/xmltvtime.h"

#include <algorithm>
#include <utility>

namespace gallery {

namespace {

// Levels of elements in a guide are five or six; the reader's stack of them takes memory.
constexpr int maximumDepth = 100;
constexpr int entryDepth = 2; // channels and programmes, below the root
constexpr int detailDepth = 3;

QStringView baseLanguage(QStringView language)
{
    const auto end = std::find_if(language.cbegin(), language.cend(),
                                  [](QChar c) { return c == u'-' || c == u'_' || c == u'.' || c == u'@'; });
    return language.left(end - language.cbegin());
}

QString normalizedLanguage(QStringView language)
{
    return language.toString().toLower().replace(u'_', u'-');
}

int lengthInSeconds(QStringView units, QStringView number)
{
    const int factor = units == u"hours" ? 3600 : units == u"minutes" ? 60 : units == u"seconds" ? 1 : 0;
    const int value = number.toInt();
    constexpr int longest = 7 * 86400;
    return value > 0 && value <= longest ? int(std::min<qint64>(qint64(value) * factor, longest)) : 0;
}

} // namespace

void XmltvParser::Choice::offer(const QString &candidate, int candidateRank)
{
    if (candidateRank <= rank || candidate.isEmpty())
        return;
    text = candidate;
    rank = candidateRank;
}

// A name that only the format's document type could explain, which is never fetched, stays as it is written.
// The reader looks for entities in the replacement again, so that a bare ampersand would never end.
QString XmltvParser::Entities::resolveUndeclaredEntity(const QString &name)
{
    if (name == QLatin1String("nbsp"))
        return QString(QChar::Nbsp);
    return QLatin1String("&amp;") + name + u';';
}

XmltvParser::XmltvParser(GuideInput *input, const QString &language, const QString &folder,
                         GuideBuilder *builder, GuideReport *report)
    : m_input(input)
    , m_language(normalizedLanguage(language))
    , m_folder(folder)
    , m_builder(builder)
    , m_report(report)
    , m_xml(input)
{
    m_xml.setNamespaceProcessing(false);
    m_xml.setEntityResolver(&m_entities);
}

void XmltvParser::parse()
{
    while (m_error.isEmpty() && !m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            endElement();
            break;
        case QXmlStreamReader::Characters:
            if (m_slot != NoSlot)
                m_text += m_xml.text();
            break;
        default:
            break;
        }
        m_input->tokenSeen();
    }
    if (!m_input->failure().isEmpty())
        m_error = m_input->failure();
    else if (m_error.isEmpty() && m_xml.hasError())
        m_error = m_xml.errorString();
    // An entry cut off by an error is shown with what is there of it.
    if (!m_error.isEmpty() && m_choices[Title].rank >= 0)
        finishEntry();
}

void XmltvParser::startElement()
{
    if (++m_depth > maximumDepth) {
        m_error = QStringLiteral("elements are nested more than %1 deep").arg(maximumDepth);
        return;
    }
    if (m_depth == 1) {
        m_foundGuide = m_xml.name() == u"tv";
        if (!m_foundGuide)
            m_error = QStringLiteral("the root element is <%1>, but a programme guide begins with <tv>")
                              .arg(m_xml.name().left(40));
    } else if (m_depth == entryDepth) {
        if (m_xml.name() == u"programme")
            startEntry(Element::Programme);
        else if (m_xml.name() == u"channel")
            startEntry(Element::Channel);
    } else if (m_depth == detailDepth && m_element != Element::None) {
        startDetail();
    }
}

void XmltvParser::endElement()
{
    if (m_depth == detailDepth && m_slot != NoSlot)
        endDetail();
    else if (m_depth == entryDepth)
        finishEntry();
    --m_depth;
}

void XmltvParser::startEntry(Element element)
{
    m_element = element;
    m_attributes = m_xml.attributes();
    m_line = line();
    m_column = column();
    m_choices = {};
}

void XmltvParser::startDetail()
{
    static constexpr std::array<std::pair<QStringView, Slot>, 5> programmeDetails { {
            { u"title", Title },
            { u"sub-title", SubTitle },
            { u"desc", Description },
            { u"category", Category },
            { u"length", Length },
    } };
    m_text.clear();
    if (m_xml.name() == u"icon")
        m_choices[Icon].offer(m_xml.attributes().value(QLatin1String("src")).trimmed().toString(), 0);
    if (m_element == Element::Channel) {
        m_slot = m_xml.name() == u"display-name" ? Name : NoSlot;
    } else {
        const auto detail = std::find_if(programmeDetails.cbegin(), programmeDetails.cend(),
                                         [this](const auto &known) { return known.first == m_xml.name(); });
        m_slot = detail != programmeDetails.cend() ? detail->second : NoSlot;
    }
    if (m_slot == Length)
        m_text = m_xml.attributes().value(QLatin1String("units")).toString() + u' ';
    m_rank = languageRank(m_xml.attributes().value(QLatin1String("lang")));
}

void XmltvParser::endDetail()
{
    const Slot slot = std::exchange(m_slot, NoSlot);
    const QString text = m_text.simplified();
    if (slot == Name && isChannelNumber(text))
        m_choices[Number].offer(text, 0);
    else
        m_choices[slot].offer(text, m_rank);
}

void XmltvParser::finishEntry()
{
    const Element element = std::exchange(m_element, Element::None);
    m_slot = NoSlot;
    if (element == Element::Channel)
        finishChannel();
    else if (element == Element::Programme)
        finishProgramme();
    m_choices = {};
}

void XmltvParser::finishChannel()
{
    Channel channel;
    channel.id = m_attributes.value(QLatin1String("id")).toString();
    channel.number = m_choices[Number].text;
    channel.name = m_choices[Name].text.isEmpty() ? channel.number : m_choices[Name].text;
    channel.icon = pictureAddress(m_choices[Icon].text, m_folder);
    channel.quality = channelQuality(channel.name, {});
    if (channel.id.isEmpty())
        problem(QStringLiteral("a channel without id is left out"));
    else
        m_builder->addChannel(channel);
}

void XmltvParser::finishProgramme()
{
    NewProgramme programme;
    programme.channelId = m_attributes.value(QLatin1String("channel")).toString();
    const std::optional<qint64> start = timeAttribute(u"start", m_attributes.value(QLatin1String("start")));
    if (!start || programme.channelId.isEmpty()) {
        ++m_report->skippedProgrammes;
        if (programme.channelId.isEmpty())
            problem(QStringLiteral("a programme without channel is left out"));
        return;
    }
    programme.start = *start;
    if (m_attributes.hasAttribute(QLatin1String("stop")))
        programme.stop = timeAttribute(u"stop", m_attributes.value(QLatin1String("stop")));
    if (programme.stop && *programme.stop < programme.start)
        problem(QStringLiteral("a programme stops before it starts: its stop is left out"));
    programme.title = m_choices[Title].text;
    programme.subTitle = m_choices[SubTitle].text;
    programme.description = m_choices[Description].text;
    programme.category = m_choices[Category].text;
    programme.picture = pictureAddress(m_choices[Icon].text, m_folder);
    programme.clumpIndex = clumpIndex();
    const QStringView length = m_choices[Length].text;
    const qsizetype blank = length.indexOf(u' ');
    programme.length = lengthInSeconds(length.left(std::max<qsizetype>(blank, 0)), length.mid(blank + 1));
    m_builder->addProgramme(programme);
}

std::optional<qint64> XmltvParser::timeAttribute(QStringView name, QStringView text)
{
    const std::optional<XmltvTime> time = parseXmltvTime(text);
    if (!time) {
        problem(QStringLiteral("the %1 \"%2\" of a programme is not a time; the %3 is left out")
                        .arg(name, text.left(40), name == u"start" ? u"programme" : name));
        return std::nullopt;
    }
    if (!time->zoneKnown)
        problem(QStringLiteral("the time zone of \"%1\" is not known and taken as UTC").arg(text.left(40)));
    return time->seconds;
}

// The first number of clumpidx="1/3".
int XmltvParser::clumpIndex() const
{
    const QStringView clump = m_attributes.value(QLatin1String("clumpidx"));
    const qsizetype slash = clump.indexOf(u'/');
    return clump.left(slash < 0 ? clump.size() : slash).trimmed().toInt();
}

// The higher, the better: the language itself, the same language elsewhere, any other.
int XmltvParser::languageRank(QStringView language) const
{
    if (language.isEmpty() || m_language.isEmpty())
        return 0;
    const QString candidate = normalizedLanguage(language);
    if (candidate == m_language)
        return 2;
    return baseLanguage(candidate) == baseLanguage(m_language) ? 1 : 0;
}

void XmltvParser::problem(const QString &text)
{
    ++m_report->problemCount;
    if (m_report->problems.size() < GuideReport::maximumProblems)
        m_report->problems.append({ m_line, m_column, text });
}

} // namespace gallery
