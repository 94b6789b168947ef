// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QMessageBox>
#include <QSet>
#include <QString>
#include <QTimer>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>

class QWidget;

namespace dxftest
{

/// Answers dialogs in the order in which they are expected. A dialog that is not expected, or that
/// does not come up, is a failure.
class DialogRobot
{
public:
    DialogRobot();
    ~DialogRobot();

    template <typename Dialog>
    void expect(std::function<void(Dialog&)> answer)
    {
        m_answers.push_back([answer](QWidget& widget) {
            auto* dialog = qobject_cast<Dialog*>(&widget);
            if (dialog)
                answer(*dialog);
            else
                ADD_FAILURE() << "unexpected " << widget.metaObject()->className();
            return dialog != nullptr;
        });
    }

    void expectButton(QMessageBox::StandardButton button);
    /// Keeps the text of the box, and presses OK.
    void expectError(std::string& text);
    void expectFileName(const QString& fileName);

    static void click(QMessageBox& box, QMessageBox::StandardButton button);

private:
    Q_DISABLE_COPY(DialogRobot)

    void look();

    QTimer m_timer;
    QSet<QWidget*> m_answered;
    std::deque<std::function<bool(QWidget&)>> m_answers;
};

} // namespace dxftest
