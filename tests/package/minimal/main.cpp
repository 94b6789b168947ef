// SPDX-License-Identifier: GPL-2.0-or-later

#include <dxfviewer/viewer/DXFViewer.h>

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    DXFViewer viewer;
    viewer.show();
    viewer.loadData(QByteArray("0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n"));
    return viewer.getData().contains("ENTITIES") ? 0 : 1;
}
