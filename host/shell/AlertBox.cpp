#include "AlertBox.h"

#include <QMessageBox>

#include "ProgramName.h"

namespace host {

void showAlertBox(const Alert& alert, QWidget* parent) {
  const bool isError = alert.kind == AlertKind::Error;
  QMessageBox box(isError ? QMessageBox::Critical : QMessageBox::Information, QString(kProgramName),
                  QString::fromStdString(alert.text), QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box.setDefaultButton(QMessageBox::Ok);
  box.setEscapeButton(QMessageBox::Ok);
  box.exec();
}

}  // namespace host
