// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingRead.h"

#include "Cancelled.h"
#include "DrawingFile.h"
#include "ReadingPlace.h"
#include "ReadingWatch.h"

#include <dxfviewer/flatten/FlatteningReader.h>
#include <dxfviewer/io/DXFReader.h>
#include <dxfviewer/io/IReadingSteps.h>
#include <dxfviewer/model/DXFDocument.h>

#include <QCoreApplication>

#include <exception>
#include <new>

namespace
{

struct DrawingReadTexts {
    Q_DECLARE_TR_FUNCTIONS(DrawingRead)
};

/// The plain reader, with the steps at which a read can be cancelled.
class PolylineReader : public DXFReader, public IReadingSteps
{
public:
    using DXFReader::DXFReader;

    std::optional<std::string> textOf(std::string_view) override { return std::nullopt; }
    bool takesGroup(int, std::string_view) override { return false; }
    bool finishReading() override { return true; }
};

/// A reader that tells its place, and stops if it is cancelled.
template <typename Reader>
class WatchedReader : public Reader
{
public:
    template <typename... Arguments>
    explicit WatchedReader(ReadingPlace& place, Arguments&&... arguments)
        : Reader(std::forward<Arguments>(arguments)...)
        , m_place(place)
    {
    }

    /// Like load(), but what has ended the read leaves this function.
    bool read(const QByteArray& content)
    {
        const bool isRead = Reader::load(content);
        if (m_failure)
            std::rethrow_exception(m_failure);
        return isRead;
    }

    void goOn() override { m_place.goOn(); }
    void readingFailed(const std::exception_ptr& reason) override { m_failure = reason; }
    void processCodeValuePair(unsigned int code, const std::string& value) override
    {
        m_place.noteGroup(value.size());
        Reader::processCodeValuePair(code, value);
    }

private:
    ReadingPlace& m_place;
    std::exception_ptr m_failure;
};

DrawingRead onlyPolylinesOf(const QByteArray& content, ReadingPlace& place)
{
    DrawingRead result;
    result.document = QSharedPointer<DXFDocument>::create();
    WatchedReader<PolylineReader> reader(place, *result.document);
    if (!reader.read(content))
        result.document.reset();
    return result;
}

DrawingRead everythingOf(const QByteArray& content, const FlatteningOptions& options,
                         ReadingPlace& place)
{
    DrawingRead result;
    result.document = QSharedPointer<DXFDocument>::create();
    WatchedReader<FlatteningReader> reader(place, *result.document, options);
    if (!reader.read(content))
        result.document.reset();
    if (reader.isTooLarge())
        result.reason = DrawingReadTexts::tr("It has more lines and curves than can be shown.");
    result.shown = reader.shown();
    result.skipped = reader.skipped();
    result.elsewhere = reader.elsewhere();
    result.invisible = reader.invisible();
    return result;
}

DrawingRead parsed(const QByteArray& content, const ReadingChoices& choices, ReadingWatch& watch)
{
    ReadingPlace place(content, watch);
    DrawingRead result = choices.onlyPolylines ? onlyPolylinesOf(content, place)
                                               : everythingOf(content, choices.flattening(), place);
    result.choices = choices;
    if (!result.document && result.reason.isEmpty())
        result.reason = DrawingReadTexts::tr("It cannot be read.");
    return result;
}

} // namespace

DrawingRead readDocument(const QString& fileName, const ReadingChoices& choices,
                         ReadingWatch& watch)
{
    DrawingRead result;
    try {
        if (const auto content = readDrawing(fileName, result.reason, watch))
            result = parsed(*content, choices, watch);
    } catch (const Cancelled&) {
        return DrawingRead();
    } catch (const std::bad_alloc&) {
        result.reason = DrawingReadTexts::tr("There is not enough memory for the drawing.");
    } catch (const std::exception&) {
        result.reason = DrawingReadTexts::tr("It cannot be read.");
    }
    if (watch.isCancelled())
        result = DrawingRead();
    return result;
}
