// SPDX-License-Identifier: GPL-2.0-or-later

#include "FileNames.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QString>

namespace
{

constexpr int longestReadableName = 160;
constexpr QChar ellipsis(0x2026);

bool isInvisible(QChar character)
{
    if (character.isNonCharacter())
        return true;
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

QString readableName(const QString& fileName)
{
    QString name = QDir::toNativeSeparators(fileName);
    for (QChar& character : name) {
        if (isInvisible(character))
            character = QChar::ReplacementCharacter;
    }
    if (name.size() <= longestReadableName)
        return name;
    const int half = longestReadableName / 2;
    return name.left(half) + ellipsis + name.right(half);
}

QString nameForEditedCopy(const QString& fileName)
{
    const QFileInfo info(fileName);
    const QDir folder = info.dir();
    static const QRegularExpression mark(QStringLiteral("(-edited(-\\d+)?)+$"));
    const QString base = info.completeBaseName().remove(mark) + QStringLiteral("-edited");
    QString name = folder.filePath(base + QStringLiteral(".dxf"));
    for (int number = 2; QFileInfo::exists(name); ++number)
        name = folder.filePath(QStringLiteral("%1-%2.dxf").arg(base).arg(number));
    return name;
}

bool isSameFile(const QString& one, const QString& other)
{
    const QString path = QFileInfo(one).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(other).canonicalFilePath();
}
