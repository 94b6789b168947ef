// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/io/IReadingSteps.h"

#include <cstddef>

namespace dxfviewer
{

/// Counts the work of long loops, and asks a reader now and then whether to go on.
class WorkMeter
{
public:
    /// @param steps  the reader that is asked; null if nobody is
    explicit WorkMeter(IReadingSteps* steps = nullptr)
        : m_steps(steps)
    {
    }

    /// Adds work. The unit is about what a line of a text or a point of a chain takes. An exception
    /// of the reader leaves this function.
    void add(std::size_t work = 1)
    {
        m_work += work;
        if (m_work >= workBetweenQuestions)
            ask();
    }

private:
    // Some milliseconds at most, and far more than a question takes.
    static constexpr std::size_t workBetweenQuestions = 4096;

    void ask()
    {
        m_work = 0;
        if (m_steps)
            m_steps->goOn();
    }

    IReadingSteps* m_steps;
    std::size_t m_work = 0;
};

} // namespace dxfviewer
