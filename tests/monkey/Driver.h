// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "tests/monkey/Step.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSharedPointer>
#include <QTemporaryDir>
#include <QUndoGroup>
#include <QVector>

#include <functional>
#include <memory>
#include <vector>

class DXFDocument;
class DXFEditor;
class DXFGraphicsItem;
class DXFViewer;
class QGraphicsScene;
class View;

namespace dxffuzz
{
struct Shape;
}

namespace dxftest
{

/// A host with shown windows and a user in front of them, who do what a sequence says.
class Driver : public QObject
{
public:
    Driver();
    ~Driver() override;

    void perform(const Step& step);

    /// To be called from within the log.
    void hear(const QString& message);

    /// What does not hold now, or an empty string.
    QString problem();

private:
    struct Window {
        QPointer<DXFViewer> viewer;
        Qt::MouseButtons held = Qt::NoButton;
        Qt::KeyboardModifiers modifiers = Qt::NoModifier;
        /// The one shown when another was loaded, until that one is shown.
        QSharedPointer<DXFDocument> replaced;
        bool isShowingItsDocument = false;
        QVector<dxffuzz::Shape> saved;
    };

    /// What the host may do in a slot, besides what it may always do.
    enum class Freedom { Full, ClearsNothing, DestroysNothing };

    void destroyDoomed();
    Window* windowOf(const Step& step);
    void performIn(Window& window, const Step& step);
    void performOnItem(DXFGraphicsItem& item, const Step& step);
    void performOnOverlay(DXFEditor& overlay, const Step& step);
    void performOnBehalfOfHost(Window& window, const Step& step);

    void openWindow(const Step& step);
    void load(Window& window, const Step& step);
    void noteLoad(const DXFViewer* viewer);
    void callSlot(Window& window, int which);
    void mouse(Window& window, QEvent::Type type, const QPoint& at,
               Qt::MouseButton button = Qt::NoButton);
    void press(Window& window, const QPoint& at, Qt::MouseButton button);
    void release(Window& window, const QPoint& at, Qt::MouseButton button);
    void stroke(Window& window, const Step& step);
    void leave(Window& window);
    void key(Window& window, const Step& step);
    void controlKey(Window& window, bool down);
    void wheel(Window& window, const Step& step);
    void zoom(Window& window, const Step& step);
    void turnEventLoop(int turns);

    void addPolyline(DXFDocument& document, int which);
    void select(DXFDocument& document, const Step& step);

    void actOnDeleteRequest(DXFEditor& overlay, const Step& step);
    void answerSignal(Window& window, const Step& step);
    template <typename Sender, typename Signal>
    void answer(Sender* sender, Signal signal, Freedom freedom, QPointer<DXFViewer> viewer,
                int which);
    void actInSlot(QPointer<DXFViewer> viewer, int which, Freedom freedom);
    void destroyInSlot(QPointer<DXFViewer> viewer, int which, Freedom freedom);
    void openDialog(int which);
    void destroy(QObject* object);
    void clear(QGraphicsScene* scene);
    bool isDying(const QPointer<DXFViewer>& viewer) const;

    QString problemOf(Window& window);

    QTemporaryDir m_folder;
    std::vector<std::unique_ptr<Window>> m_windows;
    QVector<QPointer<DXFViewer>> m_doomed;
    QUndoGroup m_group;
    /// Being destroyed, or what they hold is.
    QVector<const QObject*> m_dying;
    /// What is done at the next message; empty most of the time.
    std::function<void(const QString&)> m_answerToMessage;
    QString m_problem;
    /// How many of the user's events are being delivered.
    int m_eventDepth = 0;
    bool m_isDialogOpen = false;
    /// The overlay, and its stack with it, must then not be destroyed directly.
    bool m_isStackMoving = false;
    bool m_isSilent = false;
};

} // namespace dxftest
