// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

class QFileDialog;
class QString;
class QWidget;

// What the program asks and tells in boxes.

enum class EditsAnswer { Save, Discard, Cancel };

/// Asks what to do with unsaved edits of this file.
EditsAnswer askAboutEdits(QWidget& window, const QString& fileName);

/// Asks before a file is replaced, and says what that changes.
bool askToReplace(QWidget& window, const QString& fileName, const QString& change);

/// The file that the user chooses; empty if none.
QString chosenFile(QFileDialog& dialog);

void showError(QWidget& window, const QString& what, const QString& fileName,
               const QString& reason);
