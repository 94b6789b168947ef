// SPDX-License-Identifier: GPL-2.0-or-later

#include "PictureExport.h"

#include "Ground.h"
#include "Picture.h"
#include "PictureFormats.h"
#include "Questions.h"
#include "ViewerParts.h"
#include "WaitCursor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QString>

namespace
{

struct PictureExportTexts {
    Q_DECLARE_TR_FUNCTIONS(PictureExport)
};

QString chosenPicture(const QString& drawingName, QWidget& window)
{
    QStringList filters;
    for (const QString& suffix : pictureSuffixes())
        filters += PictureExportTexts::tr("%1 pictures (*.%2)").arg(suffix.toUpper(), suffix);
    QFileDialog dialog(&window, PictureExportTexts::tr("Export Picture"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(pictureSuffixes().constFirst());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog, &filters](const QString& filter) {
                         const auto index = filters.indexOf(filter);
                         dialog.setDefaultSuffix(pictureSuffixes().value(index));
                     });
    const QFileInfo info(drawingName);
    dialog.selectFile(info.dir().filePath(info.completeBaseName() + QLatin1Char('.')
                                          + pictureSuffixes().constFirst()));
    return chosenFile(dialog);
}

} // namespace

void exportPicture(const DXFViewer& viewer, const QString& drawingName, QWidget& window)
{
    const auto document = shownDocument(viewer);
    if (!document)
        return;
    const QString fileName = chosenPicture(drawingName, window);
    if (fileName.isEmpty())
        return;

    QString reason;
    bool isWritten = false;
    {
        const WaitCursor waitCursor;
        isWritten = Picture(document, colorOf(Ground::White), QFileInfo(drawingName).fileName())
                        .write(fileName, reason);
    }
    if (!isWritten)
        showError(window, PictureExportTexts::tr("The picture cannot be written."), fileName,
                  reason);
}
