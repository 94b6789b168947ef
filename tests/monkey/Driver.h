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

/// A host with shown windows and their user, who perform the steps of a sequence.
class Driver : public QObject
{
public:
    Driver();
    ~Driver() override;

    void perform(const Step& step);

    /// The message handler calls this.
    void hear(const QString& message);

    /// What does not hold now, or an empty string.
    QString problem();

private:
    struct Window {
        QPointer<DXFViewer> viewer;
        Qt::MouseButtons held = Qt::NoButton;
        Qt::KeyboardModifiers modifiers = Qt::NoModifier;
        /// The drawing that is on screen while another one is loaded, until that one is shown.
        QSharedPointer<DXFDocument> replaced;
        bool isShowingItsDocument = false;
        QVector<dxffuzz::Shape> saved;
    };

    /// What the host may destroy in a slot.
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
    /// Objects that are being destroyed, or whose parts are.
    QVector<const QObject*> m_dying;
    /// The action at the next message. Mostly empty.
    std::function<void(const QString&)> m_answerToMessage;
    QString m_problem;
    /// The number of the user's events that are being delivered.
    int m_eventDepth = 0;
    bool m_isDialogOpen = false;
    /// While the stack moves, the overlay must not be destroyed directly: the stack would be
    /// destroyed with it.
    bool m_isStackMoving = false;
    bool m_isSilent = false;
};

} // namespace dxftest
