// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QString>
#include <QStringList>

namespace dxfviewer
{

class Record;
class WorkMeter;

/// The words of a text on a drawing, line by line, without the codes that format it.
/// @{
QString lineOfText(const Record& record);
QStringList linesOfParagraphs(const Record& record, WorkMeter& meter);
/// @}

} // namespace dxfviewer
