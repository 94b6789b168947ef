// SPDX-License-Identifier: GPL-2.0-or-later

// [program]
#include <dxfviewer/viewer/DXFViewer.h>

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    DXFViewer viewer;
    viewer.show();
    viewer.loadData(QStringLiteral("floor-plan.dxf"));
    return application.exec();
}
// [program]
