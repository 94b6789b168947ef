// SPDX-License-Identifier: GPL-2.0-or-later

#include "ViewChoices.h"

#include "DrawingFiles.h"

#include <QAction>
#include <QMenu>

ViewChoices::ViewChoices(DrawingFiles& files, QObject* parent)
    : QObject(parent)
    , m_files(files)
    , m_texts(makeAction(tr("&Texts"), &ReadingChoices::showsTexts))
    , m_onlyPolylines(makeAction(tr("Only &Polylines"), &ReadingChoices::onlyPolylines))
{
    connect(&files, &DrawingFiles::choicesChanged, this, [this] { setChoices(choices()); });
}

ViewChoices::~ViewChoices() = default;

QAction* ViewChoices::makeAction(const QString& text, bool ReadingChoices::*choice)
{
    auto* action = new QAction(text, this);
    action->setCheckable(true);
    action->setChecked(m_files.choices().*choice);
    connect(action, &QAction::toggled, this, [this, action, choice](bool isOn) {
        ReadingChoices choices = m_files.choices();
        choices.*choice = isOn;
        // The user may want to keep the edits of the drawing as it is.
        if (!m_files.setChoices(choices))
            action->setChecked(!isOn);
    });
    return action;
}

void ViewChoices::addActionsTo(QMenu& menu)
{
    menu.addAction(m_texts);
    menu.addAction(m_onlyPolylines);
}

ReadingChoices ViewChoices::choices() const
{
    return m_files.choices();
}

void ViewChoices::setChoices(const ReadingChoices& choices)
{
    m_texts->setChecked(choices.showsTexts);
    m_onlyPolylines->setChecked(choices.onlyPolylines);
}
