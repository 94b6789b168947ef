// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DrawingParser.h"

#include "dxfviewer/io/ClassicNumbers.h"
#include "dxfviewer/io/TextCheck.h"
#include "dxfviewer/io/TextRepair.h"

#include <QtGlobal>

#include <dl_dxf.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <sstream>
#include <system_error>
#include <vector>

namespace
{

using dxfviewer::ClassicNumbers;
using dxfviewer::TextCheck;

// Small enough to stay in the processor's cache.
constexpr std::size_t pieceLength = 1 << 17;

/// A parser for one text: it would let one drawing show up in the next.
class Parser
{
public:
    Parser()
        : m_kept(new Kept)
        , m_exceptions(std::uncaught_exceptions())
    {
    }

    ~Parser()
    {
        if (std::uncaught_exceptions() == m_exceptions) {
            delete m_kept;
            return;
        }
        // An allocation that failed leaves the parser with an array that it has freed and would
        // free again.
        m_kept->next = s_abandoned;
        s_abandoned = m_kept;
    }

    DL_Dxf* operator->() const { return &m_kept->parser; }

private:
    Q_DISABLE_COPY(Parser)

    struct Kept {
        DL_Dxf parser;
        Kept* next = nullptr;
    };

    static Kept* s_abandoned;

    Kept* m_kept;
    int m_exceptions;
};

Parser::Kept* Parser::s_abandoned = nullptr;

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

/// Null unless it is a regular file: others may block, or never end.
File openRegularFile(const std::string& name)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(std::filesystem::path(name), error))
        return nullptr;
    return File(std::fopen(name.c_str(), "rb"));
}

/// False if the text could not be copied: the stream keeps to itself that memory has run out, but
/// dxflib refuses such a stream.
bool parse(std::string_view text, DL_CreationInterface& receiver)
{
    std::stringstream stream;
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    const Parser parser;
    return parser->in(stream, &receiver);
}

/// What dxflib does with a file's name, but the file is closed whatever is thrown, and a read error
/// ends it. False in that case.
bool parse(std::FILE* file, DL_CreationInterface& receiver)
{
    const Parser parser;
    // A new parser is made ready for the first group by the look for one.
    std::istringstream nothing;
    parser->in(nothing, &receiver);
    while (parser->readDxfGroups(file, &receiver)) {
        if (std::ferror(file))
            return false;
    }
    return true;
}

bool repairAndParse(std::string_view text, DL_CreationInterface& receiver)
{
    return dxfviewer::isSound(text) ? parse(text, receiver)
                                    : parse(dxfviewer::repaired(text), receiver);
}

/// Whether dxflib can be given the file as it is. False also if it cannot be read.
bool isSoundFile(std::FILE* file)
{
    std::vector<char> buffer(pieceLength);
    std::size_t filled = 0;
    TextCheck check;
    for (;;) {
        const std::size_t added =
            std::fread(buffer.data() + filled, 1, buffer.size() - filled, file);
        filled += added;
        if (added == 0)
            break;
        const std::size_t looked = check.add({buffer.data(), filled});
        // A buffer without a pair of lines in it holds a line that is too long.
        if (!check.isSound() || (looked == 0 && filled == buffer.size()))
            return false;
        std::copy(buffer.begin() + static_cast<std::ptrdiff_t>(looked),
                  buffer.begin() + static_cast<std::ptrdiff_t>(filled), buffer.begin());
        filled -= looked;
    }
    check.addEnd({buffer.data(), filled});
    return check.isSoundInFile() && !std::ferror(file);
}

std::string readAll(std::FILE* file)
{
    std::string text;
    std::size_t filled = 0;
    std::size_t added = 0;
    do {
        text.resize(filled + std::max(filled, pieceLength));
        added = std::fread(text.data() + filled, 1, text.size() - filled, file);
        filled += added;
    } while (added != 0);
    text.resize(filled);
    return text;
}

bool checkAndParse(std::FILE* file, DL_CreationInterface& receiver)
{
    // Pieces are read into a buffer of their own.
    const bool sound = isSoundFile(file);
    std::rewind(file);
    if (sound)
        return parse(file, receiver);

    const bool parsed = repairAndParse(readAll(file), receiver);
    return parsed && std::ferror(file) == 0;
}

/// Runs a parse with the host's locale out of the way. False if it throws.
template <typename Parse>
bool guarded(Parse parse)
{
    try {
        const ClassicNumbers numbers;
        return parse();
    } catch (...) {
        // Memory has run out, or the receiver gives up. There is no third kind, and nobody to tell
        // but the caller.
        return false;
    }
}

} // namespace

namespace dxfviewer
{

bool parseFile(const std::string& name, DL_CreationInterface& receiver)
{
    return guarded([&name, &receiver] {
        const File file = openRegularFile(name);
        return file && checkAndParse(file.get(), receiver);
    });
}

bool parseFile(std::FILE* file, DL_CreationInterface& receiver)
{
    return guarded([file, &receiver] { return checkAndParse(file, receiver); });
}

bool parseText(std::string_view text, DL_CreationInterface& receiver)
{
    return guarded([text, &receiver] { return repairAndParse(text, receiver); });
}

} // namespace dxfviewer
