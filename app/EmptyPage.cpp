// SPDX-License-Identifier: GPL-2.0-or-later

#include "EmptyPage.h"

#include <QAbstractScrollArea>
#include <QColor>
#include <QEvent>

namespace
{

constexpr double fontFactor = 1.5;
constexpr int marginPx = 24;

} // namespace

EmptyPage::EmptyPage(QAbstractScrollArea& view)
    : QLabel(&view)
{
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setMargin(marginPx);
    QFont larger = font();
    larger.setPointSizeF(larger.pointSizeF() * fontFactor);
    setFont(larger);
    // Within a view the role would be that of the view's own text, which does not follow the ink.
    setForegroundRole(QPalette::WindowText);
    // Drops and clicks here are meant for the window.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(view.rect());
    view.installEventFilter(this);
    hide();
}

EmptyPage::~EmptyPage() = default;

void EmptyPage::showWords(const QString& words)
{
    setText(words);
    setVisible(!words.isEmpty());
    raise();
}

void EmptyPage::setInk(const QColor& color)
{
    QPalette inked = palette();
    inked.setColor(QPalette::WindowText, color);
    setPalette(inked);
}

bool EmptyPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QLabel::eventFilter(watched, event);
}
