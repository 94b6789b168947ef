// SPDX-License-Identifier: GPL-2.0-or-later

#include "KindWords.h"

#include "DrawingRead.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>

namespace
{

struct KindWordsTexts {
    Q_DECLARE_TR_FUNCTIONS(KindWords)
};

struct Kind {
    const char* one;
    const char* many;
    // The names in DXF, with blanks between and around them.
    const char* names;
};

constexpr std::array<Kind, 16> kinds{{
    {QT_TRANSLATE_NOOP("KindWords", "1 line"), QT_TRANSLATE_N_NOOP("KindWords", "%n lines"),
     " LINE MLINE "},
    {QT_TRANSLATE_NOOP("KindWords", "1 arc"), QT_TRANSLATE_N_NOOP("KindWords", "%n arcs"), " ARC "},
    {QT_TRANSLATE_NOOP("KindWords", "1 circle"), QT_TRANSLATE_N_NOOP("KindWords", "%n circles"),
     " CIRCLE "},
    {QT_TRANSLATE_NOOP("KindWords", "1 ellipse"), QT_TRANSLATE_N_NOOP("KindWords", "%n ellipses"),
     " ELLIPSE "},
    {QT_TRANSLATE_NOOP("KindWords", "1 spline"), QT_TRANSLATE_N_NOOP("KindWords", "%n splines"),
     " SPLINE HELIX "},
    {QT_TRANSLATE_NOOP("KindWords", "1 point"), QT_TRANSLATE_N_NOOP("KindWords", "%n points"),
     " POINT "},
    {QT_TRANSLATE_NOOP("KindWords", "1 block"), QT_TRANSLATE_N_NOOP("KindWords", "%n blocks"),
     " INSERT "},
    {QT_TRANSLATE_NOOP("KindWords", "1 dimension"),
     QT_TRANSLATE_N_NOOP("KindWords", "%n dimensions"),
     " DIMENSION ARC_DIMENSION LARGE_RADIAL_DIMENSION TOLERANCE "},
    {QT_TRANSLATE_NOOP("KindWords", "1 text"), QT_TRANSLATE_N_NOOP("KindWords", "%n texts"),
     " TEXT MTEXT ATTRIB "},
    {QT_TRANSLATE_NOOP("KindWords", "1 leader"), QT_TRANSLATE_N_NOOP("KindWords", "%n leaders"),
     " LEADER MLEADER MULTILEADER "},
    {QT_TRANSLATE_NOOP("KindWords", "1 filled area"),
     QT_TRANSLATE_N_NOOP("KindWords", "%n filled areas"), " SOLID TRACE "},
    {QT_TRANSLATE_NOOP("KindWords", "1 face"), QT_TRANSLATE_N_NOOP("KindWords", "%n faces"),
     " 3DFACE "},
    {QT_TRANSLATE_NOOP("KindWords", "1 hatch"), QT_TRANSLATE_N_NOOP("KindWords", "%n hatches"),
     " HATCH MPOLYGON "},
    {QT_TRANSLATE_NOOP("KindWords", "1 image"), QT_TRANSLATE_N_NOOP("KindWords", "%n images"),
     " IMAGE "},
    {QT_TRANSLATE_NOOP("KindWords", "1 infinite line"),
     QT_TRANSLATE_N_NOOP("KindWords", "%n infinite lines"), " RAY XLINE "},
    {QT_TRANSLATE_NOOP("KindWords", "1 other object"),
     QT_TRANSLATE_N_NOOP("KindWords", "%n other objects"), ""},
}};

// They are polylines before and after.
constexpr const char* polylineNames = " LWPOLYLINE POLYLINE ";

bool isAmong(const QString& name, const char* names)
{
    return QLatin1String(names).contains(QLatin1Char(' ') + name + QLatin1Char(' '));
}

std::size_t kindOf(const QString& name)
{
    const auto found = std::find_if(kinds.cbegin(), kinds.cend() - 1, [&name](const Kind& kind) {
        return isAmong(name, kind.names);
    });
    return static_cast<std::size_t>(found - kinds.cbegin());
}

struct Words {
    QStringList parts;
    int total = 0;
};

/// The counts in words, the largest first.
Words inWords(const QMap<QString, int>& counts)
{
    std::array<int, kinds.size()> sums{};
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        if (!isAmong(count.key(), polylineNames))
            sums[kindOf(count.key())] += count.value();
    }
    std::array<std::size_t, kinds.size()> order{};
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(), [&sums](std::size_t one, std::size_t other) {
        return sums[one] > sums[other];
    });

    Words words;
    for (const std::size_t i : order) {
        words.total += sums[i];
        if (sums[i] > 0)
            words.parts += sums[i] == 1 ? KindWordsTexts::tr(kinds[i].one)
                                        : KindWordsTexts::tr(kinds[i].many, nullptr, sums[i]);
    }
    return words;
}

QString separator()
{
    //: Between the parts of a list.
    return KindWordsTexts::tr(", ");
}

QString listOf(QStringList parts)
{
    if (parts.size() < 2)
        return parts.join(QString());
    const QString last = parts.takeLast();
    //: The end of a list: all parts but the last, and the last.
    return KindWordsTexts::tr("%1 and %2").arg(parts.join(separator()), last);
}

/// For a drawing of which only the polylines were read: nothing was counted.
QString plainLossesSentence()
{
    return KindWordsTexts::tr(
        "It is the drawing that was opened. Only layers, line types and polylines are saved. "
        "Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, "
        "blocks and the colours of single polylines. Once anything was erased, closed polylines "
        "lose their closing edge, and bulges become straight.");
}

} // namespace

QString notShownSentence(const QMap<QString, int>& skipped)
{
    const Words words = inWords(skipped);
    if (words.total == 0)
        return QString();
    return KindWordsTexts::tr("Not shown: %1").arg(words.parts.join(separator()));
}

QString changesSentence(const DrawingRead& drawing)
{
    if (drawing.choices.onlyPolylines)
        return plainLossesSentence();
    const Words changed = inWords(drawing.shown);
    const Words lost = inWords(drawing.skipped);
    QStringList sentences{KindWordsTexts::tr("It is the drawing that was opened.")};
    if (changed.total > 0)
        sentences += (changed.total == 1 ? KindWordsTexts::tr("%1 becomes polylines.")
                                         : KindWordsTexts::tr("%1 become polylines."))
                         .arg(listOf(changed.parts));
    if (lost.total > 0)
        sentences += (lost.total == 1 ? KindWordsTexts::tr("%1 is lost.")
                                      : KindWordsTexts::tr("%1 are lost."))
                         .arg(listOf(lost.parts));
    if (drawing.elsewhere > 0)
        sentences += KindWordsTexts::tr("What lies on layouts is lost.");
    if (drawing.invisible > 0)
        sentences += KindWordsTexts::tr("What is invisible is lost.");
    sentences += KindWordsTexts::tr("Only layers, line types and polylines are saved.");
    return sentences.join(QLatin1Char(' '));
}
