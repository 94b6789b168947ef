// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QObject>
#include <QPointer>

class QDialog;
class QMenu;
class QWidget;

/// What the program says about erasing, and about itself.
class HelpMenu : public QObject
{
    Q_OBJECT

public:
    /// Its pages belong to the program's window.
    explicit HelpMenu(QWidget& window);
    ~HelpMenu() override;

    void addActionsTo(QMenu& menu);

private Q_SLOTS:
    void showHowToErase();
    void showAbout();

private:
    QDialog* makePage();

    QWidget& m_window;
    QPointer<QDialog> m_page;
};
