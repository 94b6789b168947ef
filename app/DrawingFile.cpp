// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingFile.h"

#include "Cancelled.h"
#include "ReadingWatch.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>

namespace
{

struct DrawingFileTexts {
    Q_DECLARE_TR_FUNCTIONS(DrawingFile)
};

// The drawing and what is read from it must fit into memory.
constexpr qint64 largestDrawingBytes = 512LL * 1024 * 1024;

// Read in pieces: between two of them the user may cancel.
constexpr qint64 pieceBytes = 1024LL * 1024;

constexpr int binaryBeginBytes = 22;
const QByteArray binaryBeginEnd("Binary DXF\r\n\x1A\0", 14);

constexpr const char* firstRecord = "SECTION";

bool isBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\r';
}

/// Whether there are only blanks between this place and the end of its line, in the direction of
/// the step.
template <typename Index>
bool isRestBlank(const QByteArray& text, Index at, Index step)
{
    while (at >= 0 && at < text.size() && isBlank(text.at(at)))
        at += step;
    return at < 0 || at >= text.size() || text.at(at) == '\n';
}

/// Whether there is a line with this text, possibly with blanks around it.
bool hasLine(const QByteArray& text, const QByteArray& line)
{
    using Index = decltype(text.size());
    for (Index at = text.indexOf(line); at >= 0; at = text.indexOf(line, at + 1)) {
        if (isRestBlank<Index>(text, at - 1, -1) && isRestBlank<Index>(text, at + line.size(), 1))
            return true;
    }
    return false;
}

/// Whether it begins as the binary form of DXF does.
bool isBinaryDrawing(const QByteArray& content)
{
    return content.left(binaryBeginBytes).endsWith(binaryBeginEnd);
}

QString whyNoDrawing(const QByteArray& content)
{
    if (content.isEmpty())
        return DrawingFileTexts::tr("The file is empty.");
    if (content.size() > largestDrawingBytes)
        return DrawingFileTexts::tr("The file is too large.");
    if (isBinaryDrawing(content))
        return QString();
    if (content.contains('\0'))
        return DrawingFileTexts::tr("It is a binary file, but no DXF drawing.");
    if (!hasLine(content, firstRecord))
        return DrawingFileTexts::tr("It is not a DXF drawing.");
    return QString();
}

QString whyNotReadable(const QFileInfo& info)
{
    // exists() is false for a broken link too.
    if (!info.exists())
        return DrawingFileTexts::tr("There is no such file.");
    if (!info.isFile())
        return DrawingFileTexts::tr("It is not a regular file.");
    if (info.size() > largestDrawingBytes)
        return DrawingFileTexts::tr("The file is too large.");
    return QString();
}

/// What the file holds. It may have grown since its size was asked for.
QByteArray contentOf(QFile& file, const ReadingWatch& watch)
{
    QByteArray content;
    content.reserve(static_cast<int>(file.size()));
    while (content.size() <= largestDrawingBytes) {
        if (watch.isCancelled())
            throw Cancelled();
        const QByteArray piece = file.read(pieceBytes);
        if (piece.isEmpty())
            break;
        content += piece;
    }
    return content;
}

} // namespace

std::optional<QByteArray> readDrawing(const QString& fileName, QString& reason)
{
    return readDrawing(fileName, reason, ReadingWatch());
}

std::optional<QByteArray> readDrawing(const QString& fileName, QString& reason,
                                      const ReadingWatch& watch)
{
    // Opening a pipe or a device could wait for ever.
    reason = whyNotReadable(QFileInfo(fileName));
    if (!reason.isEmpty())
        return std::nullopt;

    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        reason = file.errorString();
        return std::nullopt;
    }
    const QByteArray content = contentOf(file, watch);
    reason = file.error() == QFileDevice::NoError ? whyNoDrawing(content) : file.errorString();
    if (!reason.isEmpty())
        return std::nullopt;
    return content;
}

bool writeFile(const QString& fileName, const QByteArray& content, QString& reason)
{
    // The new file replaces whatever has its name, and that must not be a device.
    const QFileInfo info(fileName);
    if (info.exists() && !info.isFile()) {
        reason = DrawingFileTexts::tr("It is not a regular file.");
        return false;
    }
    QSaveFile file(fileName);
    // commit() does not see it if what is still in the buffer cannot be written.
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush()
        && file.commit())
        return true;
    reason = file.errorString();
    return false;
}
