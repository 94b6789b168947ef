// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QObject>

class QString;
class QWidget;

/// Lets users drop drawings on a window. Other files are refused.
class DrawingDrop : public QObject
{
    Q_OBJECT

public:
    explicit DrawingDrop(QWidget& window);
    ~DrawingDrop() override;

Q_SIGNALS:
    /// Sent after the event: the program that the drawing comes from waits for it, and must not
    /// wait for an answer from the user.
    void dropped(const QString& fileName);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
