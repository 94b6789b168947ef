// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QWidget>

class BackgroundReader;
class QLabel;
class QProgressBar;

/// Shows the progress while a drawing is being read, and lets the user cancel.
class ReadingBar : public QWidget
{
    Q_OBJECT

public:
    /// The reader must outlive it.
    explicit ReadingBar(BackgroundReader& reader, QWidget* parent = nullptr);

private:
    void onReadingChanged();
    void onProgressed(double share);
    void setProgress(double share);

    BackgroundReader& m_reader;
    QLabel* m_label;
    QProgressBar* m_bar;
};
