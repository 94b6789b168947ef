// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DrawingParser.h"

#include "dxfviewer/io/ClassicNumbers.h"
#include "dxfviewer/io/File.h"
#include "dxfviewer/io/GroupScan.h"
#include "dxfviewer/io/IReadingSteps.h"
#include "dxfviewer/io/TextRepair.h"
#include "dxfviewer/io/WorkMeter.h"

#include <QtGlobal>

#include <dl_creationinterface.h>
#include <dl_dxf.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <istream>
#include <optional>
#include <sstream>
#include <streambuf>
#include <system_error>
#include <utility>

namespace
{

using dxfviewer::ClassicNumbers;
using dxfviewer::File;
using dxfviewer::WorkMeter;

// For files that do not tell their size.
constexpr std::size_t leastRoom = 1 << 17;

// Between two pieces of a file the receiver may end the read.
constexpr std::size_t longestPiece = 1 << 20;

/// One parser per text: dxflib carries state over.
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
        // A failed allocation leaves the parser with an array that it has freed and would free
        // again. So the parser is kept and never destroyed. Other threads may do the same now.
        m_kept->next = s_abandoned.load();
        while (!s_abandoned.compare_exchange_weak(m_kept->next, m_kept)) {
        }
    }

    DL_Dxf* operator->() const { return &m_kept->parser; }

private:
    Q_DISABLE_COPY(Parser)

    struct Kept {
        DL_Dxf parser;
        Kept* next = nullptr;
    };

    static std::atomic<Kept*> s_abandoned;

    Kept* m_kept;
    int m_exceptions;
};

std::atomic<Parser::Kept*> Parser::s_abandoned{nullptr};

/// Null unless it is a regular file: other files may block or never end.
File openRegularFile(const std::string& name)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(std::filesystem::path(name), error))
        return nullptr;
    return File(std::fopen(name.c_str(), "rb"));
}

/// 0 if it cannot be found out.
std::uintmax_t sizeOf(const std::string& name)
{
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(std::filesystem::path(name), error);
    return error ? 0 : size;
}

/// Text in memory that a stream reads in place.
class TextBuffer final : public std::streambuf
{
public:
    void show(const char* begin, const char* end)
    {
        // The stream never puts a character back, so it never writes.
        char* const text = const_cast<char*>(begin);
        setg(text, text, text + (end - begin));
    }
};

/// Null if the receiver has no such steps.
IReadingSteps* stepsOf(DL_CreationInterface& receiver)
{
    return dynamic_cast<IReadingSteps*>(&receiver);
}

/// Hands dxflib the groups of a text one by one: the receiver can stop between any two, and keep
/// groups for itself.
class GroupFeed
{
public:
    explicit GroupFeed(DL_CreationInterface& receiver)
        : m_receiver(receiver)
        , m_steps(stepsOf(receiver))
        , m_meter(m_steps)
        , m_stream(&m_buffer)
    {
        // A new parser is ready for the first group only after it has looked for one.
        std::istringstream nothing;
        m_parser->in(nothing, &m_receiver);
    }

    void add(std::string_view text)
    {
        const char* const end = text.data() + text.size();
        dxfviewer::scanGroups(text, [this, end](std::string_view code, std::string_view value) {
            const char* const valueEnd = value.data() + value.size();
            addGroup(code, value, valueEnd == end ? end : valueEnd + 1);
            return true;
        });
    }

private:
    Q_DISABLE_COPY(GroupFeed)

    void addGroup(std::string_view codeLine, std::string_view valueLine, const char* end)
    {
        m_meter.add();
        const int code = dxfviewer::toInt(codeLine);
        m_value = dxfviewer::strippedValue(valueLine);
        m_receiver.processCodeValuePair(static_cast<unsigned int>(code), m_value);
        if (m_steps && m_steps->takesGroup(code, m_value))
            return;
        m_buffer.show(codeLine.data(), end);
        m_parser->readDxfGroups(m_stream, &m_receiver);
    }

    DL_CreationInterface& m_receiver;
    IReadingSteps* m_steps;
    WorkMeter m_meter;
    Parser m_parser;
    TextBuffer m_buffer;
    std::istream m_stream;
    std::string m_value;
};

void parse(std::string_view text, DL_CreationInterface& receiver)
{
    const auto repaired = dxfviewer::repaired(text, stepsOf(receiver));
    GroupFeed(receiver).add(repaired ? *repaired : text);
}

/// The text that the receiver wants to be read in place of these bytes, if there is one.
std::optional<std::string> replacementOf(std::string_view bytes, DL_CreationInterface& receiver)
{
    auto* steps = stepsOf(receiver);
    return steps ? steps->textOf(bytes) : std::nullopt;
}

bool finish(DL_CreationInterface& receiver)
{
    auto* steps = stepsOf(receiver);
    return !steps || steps->finishReading();
}

/// What is left of a file, up to a read error.
std::string contentOf(std::FILE* file, std::uintmax_t expectedSize, IReadingSteps* steps)
{
    std::string content;
    std::size_t filled = 0;
    std::size_t added = 0;
    // One byte more: the read that finds the end of the file then needs no more room.
    auto room = static_cast<std::size_t>(expectedSize) + 1;
    do {
        if (filled == content.size()) {
            content.resize(std::max(room, leastRoom));
            room = 2 * content.size();
        }
        const std::size_t wanted = std::min(content.size() - filled, longestPiece);
        added = std::fread(content.data() + filled, 1, wanted, file);
        filled += added;
        if (steps)
            steps->goOn();
    } while (added != 0);
    content.resize(filled);
    return content;
}

/// False if the file cannot be read to its end.
bool parseContent(std::FILE* file, std::uintmax_t expectedSize, DL_CreationInterface& receiver)
{
    std::string content = contentOf(file, expectedSize, stepsOf(receiver));
    if (auto replacement = replacementOf(content, receiver))
        content = std::move(*replacement);
    parse(content, receiver);
    return std::ferror(file) == 0;
}

/// Tells the receiver which exception is being handled.
void tellFailure(DL_CreationInterface& receiver)
{
    try {
        if (auto* steps = stepsOf(receiver))
            steps->readingFailed(std::current_exception());
    } catch (...) {
        // The read has failed already.
    }
}

/// Runs a parse without the host's locale. False if it throws.
template <typename Parse>
bool guarded(DL_CreationInterface& receiver, Parse parse)
{
    try {
        const ClassicNumbers numbers;
        return parse();
    } catch (...) {
        // Memory has run out, or the receiver gives up.
        tellFailure(receiver);
        return false;
    }
}

} // namespace

namespace dxfviewer
{

bool parseFile(const std::string& name, DL_CreationInterface& receiver)
{
    return guarded(receiver, [&name, &receiver] {
        const File file = openRegularFile(name);
        return file && parseContent(file.get(), sizeOf(name), receiver) && finish(receiver);
    });
}

bool parseFile(std::FILE* file, DL_CreationInterface& receiver)
{
    return guarded(receiver, [file, &receiver] {
        return parseContent(file, 0, receiver) && finish(receiver);
    });
}

bool parseText(std::string_view bytes, DL_CreationInterface& receiver)
{
    return guarded(receiver, [bytes, &receiver] {
        if (const auto replacement = replacementOf(bytes, receiver))
            parse(replacement->substr(0, replacement->find('\0')), receiver);
        else
            parse(bytes.substr(0, bytes.find('\0')), receiver);
        return finish(receiver);
    });
}

} // namespace dxfviewer
