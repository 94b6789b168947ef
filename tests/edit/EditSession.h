// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFPolyline.h"

#include "tests/support/Builders.h"
#include "tests/support/OtherEntity.h"

#include <QStringList>

#include <memory>
#include <random>
#include <vector>

namespace dxftest
{

/// A host's own polyline, with data of its own.
class MarkedPolyline : public DXFPolyline
{
public:
    using DXFPolyline::DXFPolyline;

    QString toString() const override { return DXFPolyline::toString() + QString::number(mark); }

    MarkedPolyline* clone() override
    {
        auto* copy = new MarkedPolyline(*this);
        copy->regenerateID();
        return copy;
    }

    int mark = 0;
};

/// A session of random edits by a host and by commands. The same seed gives the same session.
template <typename Command>
class EditSession
{
public:
    explicit EditSession(unsigned seed)
        : m_random(seed)
        , m_firstId(IDeletable().id())
    {
        for (int i = 0; i < 6; ++i)
            m_document->addEntity(newEntity());
        m_document->setup();
    }

    void step()
    {
        const int what = upTo(9);
        if (what < 3)
            push();
        else if (what < 5)
            undo();
        else
            changeSomething();
    }

    /// All that can be seen of the document. Ids are counted from the start of the session. This
    /// looks at clones, because looking at vertices changes the state of a polyline.
    QStringList state() const
    {
        QStringList lines;
        for (const QSharedPointer<DXFEntity>& entity : m_document->entities()) {
            if (!entity) {
                lines << QStringLiteral("null");
                continue;
            }
            lines << stateOf(*entity);
            const std::unique_ptr<DXFEntity> copy(entity->clone());
            if (auto* polyline = dynamic_cast<DXFPolyline*>(copy.get())) {
                lines << stateOf(*polyline);
                // Skips a step that is not possible now.
                polyline->setup();
                lines << stateOf(*polyline);
            }
        }
        lines << QString::number(counted(IDeletable().id()));
        return lines;
    }

    QSharedPointer<DXFDocument> document() const { return m_document; }

private:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }
    int counted(int id) const { return id - m_firstId; }

    QString stateOf(const DXFEntity& entity) const
    {
        return QStringLiteral("%1 id %2 %3%4 %5 %6 %7")
            .arg(entity.toString())
            .arg(counted(entity.id()))
            .arg(entity.isSelected())
            .arg(entity.isHovered())
            .arg(entity.color().name())
            .arg(entity.lineWidth())
            .arg(entity.attributes() ? entity.attributes()->layerName() : QString());
    }

    QString stateOf(const DXFPolyline& polyline) const
    {
        QString line;
        for (const DXFVertex& vertex : polyline.vertices()) {
            for (const double value : {vertex.x(), vertex.y(), vertex.z(), vertex.bulge()})
                line += QString::number(value) + QLatin1Char(' ');
        }
        for (const Segment& segment : polyline.segments()) {
            line += QStringLiteral("| %1 %2 %3 %4 id %5 %6%7")
                        .arg(segment.line().x1())
                        .arg(segment.line().y1())
                        .arg(segment.line().x2())
                        .arg(segment.line().y2())
                        .arg(counted(segment.id()))
                        .arg(segment.isSelected())
                        .arg(segment.isHovered());
        }
        return line;
    }

    DXFVertex newVertex()
    {
        const bool isPlain = upTo(3) > 0;
        return DXFVertex(upTo(9), upTo(9), isPlain ? 0 : upTo(2), true, isPlain ? 0 : upTo(2));
    }

    template <typename Class>
    QSharedPointer<Class> filled(QSharedPointer<Class> polyline)
    {
        for (int vertices = upTo(6); vertices > 0; --vertices)
            polyline->appendPoint(newVertex());
        return polyline;
    }

    QSharedPointer<DXFEntity> newEntity()
    {
        switch (upTo(9)) {
        case 0:
            return nullptr;
        case 1:
            return QSharedPointer<OtherEntity>::create(upTo(1) - 2);
        case 2: {
            const auto marked = filled(QSharedPointer<MarkedPolyline>::create(1U, 2U, 1U));
            marked->mark = upTo(99);
            return marked;
        }
        default:
            return filled(QSharedPointer<DXFPolyline>::create(static_cast<unsigned>(upTo(2)), 0U,
                                                              static_cast<unsigned>(upTo(3))));
        }
    }

    QVector<int> someSegmentIds()
    {
        QVector<int> ids;
        for (int id : segmentIdsOf(m_document)) {
            if (upTo(5) == 0)
                ids.append(id);
        }
        return ids;
    }

    void push()
    {
        m_commands.push_back(std::make_unique<Command>(m_document, someSegmentIds()));
        m_commands.back()->redo();
    }

    void undo()
    {
        if (m_commands.empty())
            return;
        m_commands.back()->undo();
        m_commands.pop_back();
    }

    void changeSomething()
    {
        const auto entities = m_document->entities();
        const QSharedPointer<DXFEntity> entity = entities.value(upTo(8));
        if (upTo(4) == 0) {
            changeDocument(entity);
            return;
        }
        if (!entity)
            return;
        if (auto* polyline = upTo(2) > 0 ? dynamic_cast<DXFPolyline*>(entity.data()) : nullptr)
            changePolyline(*polyline);
        else
            changeEntity(*entity);
    }

    void changeDocument(const QSharedPointer<DXFEntity>& entity)
    {
        switch (upTo(4)) {
        case 0:
            m_document->addEntity(newEntity());
            break;
        case 1:
            m_document->addEntity(entity);
            break;
        case 2:
            m_document->deleteEntity(entity);
            break;
        case 3:
            m_document->setSelected(someSegmentIds());
            break;
        default:
            m_document->setHovered(someSegmentIds());
            break;
        }
    }

    void changeEntity(DXFEntity& entity)
    {
        switch (upTo(4)) {
        case 0:
            entity.setColor(QColor(upTo(1), 0, 0));
            break;
        case 1:
            entity.setLineWidth(upTo(1));
            break;
        case 2:
            entity.setAttributes(makeAttributes(QString::number(upTo(1)), 1));
            break;
        case 3:
            entity.setSelected(upTo(1) == 0);
            break;
        default:
            entity.setHovered(upTo(1) == 0);
            break;
        }
    }

    void changePolyline(DXFPolyline& polyline)
    {
        switch (upTo(7)) {
        case 0:
            polyline.appendPoint(newVertex());
            break;
        case 1:
            polyline.setup();
            break;
        case 2:
            polyline.setSegments(polyline.segments());
            break;
        case 3:
            polyline.setSegments(polyline.segments().mid(upTo(2)));
            break;
        case 4:
            polyline.setSegments({Segment(QLineF(0, 0, 1, 1)), Segment(QLineF(1, 1, 2, upTo(1)))});
            break;
        case 5:
            polyline.vertices();
            break;
        case 6:
            polyline.setSelectedSegments(someSegmentIds());
            break;
        default:
            polyline = DXFPolyline(polyline);
            break;
        }
    }

    std::mt19937 m_random;
    int m_firstId;
    QSharedPointer<DXFDocument> m_document = QSharedPointer<DXFDocument>::create();
    std::vector<std::unique_ptr<Command>> m_commands;
};

} // namespace dxftest
