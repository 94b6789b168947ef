// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

class DXFViewer;
class QString;
class QWidget;

/// Asks for the name of a picture file and writes the whole drawing to it, on white, as on paper.
void exportPicture(const DXFViewer& viewer, const QString& drawingName, QWidget& window);
