#include "FileChooser.h"

#include <QFileDialog>

namespace host {
namespace {

constexpr char kDrawings[] = "SVG drawings (*.svg);;All files (*)";

std::vector<std::string> askToOpen(QWidget* parent) {
  std::vector<std::string> files;
  for (const QString& file : QFileDialog::getOpenFileNames(parent, "Open", {}, kDrawings)) {
    files.push_back(file.toStdString());
  }
  return files;
}

std::string askToSave(QWidget* parent, const std::string& proposed) {
  QFileDialog dialog(parent, "Save As", {}, kDrawings);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("svg");
  dialog.selectFile(QString::fromStdString(proposed));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().front().toStdString();
}

}  // namespace

FileChooser dialogFileChooser() {
  return {askToOpen, askToSave};
}

}  // namespace host
