// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingRead.h"

#include "Cancelled.h"
#include "DrawingFile.h"
#include "ReadingPlace.h"
#include "ReadingWatch.h"

#include <dxfviewer/flatten/FlatteningReader.h>
#include <dxfviewer/io/DXFReader.h>
#include <dxfviewer/model/DXFDocument.h>

#include <QCoreApplication>

#include <new>

namespace
{

struct DrawingReadTexts {
    Q_DECLARE_TR_FUNCTIONS(DrawingRead)
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

    void processCodeValuePair(unsigned int code, const std::string& value) override
    {
        m_place.noteGroup(value.size());
        Reader::processCodeValuePair(code, value);
    }

private:
    ReadingPlace& m_place;
};

DrawingRead onlyPolylinesOf(const QByteArray& content, ReadingPlace& place)
{
    DrawingRead result;
    result.document = QSharedPointer<DXFDocument>::create();
    WatchedReader<DXFReader> reader(place, *result.document);
    if (!reader.load(content))
        result.document.reset();
    return result;
}

DrawingRead everythingOf(const QByteArray& content, const FlatteningOptions& options,
                         ReadingPlace& place)
{
    DrawingRead result;
    result.document = QSharedPointer<DXFDocument>::create();
    WatchedReader<FlatteningReader> reader(place, *result.document, options);
    if (!reader.load(content))
        result.document.reset();
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
    if (!result.document)
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
    }
    if (watch.isCancelled())
        result = DrawingRead();
    return result;
}
