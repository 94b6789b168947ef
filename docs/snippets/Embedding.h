// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QStringList>

#include <atomic>

class DXFDocument;
class DXFViewer;
class QMenu;
class QTranslator;
class QUndoStack;

// The code on the page for hosts, and what the tests need of it.

bool isShowable(const QByteArray& text);
bool showEverything(DXFViewer& viewer, const QString& fileName, QStringList& skipped);
bool save(DXFViewer& viewer, const QString& fileName);
QUndoStack* editStack(const DXFViewer& viewer);
void addEditActions(DXFViewer& viewer, QMenu& menu);
bool readUnlessCancelled(DXFDocument& document, const QString& fileName,
                         const std::atomic<bool>& isCancelled);
void routeLog();
QStringList& hostLog();
bool translate(QTranslator& translator, const QString& folder);
