// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QtGlobal>

#include <atomic>

/// What the thread that reads a drawing and the thread that waits for it tell each other.
class ReadingWatch
{
public:
    ReadingWatch() = default;

    /// For the thread that waits.
    /// @{
    void cancel() { m_isCancelled = true; }
    /// How much of the file has been read, from 0 to 1.
    double share() const { return m_share; }
    /// @}

    /// For the thread that reads.
    /// @{
    bool isCancelled() const { return m_isCancelled; }
    void setShare(double share) { m_share = share; }
    /// @}

private:
    Q_DISABLE_COPY(ReadingWatch)

    std::atomic<bool> m_isCancelled{false};
    std::atomic<double> m_share{0.0};
};
