// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/WindowParts.h"
#include "tests/support/Patience.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "dxfviewer/viewer/View.h"

#include <QAction>
#include <QByteArray>
#include <QGraphicsScene>
#include <QString>
#include <QTest>
#include <QToolBar>

namespace dxftest
{

namespace
{

constexpr int significantDigits = 17;

template <typename Part>
Part& partOf(const DXFViewer& window, const char* name)
{
    auto* part = window.findChild<Part*>(QString::fromLatin1(name));
    if (!part)
        qFatal("the window has no %s", name);
    return *part;
}

template <typename Item>
QVector<Item*> itemsOfType(const DXFViewer& window)
{
    QVector<Item*> found;
    const auto items = sceneOf(window).items();
    for (QGraphicsItem* item : items) {
        if (auto* match = dynamic_cast<Item*>(item))
            found.append(match);
    }
    return found;
}

template <typename Source>
bool loadFrom(DXFViewer& window, const Source& source)
{
    const auto before = shownDocument(window);
    window.loadData(source);
    return eventually([&] {
        const auto shown = shownDocument(window);
        return shown && shown != before;
    });
}

QByteArray coordinate(int group, double value)
{
    return QByteArray::number(group) + "\n" + QByteArray::number(value, 'g', significantDigits)
           + "\n";
}

} // namespace

QByteArray drawingText(const QVector<Chain>& chains)
{
    QByteArray text = "0\nSECTION\n2\nENTITIES\n";
    for (const Chain& chain : chains) {
        text +=
            "0\nPOLYLINE\n8\n0\n66\n1\n70\n" + QByteArray::number(chain.isClosed ? 1 : 0) + "\n";
        for (const QPointF& point : chain.points) {
            text += "0\nVERTEX\n8\n0\n" + coordinate(10, point.x()) + coordinate(20, point.y())
                    + coordinate(30, 0.0);
        }
        text += "0\nSEQEND\n8\n0\n";
    }
    return text + "0\nENDSEC\n0\nEOF\n";
}

View& viewOf(const DXFViewer& window)
{
    return partOf<View>(window, "graphicsView");
}

QGraphicsScene& sceneOf(const DXFViewer& window)
{
    return *viewOf(window).scene();
}

QToolBar& toolBarOf(const DXFViewer& window)
{
    return partOf<QToolBar>(window, "mainToolBar");
}

QAction& actionOf(const DXFViewer& window, const char* name)
{
    return partOf<QAction>(window, name);
}

QAction& editActionOf(const DXFViewer& window)
{
    return actionOf(window, "actionEdit_dxf");
}

QVector<DXFGraphicsItem*> itemsOf(const DXFViewer& window)
{
    return itemsOfType<DXFGraphicsItem>(window);
}

QSharedPointer<DXFDocument> shownDocument(const DXFViewer& window)
{
    const auto items = itemsOf(window);
    return items.isEmpty() ? nullptr : items.first()->document();
}

QVector<DXFEditor*> editorsOf(const DXFViewer& window)
{
    return itemsOfType<DXFEditor>(window);
}

bool loadAndShow(DXFViewer& window, const QByteArray& text)
{
    return loadFrom(window, text);
}

bool loadAndShow(DXFViewer& window, const QString& fileName)
{
    return loadFrom(window, fileName);
}

} // namespace dxftest
