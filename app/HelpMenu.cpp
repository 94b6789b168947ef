// SPDX-License-Identifier: GPL-2.0-or-later

#include "HelpMenu.h"

#include "Keys.h"

#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <dl_dxf.h>

/// The resources of a static library are linked only if a function asks for them. The macro must
/// stand outside a namespace.
static void loadResources()
{
    Q_INIT_RESOURCE(help);
}

namespace
{

constexpr QSize pageSize(620, 640);
constexpr int pictureWidthPx = 560;

QString paragraph(const QString& text)
{
    return QStringLiteral("<p>%1</p>").arg(text);
}

QString item(const QString& text)
{
    return QStringLiteral("<li>%1</li>").arg(text);
}

} // namespace

HelpMenu::HelpMenu(QWidget& window)
    : QObject(&window)
    , m_window(window)
{
    loadResources();
}

HelpMenu::~HelpMenu() = default;

void HelpMenu::addActionsTo(QMenu& menu)
{
    QAction* erase = menu.addAction(tr("How to &Erase"));
    erase->setShortcuts(keysOf({QStringLiteral("F1")}, {QKeySequence::HelpContents}));
    connect(erase, &QAction::triggered, this, &HelpMenu::showHowToErase);
    menu.addSeparator();
    QAction* about = menu.addAction(tr("&About"));
    about->setMenuRole(QAction::AboutRole);
    connect(about, &QAction::triggered, this, &HelpMenu::showAbout);
}

void HelpMenu::showHowToErase()
{
    if (!m_page)
        m_page = makePage();
    // Not modal: the page is read while erasing.
    m_page->show();
    m_page->raise();
    m_page->activateWindow();
}

QDialog* HelpMenu::makePage()
{
    auto* page = new QDialog(&m_window);
    page->setAttribute(Qt::WA_DeleteOnClose);
    page->setWindowTitle(tr("How to Erase"));
    page->resize(pageSize);
    auto* text = new QTextBrowser;
    text->setHtml(
        QStringLiteral("<h2>%1</h2><p><img src=\":/how-to-erase.png\" width=\"%2\"></p>")
            .arg(tr("How to Erase"))
            .arg(pictureWidthPx)
        + paragraph(tr("Switch “Edit .dxf” on (Ctrl+E), hold the left button and sweep over the "
                       "lines. What comes under the round eraser is erased, piece by piece: a "
                       "piece reaches from one corner to the next."))
        + QStringLiteral("<ul>")
        + item(tr("Zoom in first where lines are close: the eraser has the same size at every "
                  "zoom. Ctrl and the wheel zoom, the middle button moves the drawing."))
        + item(tr("Ctrl+Z takes a whole stroke back, Ctrl+Y takes it up again."))
        + item(tr("Escape ends erasing. The edits stay, but they can no longer be undone then."))
        + item(tr("Ctrl+S saves. The first time it asks for a name, so that the drawing that was "
                  "opened stays as it is."))
        + QStringLiteral("</ul>"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, page, &QDialog::reject);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(text);
    layout->addWidget(buttons);
    return page;
}

void HelpMenu::showAbout()
{
    const QString name = QGuiApplication::applicationDisplayName();
    QMessageBox::about(
        &m_window, tr("About %1").arg(name),
        QStringLiteral("<h3>%1 %2</h3>").arg(name, QCoreApplication::applicationVersion())
            + paragraph(tr("Views DXF drawings and erases parts of them."))
            + paragraph(
                tr("Qt %1, dxflib %2").arg(QLatin1String(qVersion()), QLatin1String(DL_VERSION)))
            + paragraph(tr("Licence: GNU General Public License, version 2 or later. It comes "
                           "without any warranty.")));
}
