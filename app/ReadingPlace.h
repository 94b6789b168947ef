// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cstddef>

class QByteArray;
class ReadingWatch;

/**
 * How far a reader is in a drawing, computed from the groups that it gets.
 *
 * Each group is two lines of the text. If the drawing is binary, or its text is repaired while it
 * is read, the place is an estimate.
 */
class ReadingPlace
{
public:
    /// Both must outlive it.
    ReadingPlace(const QByteArray& content, ReadingWatch& watch);

    /// Tells the watch now and then.
    void noteGroup(std::size_t valueLength);
    /// Throws Cancelled, which ends the read, if the watch is cancelled.
    void goOn() const;

    /// How much has been read, from 0 to 1.
    double share() const;

private:
    const char* afterLine(const char* at) const;

    const QByteArray& m_content;
    ReadingWatch& m_watch;
    const bool m_isText;
    const char* m_at;
    const char* m_end;
    int m_groups = 0;
};
