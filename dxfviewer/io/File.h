// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cstdio>
#include <memory>

namespace dxfviewer
{

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// An open file, which is closed with its owner, or null.
using File = std::unique_ptr<std::FILE, FileCloser>;

} // namespace dxfviewer
