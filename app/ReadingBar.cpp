// SPDX-License-Identifier: GPL-2.0-or-later

#include "ReadingBar.h"

#include "BackgroundReader.h"
#include "FileNames.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

namespace
{

constexpr int percent = 100;
constexpr int barWidthPx = 160;

} // namespace

ReadingBar::ReadingBar(BackgroundReader& reader, QWidget* parent)
    : QWidget(parent)
    , m_reader(reader)
    , m_label(new QLabel)
    , m_bar(new QProgressBar)
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::rejected, &reader, &BackgroundReader::cancel);
    m_label->setTextFormat(Qt::PlainText);
    m_bar->setRange(0, percent);
    m_bar->setMaximumWidth(barWidthPx);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_label);
    layout->addWidget(m_bar);
    layout->addWidget(buttons);
    connect(&reader, &BackgroundReader::readingChanged, this, &ReadingBar::onReadingChanged);
    connect(&reader, &BackgroundReader::progressed, this, &ReadingBar::onProgressed);
    hide();
}

void ReadingBar::onReadingChanged()
{
    // Shown only at the first progress: a short read must not make a bar flash up. One that is
    // shown already tells the new name at once.
    if (m_reader.isReading())
        setProgress(0.0);
    else
        hide();
}

void ReadingBar::onProgressed(double share)
{
    setProgress(share);
    show();
}

void ReadingBar::setProgress(double share)
{
    const QString name = QFileInfo(m_reader.fileName()).fileName();
    m_label->setText(tr("Reading %1").arg(readableName(name)));
    m_bar->setValue(static_cast<int>(share * percent));
}
