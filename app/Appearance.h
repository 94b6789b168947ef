// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "Ground.h"

#include <QObject>

class DXFDocument;
class DXFViewer;
class QActionGroup;
class QMenu;

/// The ground under the drawing, and the drawing's own colours, legible on it.
class Appearance : public QObject
{
    Q_OBJECT

public:
    explicit Appearance(DXFViewer& viewer, QObject* parent = nullptr);
    ~Appearance() override;

    /// Adds a menu of the grounds.
    void addActionsTo(QMenu& menu);

    Ground ground() const { return m_ground; }
    void setGround(Ground ground);

    /// Gives a document its colours before it is shown, so that it is never seen in other ones.
    void color(DXFDocument& document) const;

Q_SIGNALS:
    void groundChanged();

private Q_SLOTS:
    void colorShown();

private:
    void applyToView();

    DXFViewer& m_viewer;
    QActionGroup* m_actions;
    Ground m_ground = Ground::Dark;
};
