// The boxes, and the dialogs that choose a project.
#include "ui/dialogs.hpp"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include "ui/text.hpp"

namespace dialwright {

namespace {

// A box whose text is shown as it stands, be it like a mark-up or not.
class Box : public QMessageBox {
 public:
  Box(QWidget* window, QMessageBox::Icon icon, const QString& text) : QMessageBox(window) {
    setWindowTitle(shown(Program::kTitle));
    setIcon(icon);
    setTextFormat(Qt::PlainText);
    setText(text);
  }
};

QString filterOf(const Program& program) {
  return shown(program.T("Projects")) + " (*.sun);;" + shown(program.T("All files")) + " (*)";
}

Changes askForChanges(QWidget* window, const Program& program, const QString& question) {
  Box box(window, QMessageBox::Warning, question);
  box.setInformativeText(shown(program.T("There are changes that have not been saved.")));
  const auto* save = box.addButton(shown(program.T("Save the project")), QMessageBox::AcceptRole);
  const auto* discard =
      box.addButton(shown(program.T("Discard the changes")), QMessageBox::DestructiveRole);
  QPushButton* cancel = box.addButton(shown(program.T("Cancel")), QMessageBox::RejectRole);
  box.setEscapeButton(cancel);
  box.exec();
  if (box.clickedButton() == save) return Changes::Save;
  return box.clickedButton() == discard ? Changes::Discard : Changes::Keep;
}

bool askYes(QWidget* window, const Program& program, const QString& question) {
  Box box(window, QMessageBox::Question, question);
  const auto* yes = box.addButton(shown(program.T("Yes")), QMessageBox::YesRole);
  box.setEscapeButton(box.addButton(shown(program.T("No")), QMessageBox::NoRole));
  box.exec();
  return box.clickedButton() == yes;
}

}  // namespace

Dialogs dialogsOver(QWidget* window, const Program& program) {
  Dialogs dialogs;
  dialogs.message = [window](const QString& text) {
    Box(window, QMessageBox::NoIcon, text).exec();
  };
  dialogs.yes = [window, &program](const QString& question) {
    return askYes(window, program, question);
  };
  dialogs.changes = [window, &program](const QString& question) {
    return askForChanges(window, program, question);
  };
  dialogs.openName = [window, &program](const QString& folder) {
    return QFileDialog::getOpenFileName(window, shown(program.T("Load...")), folder,
                                        filterOf(program));
  };
  dialogs.saveName = [window, &program](const QString& suggestion) {
    QFileDialog dialog(window, shown(program.T("Save...")), suggestion, filterOf(program));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("sun");
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return QString();
    return dialog.selectedFiles().front();
  };
  return dialogs;
}

}  // namespace dialwright
