// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/translations/TranslationFiles.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace dxftest
{

bool operator==(const SourceText& left, const SourceText& right)
{
    return left.context == right.context && left.text == right.text
           && left.comment == right.comment;
}

void PrintTo(const SourceText& text, std::ostream* stream)
{
    *stream << qPrintable(text.context) << ": \"" << qPrintable(text.text) << '"';
}

QVector<SourceText> textsOf(const QString& tsFileName)
{
    QVector<SourceText> texts;
    QFile file(tsFileName);
    if (!file.open(QIODevice::ReadOnly))
        return texts;

    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement() && xml.name() == QLatin1String("context"))
            context.clear();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            texts.append({context, xml.readElementText(), QString()});
        else if (xml.name() == QLatin1String("comment") && !texts.isEmpty())
            texts.last().comment = xml.readElementText();
    }
    return texts;
}

QVector<SourceText> textsInSources(const QString& folder)
{
    const QTemporaryDir scratch;
    const QString extracted = scratch.filePath(QStringLiteral("extracted.ts"));
    const QString root = QStringLiteral(DXFVIEWER_SOURCE_DIR);
    QProcess::execute(QStringLiteral(DXFVIEWER_LUPDATE),
                      {QStringLiteral("-silent"), QStringLiteral("-I"), root,
                       root + QLatin1Char('/') + folder, QStringLiteral("-ts"), extracted});
    return textsOf(extracted);
}

} // namespace dxftest
