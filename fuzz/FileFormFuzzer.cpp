// SPDX-License-Identifier: GPL-2.0-or-later

// A drawing in a file. Reading it must give the same as reading the same text in memory.

#include "fuzz/Drawing.h"

#include "dxfviewer/io/DXFReader.h"

#include <QTemporaryFile>

#include <clocale>
#include <locale>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace
{

/// The next descriptor that the process would get. It is larger if one was left open.
int nextDescriptor()
{
    const int descriptor = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::close(descriptor);
    return descriptor;
}

/// One file for all inputs: to write it is faster than to create a new one for each.
QTemporaryFile& scratchFile()
{
    static QTemporaryFile file;
    if (!file.isOpen())
        dxffuzz::require(file.open(), "there is no temporary file to work with");
    return file;
}

void fill(QTemporaryFile& file, const QByteArray& text)
{
    const bool isWritten = file.resize(0) && file.seek(0) && file.write(text) == text.size();
    dxffuzz::require(isWritten && file.flush(), "the temporary file cannot be written");
}

/// Both forms give the same if the text has no zero byte. The bytes form ends at one.
bool readsAlike(const QByteArray& text)
{
    return !text.contains('\0');
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    dxffuzz::silenceLog();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray text = dxffuzz::textOf(data, size);
    QTemporaryFile& file = scratchFile();
    fill(file, text);
    const int descriptorBefore = nextDescriptor();
    const std::string localeBefore = std::setlocale(LC_ALL, nullptr);
    const std::locale cppLocaleBefore;

    DXFDocument document;
    DXFReader(document).load(file.fileName());

    dxffuzz::require(localeBefore == std::setlocale(LC_ALL, nullptr), "the C locale has changed");
    dxffuzz::require(cppLocaleBefore == std::locale(), "the C++ locale has changed");
    dxffuzz::require(descriptorBefore == nextDescriptor(), "a descriptor was left open");
    dxffuzz::requireBounded(document, text);
    if (readsAlike(text)) {
        DXFDocument fromBytes;
        DXFReader(fromBytes).load(text);
        dxffuzz::require(
            dxffuzz::areIdentical(dxffuzz::shapesOf(document), dxffuzz::shapesOf(fromBytes)),
            "file and bytes give different polylines");
    }
    return 0;
}
