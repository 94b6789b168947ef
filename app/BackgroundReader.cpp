// SPDX-License-Identifier: GPL-2.0-or-later

#include "BackgroundReader.h"

#include "DrawingRead.h"
#include "ReadingWatch.h"

#include <dxfviewer/model/DXFDocument.h>

#include <QThread>
#include <QThreadPool>

#include <utility>

namespace
{

// Often enough for a bar that moves, and cheap compared with the reading.
constexpr int progressIntervalMs = 50;

} // namespace

/// What the thread works on. Both threads use the watch. The rest belongs to the reading thread
/// until that has ended.
struct BackgroundReader::Job {
    QString fileName;
    ReadingChoices choices;
    ReadingWatch watch;
    DrawingRead result;
};

BackgroundReader::BackgroundReader(QObject* parent)
    : QObject(parent)
{
    m_progressTimer.setInterval(progressIntervalMs);
    connect(&m_progressTimer, &QTimer::timeout, this, [this] { Q_EMIT progressed(share()); });
}

BackgroundReader::~BackgroundReader()
{
    stop();
    if (!m_thread)
        return;
    m_thread->disconnect(this);
    m_thread->wait();
    delete m_thread;
}

void BackgroundReader::read(const QString& fileName, const ReadingChoices& choices)
{
    stop();
    m_fileName = fileName;
    m_choices = choices;
    // Two reads at once would disturb each other: reading changes the locale. The next read begins
    // when the former thread has ended.
    const bool waits = m_thread != nullptr;
    if (!waits)
        start();
    m_progressTimer.start();
    Q_EMIT readingChanged();
    if (waits)
        Q_EMIT progressed(0.0);
}

void BackgroundReader::cancel()
{
    if (!isReading())
        return;
    stop();
    Q_EMIT readingChanged();
    Q_EMIT cancelled();
}

void BackgroundReader::stop()
{
    m_progressTimer.stop();
    m_fileName.clear();
    if (m_job)
        m_job->watch.cancel();
}

void BackgroundReader::start()
{
    m_job = std::make_shared<Job>();
    m_job->fileName = m_fileName;
    m_job->choices = m_choices;
    m_thread = QThread::create(
        [job = m_job] { job->result = readDocument(job->fileName, job->choices, job->watch); });
    connect(m_thread, &QThread::finished, this, &BackgroundReader::onThreadFinished);
    m_thread->start(QThread::LowPriority);
}

double BackgroundReader::share() const
{
    // A cancelled read is that of another file.
    return m_job->watch.isCancelled() ? 0.0 : m_job->watch.share();
}

void BackgroundReader::onThreadFinished()
{
    m_thread->wait();
    std::exchange(m_thread, nullptr)->deleteLater();
    const auto job = std::exchange(m_job, nullptr);
    if (job->watch.isCancelled()) {
        freeInBackground(std::move(job->result.document));
        if (isReading())
            start();
        return;
    }
    m_progressTimer.stop();
    m_fileName.clear();
    Q_EMIT readingChanged();
    Q_EMIT finished(job->fileName, job->result);
}

void freeInBackground(QSharedPointer<DXFDocument> document)
{
    if (!document)
        return;
    QThreadPool::globalInstance()->start([held = std::move(document)]() mutable { held.reset(); });
}
