// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QString>
#include <QVector>

#include <ostream>

namespace dxftest
{

/// A text of the source code, as in a .ts file.
struct SourceText {
    QString context;
    QString text;
    QString comment;
};

bool operator==(const SourceText& left, const SourceText& right);
void PrintTo(const SourceText& text, std::ostream* stream);

/// The texts of a .ts file, in order; none if it cannot be read.
QVector<SourceText> textsOf(const QString& tsFileName);

/// The texts that are to be translated in the sources of a folder now, as lupdate finds them.
QVector<SourceText> textsInSources(const QString& folder);

} // namespace dxftest
