// SPDX-License-Identifier: GPL-2.0-or-later

#include "Questions.h"

#include "FileNames.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QString>

namespace
{

struct QuestionsTexts {
    Q_DECLARE_TR_FUNCTIONS(Questions)
};

} // namespace

EditsAnswer askAboutEdits(QWidget& window, const QString& fileName)
{
    QMessageBox box(QMessageBox::Question, QString(),
                    QuestionsTexts::tr("Save the edited drawing?"),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(readableName(QFileInfo(fileName).fileName()));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return EditsAnswer::Save;
    case QMessageBox::Discard:
        return EditsAnswer::Discard;
    default:
        return EditsAnswer::Cancel;
    }
}

bool askToReplace(QWidget& window, const QString& fileName, const QString& change)
{
    QMessageBox box(QMessageBox::Warning, QString(), QuestionsTexts::tr("Replace the file?"),
                    QMessageBox::Cancel, &window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(readableName(fileName) + QLatin1String("\n\n") + change);
    QPushButton* replace =
        box.addButton(QuestionsTexts::tr("Replace"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == replace;
}

QString chosenFile(QFileDialog& dialog)
{
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return dialog.selectedFiles().value(0);
}

void showError(QWidget& window, const QString& what, const QString& fileName, const QString& reason)
{
    QMessageBox box(QMessageBox::Critical, QString(), what, QMessageBox::Ok, &window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(readableName(fileName) + QLatin1String("\n\n") + reason);
    box.exec();
}
