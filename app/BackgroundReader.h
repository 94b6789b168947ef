// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "ReadingChoices.h"

#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QTimer>

#include <memory>

class DXFDocument;
class QThread;
struct DrawingRead;

/**
 * Reads drawings in a thread of its own, one at a time.
 *
 * A second drawing takes the place of one that is still being read. Destroying the reader ends the
 * thread first.
 */
class BackgroundReader : public QObject
{
    Q_OBJECT

public:
    explicit BackgroundReader(QObject* parent = nullptr);
    ~BackgroundReader() override;

    /// Begins to read a file, and throws away what is being read.
    void read(const QString& fileName, const ReadingChoices& choices = {});
    /// Throws away what is being read.
    void cancel();

    bool isReading() const { return !m_fileName.isEmpty(); }
    /// The file that is being read; empty if none is.
    QString fileName() const { return m_fileName; }

Q_SIGNALS:
    /// A read begins or ends, for any reason.
    void readingChanged();
    /// How much of the file has been read, from 0 to 1, some times in a second. 0 comes at once if
    /// the read must wait until a cancelled one has ended.
    void progressed(double share);
    /// What was being read is thrown away, and nothing else is read instead.
    void cancelled();
    /// The file has been read, or cannot be.
    void finished(const QString& fileName, const DrawingRead& result);

private:
    struct Job;

    void start();
    void stop();
    double share() const;
    void onThreadFinished();

    QString m_fileName;
    ReadingChoices m_choices;
    std::shared_ptr<Job> m_job;
    QThread* m_thread = nullptr;
    QTimer m_progressTimer;
};

/// Frees a drawing in another thread: freeing a large one takes time.
void freeInBackground(QSharedPointer<DXFDocument> document);
