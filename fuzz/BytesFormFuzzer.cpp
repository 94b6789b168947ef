// SPDX-License-Identifier: GPL-2.0-or-later

// A drawing in memory, as a host hands it over.

#include "fuzz/Drawing.h"

#include "dxfviewer/io/DXFReader.h"

#include <clocale>
#include <locale>
#include <string>

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    dxffuzz::silenceLog();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray text = dxffuzz::textOf(data, size);
    const std::string localeBefore = std::setlocale(LC_ALL, nullptr);
    const std::locale cppLocaleBefore;

    DXFDocument document;
    DXFReader(document).load(text);

    dxffuzz::require(localeBefore == std::setlocale(LC_ALL, nullptr), "the C locale has changed");
    dxffuzz::require(cppLocaleBefore == std::locale(), "the C++ locale has changed");
    dxffuzz::requireBounded(document, text);
    document.setup();
    return 0;
}
