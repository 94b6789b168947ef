// SPDX-License-Identifier: GPL-2.0-or-later

// What crosses the border between library and host: classes that the host derives, casts of objects
// that either side made, and exceptions that pass through the library.

#include <dxfviewer/edit/ISelectionTool.h>
#include <dxfviewer/edit/RubberTool.h>
#include <dxfviewer/io/DXFReader.h>
#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/model/DXFPolyline.h>

#include <QApplication>
#include <QByteArray>
#include <QDebug>

#include <stdexcept>

namespace
{

constexpr char drawing[] = "0\nSECTION\n2\nENTITIES\n"
                           "0\nPOLYLINE\n8\n0\n66\n1\n70\n0\n"
                           "0\nVERTEX\n8\n0\n10\n0\n20\n0\n"
                           "0\nVERTEX\n8\n0\n10\n1\n20\n0\n"
                           "0\nSEQEND\n0\nENDSEC\n0\nEOF\n";

class Circle : public DXFEntity
{
public:
    int type() override { return 1; }
    QString toString() const override { return QStringLiteral("circle"); }
    void setup() override {}
    DXFEntity* clone() override { return new Circle(*this); }
};

class BrokenCircle : public Circle
{
public:
    void setup() override { throw std::runtime_error("no radius"); }
};

class Picker : public ISelectionTool
{
    Q_OBJECT

public:
    bool handle(QEvent&) override { return false; }
    QGraphicsItem* getMarker() override { return nullptr; }
};

class RefusingReader : public DXFReader
{
public:
    using DXFReader::DXFReader;

    void addPolyline(const DL_PolylineData&) override
    {
        throw std::runtime_error("no polylines here");
    }
};

bool castsEntities()
{
    const QSharedPointer<DXFDocument> document = DXFDocument::load(QByteArray(drawing));
    document->addEntity(QSharedPointer<Circle>::create());
    const QList<QSharedPointer<DXFEntity>> entities = document->entities();

    return entities.size() == 2 && entities.first().dynamicCast<DXFPolyline>()
           && !entities.first().dynamicCast<Circle>() && entities.last().dynamicCast<Circle>()
           && !entities.last().dynamicCast<DXFPolyline>()
           && entities.last().dynamicCast<IDeletable>();
}

bool castsTools()
{
    Picker picker;
    RubberTool eraser(QSharedPointer<DXFDocument>::create());
    QObject* first = &picker;
    QObject* second = &eraser;

    return qobject_cast<ISelectionTool*>(first) && dynamic_cast<ISelectionTool*>(first)
           && qobject_cast<ISelectionTool*>(second) && dynamic_cast<RubberTool*>(second)
           && !dynamic_cast<RubberTool*>(first) && !qobject_cast<Picker*>(second);
}

bool catchesWhatFliesThroughTheLibrary()
{
    DXFDocument document;
    document.addEntity(QSharedPointer<BrokenCircle>::create());
    try {
        document.setup();
    } catch (const std::runtime_error&) {
        return true;
    }
    return false;
}

/// load() returns false whatever the reader throws.
bool readsWithItsOwnReader()
{
    DXFDocument document;
    RefusingReader reader(document);
    DL_CreationInterface* creator = &reader;
    return dynamic_cast<DXFReader*>(creator) && !reader.load(QByteArray(drawing))
           && document.entities().isEmpty();
}

bool report(const char* what, bool passed)
{
    if (!passed)
        qWarning("failed: %s", what);
    return passed;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const bool entities = report("casts between entities", castsEntities());
    const bool tools = report("casts between tools", castsTools());
    const bool exceptions = report("exceptions", catchesWhatFliesThroughTheLibrary());
    const bool readers = report("readers", readsWithItsOwnReader());
    return entities && tools && exceptions && readers ? 0 : 1;
}

#include "main.moc"
