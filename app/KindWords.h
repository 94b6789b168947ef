// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QMap>

struct DrawingRead;
class QString;

// The counts of a reader, in words. Their keys are the names of entities in DXF.

/// "Not shown: 12 hatches, 3 images"; empty if nothing was skipped.
QString notShownSentence(const QMap<QString, int>& skipped);

/// What replacing the file of a drawing would change: "It is the drawing that was opened. 4 arcs
/// and 2 blocks become polylines. 12 hatches are lost. What lies on layouts is lost. ..."
QString changesSentence(const DrawingRead& drawing);
