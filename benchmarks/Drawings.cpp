// SPDX-License-Identifier: GPL-2.0-or-later

#include "Drawings.h"

#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/Polylines.h"
#include "dxfviewer/model/SpecialValues.h"

#include <algorithm>
#include <cmath>
#include <random>

using dxfviewer::byLayerColor;
using dxfviewer::byLayerWidth;
using dxfviewer::noTrueColor;

namespace dxfbench
{

namespace
{

constexpr unsigned seed = 20;
constexpr double longestStep = 20.0;
constexpr double decimalsFactor = 1000.0;

constexpr int layerColors = 8;

int segmentsPerPolyline(const Plan& plan)
{
    switch (plan.shape) {
    case Shape::OnePolyline:
        return plan.segments;
    case Shape::TenEach:
        return 10;
    case Shape::OneEach:
        break;
    }
    return 1;
}

/// Three decimals, as drawings have them.
double rounded(double value)
{
    return std::round(value * decimalsFactor) / decimalsFactor;
}

/// Walks at random over the drawing, polyline by polyline.
class Walk
{
public:
    explicit Walk(const Plan& plan)
        : m_verticesLeft(0)
        , m_vertices(segmentsPerPolyline(plan) + 1)
    {
    }

    QPointF next()
    {
        if (m_verticesLeft == 0) {
            m_verticesLeft = m_vertices;
            m_at = QPointF(m_anywhere(m_random), m_anywhere(m_random));
        } else {
            m_at = QPointF(stepped(m_at.x()), stepped(m_at.y()));
        }
        --m_verticesLeft;
        return QPointF(rounded(m_at.x()), rounded(m_at.y()));
    }

private:
    double stepped(double from) { return std::clamp(from + m_step(m_random), 0.0, drawingSize); }

    int m_verticesLeft;
    int m_vertices;
    QPointF m_at;
    std::mt19937 m_random{seed};
    std::uniform_real_distribution<double> m_anywhere{0.0, drawingSize};
    std::uniform_real_distribution<double> m_step{-longestStep, longestStep};
};

QString layerName(int layer)
{
    return QStringLiteral("Layer %1").arg(layer);
}

void addLayers(DXFDocument& document, const Plan& plan)
{
    for (int i = 0; i < plan.layers; ++i) {
        const QString name = layerName(i);
        const auto layer = QSharedPointer<DXFLayer>::create(name, DXFLayer::Flags());
        layer->setAttributes(
            QSharedPointer<DXFAttributes>::create(name, 1 + i % layerColors, noTrueColor, 0,
                                                  QStringLiteral("CONTINUOUS"), 1.0, -1, false));
        document.addLayer(layer);
    }
}

QByteArray group(int code, const QByteArray& value)
{
    return QByteArray::number(code).rightJustified(3) + '\n' + value + '\n';
}

QByteArray layerTable(const Plan& plan)
{
    QByteArray text = group(0, "SECTION") + group(2, "TABLES") + group(0, "TABLE")
                      + group(2, "LAYER") + group(70, QByteArray::number(plan.layers));
    for (int i = 0; i < plan.layers; ++i) {
        text += group(0, "LAYER") + group(2, layerName(i).toLatin1()) + group(70, "0")
                + group(62, QByteArray::number(1 + i % layerColors)) + group(6, "CONTINUOUS");
    }
    return text + group(0, "ENDTAB") + group(0, "ENDSEC");
}

} // namespace

QByteArray makeText(const Plan& plan)
{
    QByteArray text = layerTable(plan) + group(0, "SECTION") + group(2, "ENTITIES");
    Walk walk(plan);
    const int perPolyline = segmentsPerPolyline(plan);
    for (int i = 0; i < plan.segments / perPolyline; ++i) {
        text += group(0, "LWPOLYLINE") + group(8, layerName(i % plan.layers).toLatin1())
                + group(90, QByteArray::number(perPolyline + 1)) + group(70, "0");
        for (int vertex = 0; vertex <= perPolyline; ++vertex) {
            const QPointF point = walk.next();
            text += group(10, QByteArray::number(point.x(), 'f', 3))
                    + group(20, QByteArray::number(point.y(), 'f', 3));
        }
    }
    return text + group(0, "ENDSEC") + group(0, "EOF");
}

QSharedPointer<DXFDocument> makeDocument(const Plan& plan)
{
    const auto document = QSharedPointer<DXFDocument>::create();
    addLayers(*document, plan);
    Walk walk(plan);
    const int perPolyline = segmentsPerPolyline(plan);
    for (int i = 0; i < plan.segments / perPolyline; ++i) {
        const auto polyline = QSharedPointer<DXFPolyline>::create(0U, 0U, 0U);
        polyline->setAttributes(QSharedPointer<DXFAttributes>::create(
            layerName(i % plan.layers), byLayerColor, noTrueColor, byLayerWidth,
            QStringLiteral("BYLAYER"), 1.0, -1, false));
        for (int vertex = 0; vertex <= perPolyline; ++vertex) {
            const QPointF point = walk.next();
            polyline->appendPoint(DXFVertex(point.x(), point.y(), 0.0, true, 0.0));
        }
        document->addEntity(polyline);
    }
    return document;
}

QSharedPointer<DXFDocument> makeReadyDocument(const Plan& plan)
{
    const auto document = makeDocument(plan);
    document->setup();
    return document;
}

QVector<int> segmentIdsOf(const DXFDocument& document)
{
    QVector<int> ids;
    for (const auto& [begin, end] : spansOf(document)) {
        for (const Segment* segment = begin; segment != end; ++segment)
            ids.append(segment->id());
    }
    return ids;
}

Spans spansOf(const DXFDocument& document)
{
    Spans spans;
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        const DXFPolyline* polyline = dxfviewer::asPolyline(entity);
        if (!polyline)
            continue;
        const auto segments = polyline->segments();
        spans.emplace_back(segments.constData(), segments.constData() + segments.size());
    }
    return spans;
}

double plainSum(const Spans& spans)
{
    double sum = 0.0;
    for (const auto& [begin, end] : spans) {
        for (const Segment* segment = begin; segment != end; ++segment) {
            const QLineF line = segment->line();
            sum += line.x1() + line.y1() + line.x2() + line.y2();
        }
    }
    return sum;
}

} // namespace dxfbench
