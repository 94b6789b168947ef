// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "ReadingChoices.h"

#include <QObject>

class DrawingFiles;
class QAction;
class QMenu;

/// The choices of what is shown of a drawing, as actions. Each change reads the drawing again.
class ViewChoices : public QObject
{
    Q_OBJECT

public:
    explicit ViewChoices(DrawingFiles& files, QObject* parent = nullptr);
    ~ViewChoices() override;

    /// Adds Texts and Only Polylines.
    void addActionsTo(QMenu& menu);

    ReadingChoices choices() const;
    void setChoices(const ReadingChoices& choices);

private:
    QAction* makeAction(const QString& text, bool ReadingChoices::*choice);

    DrawingFiles& m_files;
    QAction* m_texts;
    QAction* m_onlyPolylines;
};
