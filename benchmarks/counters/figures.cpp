// SPDX-License-Identifier: MIT
#include "figures.h"

#include "forms/forms.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/stage.h"

namespace stbbench {
namespace {

const QColor background(0x10, 0x18, 0x28);

/*! A row on a stage whose frames are checked: a figure of a wrong picture is worth nothing. */
class CountedRow
{
public:
    explicit CountedRow(Form &form)
        : m_stage(QSize(640, 180), background)
        , m_form(form)
    {
        m_stage.renderFrame();
        m_created = stbtest::objectsCreated([this] {
            m_texts = stbtest::textsLaidOut([this] {
                m_row = m_form.create(programme(1));
                m_row->setParentItem(m_stage.contentItem());
                m_row->setPosition(QPointF(16, 12));
                m_firstFrame = stbtest::pixelCount(m_stage.renderFrame());
            });
        });
    }

    qint64 painted(const char *property, const QVariant &value)
    {
        const qint64 pixels = stbtest::pixelsPainted(m_stage, [this, property, &value] {
            if (!m_row->setProperty(property, value))
                qFatal("%s has no property %s", qPrintable(m_form.name()), property);
        });
        checkPicture();
        return pixels;
    }

    qint64 paintedByUpdate()
    {
        return stbtest::pixelsPainted(m_stage, [this] { m_row->update(); });
    }

    qint64 textsFor(const char *property, const QVariant &value)
    {
        return stbtest::textsLaidOut([this, property, &value] {
            m_row->setProperty(property, value);
            m_stage.renderFrame();
        });
    }

    QQuickItem *row() const { return m_row.get(); }
    int created() const { return m_created; }
    qint64 texts() const { return m_texts; }
    qint64 firstFrame() const { return m_firstFrame; }

private:
    void checkPicture()
    {
        if (m_stage.picture() == m_stage.renderWhole())
            return;
        qFatal("%s: its frames do not add up to its picture, see %s", qPrintable(m_form.name()),
               qPrintable(stbtest::savePicture(m_stage.picture(), QStringLiteral("counters-frames"))));
    }

    stbtest::Stage m_stage;
    Form &m_form;
    std::unique_ptr<QQuickItem> m_row;
    int m_created = 0;
    qint64 m_texts = 0;
    qint64 m_firstFrame = 0;
};

} // namespace

QList<Figure> countRow(Form &form)
{
    form.create(programme(0)); // what is made once for all rows is no part of a row
    CountedRow row(form);
    QList<Figure> figures;
    const auto add = [&figures](const char *name, qint64 value) {
        figures.append({ QLatin1String(name), value });
    };
    add("objects", stbtest::objectCount(row.row()));
    add("objects created", row.created());
    add("items", stbtest::itemCount(row.row()));
    add("nodes", stbtest::itemNodeCount(row.row()));
    add("platform texts, first frame", row.texts());
    add("pixels, first frame", row.firstFrame());
    add("pixels, nothing changed", row.paintedByUpdate());
    add("pixels, same title again", row.painted("itemTitle", programme(1).title));
    add("pixels, title changed", row.painted("itemTitle", programme(2).title));
    add("pixels, subtitle changed", row.painted("itemSubtitle", programme(2).subtitle));
    add("pixels, start time changed", row.painted("tvProgramStartTimeText", programme(2).startTime));
    add("pixels, playable switched", row.painted("tvProgramPlayable", true));
    add("pixels, live switched on", row.painted("tvProgramIsLive", true));
    add("nodes, live", stbtest::itemNodeCount(row.row()));
    add("pixels, title changed while live", row.painted("itemTitle", programme(3).title));
    add("pixels, live switched off", row.painted("tvProgramIsLive", false));
    add("platform texts, title changed", row.textsFor("itemTitle", programme(4).title));
    add("platform texts, playable switched", row.textsFor("tvProgramPlayable", false));
    return figures;
}

QImage picture(Form &form)
{
    stbtest::Stage stage(QSize(640, 180), background);
    Programme shown = programme(1);
    const std::unique_ptr<QQuickItem> quiet = form.create(shown);
    shown.live = true;
    const std::unique_ptr<QQuickItem> live = form.create(shown);
    for (QQuickItem *row : { live.get(), quiet.get() }) {
        row->setParentItem(stage.contentItem());
        row->setPosition(QPointF(16, row == live.get() ? 12 : 108));
    }
    stage.renderFrame();
    return stage.picture();
}

} // namespace stbbench
