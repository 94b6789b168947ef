// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QLabel>

class QAbstractScrollArea;
class QColor;

/// Words in the middle of a view that shows nothing, which say what to do.
class EmptyPage : public QLabel
{
    Q_OBJECT

public:
    explicit EmptyPage(QAbstractScrollArea& view);
    ~EmptyPage() override;

    /// Shows the words. Without words the page is hidden.
    void showWords(const QString& words);
    void setInk(const QColor& color);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
