// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/io/File.h"

#include <dl_writer_ascii.h>

#include <string>
#include <string_view>

namespace dxfviewer
{

/**
 * Writes groups to a file in dxflib's own form, without the faults of its writer.
 *
 * dxflib's writer overruns its buffer on large numbers, writes digits as the locale has them,
 * writes nan as it is, writes line ends in a name, so that its rest is read as groups, flushes
 * after each number, and hides errors. The text here is the same for every number that dxflib can
 * write, and exact for larger ones.
 */
class GroupWriter final : public DL_WriterA
{
public:
    /// Creates the file, or empties it.
    GroupWriter(const char* fileName, DL_Codes::version version);
    ~GroupWriter() override;

    void dxfReal(int code, double value) const override;
    void dxfInt(int code, int value) const override;
    void dxfHex(int code, int value) const override;
    void dxfString(int code, const char* value) const override;
    void dxfString(int code, const std::string& value) const override;

    /// Writes what is left and closes the file. False if any of the text is not in the file.
    bool finish();

private:
    void appendCode(int code) const;
    void appendLine(std::string_view line) const;
    void flushIfLong() const;
    void flush() const;

    mutable File m_file;
    mutable std::string m_text;
    mutable bool m_failed = false;
};

} // namespace dxfviewer
