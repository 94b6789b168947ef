// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/app/DialogRobot.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

namespace dxftest
{

DialogRobot::DialogRobot()
{
    m_timer.setInterval(5);
    QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
    m_timer.start();
}

DialogRobot::~DialogRobot()
{
    EXPECT_TRUE(m_answers.empty()) << "a dialog did not come up";
}

void DialogRobot::expectButton(QMessageBox::StandardButton button)
{
    expect<QMessageBox>([button](QMessageBox& box) { click(box, button); });
}

void DialogRobot::expectError(std::string& text)
{
    expect<QMessageBox>([&text](QMessageBox& box) {
        text = (box.text() + QLatin1Char('\n') + box.informativeText()).toStdString();
        click(box, QMessageBox::Ok);
    });
}

void DialogRobot::expectFileName(const QString& fileName)
{
    expect<QFileDialog>([fileName](QFileDialog& dialog) {
        // The name is typed, because selectFile() does not change a field that has the keyboard. A
        // file that is selected in the list would win over the typed name.
        const auto lists = dialog.findChildren<QAbstractItemView*>();
        for (QAbstractItemView* list : lists)
            list->clearSelection();
        dialog.findChild<QLineEdit*>()->setText(fileName);
        static_cast<QDialog&>(dialog).accept();
    });
}

void DialogRobot::click(QMessageBox& box, QMessageBox::StandardButton button)
{
    if (box.button(button))
        return box.button(button)->click();
    ADD_FAILURE() << "no such button below: " << box.text().toStdString();
    box.close();
}

void DialogRobot::look()
{
    QWidget* widget = QApplication::activeModalWidget();
    // An answered dialog is active again after a dialog that it opened is closed.
    if (!widget || m_answered.contains(widget))
        return;
    if (m_answers.empty()) {
        ADD_FAILURE() << "unexpected dialog: " << widget->metaObject()->className();
        widget->close();
        return;
    }
    const auto answer = m_answers.front();
    m_answers.pop_front();
    m_answered.insert(widget);
    QObject::connect(widget, &QObject::destroyed, &m_timer,
                     [this, widget] { m_answered.remove(widget); });
    // The answer may open the next dialog. m_timer does not fire while its own slot runs, so
    // another timer runs the answer.
    QTimer::singleShot(0, widget, [answer, widget] {
        if (!answer(*widget))
            widget->close();
    });
}

} // namespace dxftest
