#include "FileChooser.h"

#include <QFileDialog>

#include "DrawingExport.h"

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

std::string askWhere(QFileDialog& dialog, const std::string& proposed) {
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.selectFile(QString::fromStdString(proposed));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().front().toStdString();
}

std::string askToSave(QWidget* parent, const std::string& proposed) {
  QFileDialog dialog(parent, "Save As", {}, kDrawings);
  dialog.setDefaultSuffix("svg");
  return askWhere(dialog, proposed);
}

// A name without an end gets that of the format that the user has chosen.
std::string askToExport(QWidget* parent, const std::string& proposed) {
  QStringList filters;
  for (const ExportFormat& format : exportFormats()) {
    filters << QString("%1 (*%2)").arg(format.name, format.end);
  }
  QFileDialog dialog(parent, "Export", {}, filters.join(";;"));
  const auto follow = [&dialog, filters](const QString& filter) {
    const auto chosen = static_cast<std::size_t>(qMax(0, filters.indexOf(filter)));
    dialog.setDefaultSuffix(QString(exportFormats()[chosen].end).mid(1));
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
  follow(filters.front());
  return askWhere(dialog, proposed);
}

}  // namespace

FileChooser dialogFileChooser() {
  return {askToOpen, askToSave, askToExport};
}

}  // namespace host
