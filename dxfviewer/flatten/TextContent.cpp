// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/TextContent.h"

#include "dxfviewer/flatten/Record.h"
#include "dxfviewer/io/WorkMeter.h"

namespace
{

constexpr int textCode = 1;
constexpr int earlierTextCode = 3;

constexpr char16_t degreeSign = 0x00b0;
constexpr char16_t plusMinusSign = 0x00b1;
// The letter looks like the sign for a diameter, and every font has it.
constexpr char16_t diameterSign = 0x00d8;

QString shownText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

/// The character that three digits stand for, or null if they are none.
QChar numberedCharacter(const QString& digits)
{
    constexpr int length = 3;
    bool isNumber = false;
    const ushort number = digits.toUShort(&isNumber);
    return isNumber && digits.size() == length ? QChar(number) : QChar();
}

/// Replaces what is written as "%%d" and the like.
QString withoutPercentCodes(const QString& text, dxfviewer::WorkMeter& meter)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        meter.add();
        const bool begins =
            text[i] == QLatin1Char('%') && i + 2 < text.size() && text[i + 1] == QLatin1Char('%');
        if (!begins) {
            result += text[i];
            continue;
        }
        i += 2;
        switch (text[i].toLower().unicode()) {
        case 'd':
            result += QChar(degreeSign);
            break;
        case 'p':
            result += QChar(plusMinusSign);
            break;
        case 'c':
            result += QChar(diameterSign);
            break;
        case '%':
            result += QLatin1Char('%');
            break;
        case 'u':
        case 'o':
        case 'k':
            // Lines below, above and through the text.
            break;
        default:
            if (const QChar character = numberedCharacter(text.mid(i, 3)); !character.isNull()) {
                result += character;
                i += 2;
            } else {
                result += text.mid(i - 2, 3);
            }
        }
    }
    return result;
}

/// Goes through the text of paragraphs.
class ParagraphText
{
public:
    ParagraphText(const QString& text, dxfviewer::WorkMeter& meter)
        : m_text(text)
        , m_lines(QString())
    {
        while (m_at < m_text.size()) {
            meter.add();
            take();
        }
    }

    const QStringList& lines() const { return m_lines; }

private:
    void take()
    {
        const QChar character = m_text[m_at++];
        if (character == QLatin1Char('\\') && m_at < m_text.size())
            takeCode(m_text[m_at++]);
        else if (character == QLatin1Char('^') && m_at < m_text.size())
            takeControl(m_text[m_at++]);
        else if (character != QLatin1Char('{') && character != QLatin1Char('}'))
            m_lines.last() += character;
    }

    void takeCode(QChar code)
    {
        switch (code.unicode()) {
        case 'P':
        case 'X':
        case 'N':
            m_lines.append(QString());
            break;
        case '~':
            m_lines.last() += QLatin1Char(' ');
            break;
        case '\\':
        case '{':
        case '}':
            m_lines.last() += code;
            break;
        case 'L':
        case 'l':
        case 'O':
        case 'o':
        case 'K':
        case 'k':
            break;
        case 'S':
            m_lines.last() += stacked(takeArgument());
            break;
        case 'A':
        case 'C':
        case 'c':
        case 'F':
        case 'f':
        case 'H':
        case 'p':
        case 'Q':
        case 'T':
        case 'W':
            takeArgument();
            break;
        default:
            m_lines.last() += code;
        }
    }

    void takeControl(QChar code)
    {
        if (code == QLatin1Char('J'))
            m_lines.append(QString());
        else if (code == QLatin1Char('I'))
            m_lines.last() += QLatin1Char(' ');
        else if (code == QLatin1Char(' '))
            m_lines.last() += QLatin1Char('^');
        else if (code != QLatin1Char('M'))
            m_lines.last() += QLatin1Char('^') + QString(code);
    }

    /// The argument of a code, which ends at a semicolon.
    QString takeArgument()
    {
        const int end = static_cast<int>(m_text.indexOf(QLatin1Char(';'), m_at));
        const int length = end < 0 ? static_cast<int>(m_text.size()) - m_at : end - m_at;
        QString argument = m_text.mid(m_at, length);
        m_at += length + 1;
        return argument;
    }

    /// A fraction or a tolerance, in one line.
    static QString stacked(QString parts)
    {
        return parts.replace(QLatin1Char('#'), QLatin1Char('/'))
            .replace(QLatin1Char('^'), QLatin1Char(' '));
    }

    QString m_text;
    int m_at = 0;
    QStringList m_lines;
};

} // namespace

namespace dxfviewer
{

QString lineOfText(const Record& record)
{
    // A single line is short.
    WorkMeter meter;
    return withoutPercentCodes(shownText(record.text(textCode)), meter);
}

QStringList linesOfParagraphs(const Record& record, WorkMeter& meter)
{
    QString text;
    for (const Record::Group group : record) {
        if (group.code == earlierTextCode || group.code == textCode)
            text += shownText(group.value);
    }
    return ParagraphText(withoutPercentCodes(text, meter), meter).lines();
}

} // namespace dxfviewer
