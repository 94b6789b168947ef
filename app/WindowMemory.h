// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

class Appearance;
class Navigation;
class QMainWindow;
class ViewChoices;

/// What a window remembers from run to run: its place and size, and the choices of its View menu.
class WindowMemory
{
public:
    WindowMemory(QMainWindow& window, Navigation& navigation, Appearance& appearance,
                 ViewChoices& choices);

    /// Gives the window what is remembered. For what is not, it gets a size that fits the screen
    /// and the choices of the first run.
    void restore();
    void remember() const;

private:
    QMainWindow& m_window;
    Navigation& m_navigation;
    Appearance& m_appearance;
    ViewChoices& m_choices;
};
