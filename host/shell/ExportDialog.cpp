#include "ExportDialog.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <filesystem>

#include "StepFields.h"
#include "WordList.h"

namespace host {
namespace {

namespace fs = std::filesystem;

// Such as "sheet.txt and sheet.json", and whether one of them is there already.
QString filesText(const std::string& output, const ExportExtras& extras) {
  std::vector<std::string> names;
  bool isThere = false;
  for (const std::string& file : exportFiles(output, extras)) {
    if (file == output) continue;
    std::error_code ignored;
    isThere = isThere || fs::exists(file, ignored);
    names.push_back(fs::path(file).filename().string());
  }
  const QString text = QString::fromStdString(wordList(names, "and"));
  return isThere ? text + " (replaces what is there)" : text;
}

class ExtrasBox : public QGroupBox {
 public:
  ExtrasBox(const std::string& output, const ExportExtras& proposed)
      : QGroupBox(QString("Beside %1").arg(QString::fromStdString(fs::path(output).filename().string()))) {
    auto* column = new QVBoxLayout(this);
    const auto add = [&](const QString& text, ExportExtras extra, bool isProposed) {
      QString files = filesText(output, extra);
      auto* box = new QCheckBox(text + files.replace('&', "&&"));
      box->setChecked(isProposed);
      column->addWidget(box);
      return box;
    };
    print_ = add("&Print-only file: ", {true, false, false}, proposed.printFile);
    cut_ = add("&Cut-only file: ", {false, true, false}, proposed.cutFile);
    summary_ = add("Job &summary: ", {false, false, true}, proposed.summary);
  }

  ExportExtras extras() const { return {print_->isChecked(), cut_->isChecked(), summary_->isChecked()}; }

 private:
  QCheckBox* print_;
  QCheckBox* cut_;
  QCheckBox* summary_;
};

void addButtons(QDialog& dialog) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  QPushButton* run = buttons->addButton("&Export", QDialogButtonBox::AcceptRole);
  dialog.layout()->addWidget(buttons);
  run->setDefault(true);
  run->setFocus();
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
}

QLabel* makeFindingsLabel(std::size_t findings) {
  const QString count = QString::number(findings) + (findings == 1 ? " finding" : " findings");
  return new QLabel(count + "; see the Preflight panel");
}

}  // namespace

std::optional<ExportChoice> askHowToExport(const Document& document, const std::string& output,
                                           const ExportExtras& proposed, std::size_t findings,
                                           QWidget* parent) {
  QDialog dialog(parent);
  dialog.setWindowTitle("Export");
  auto* column = new QVBoxLayout(&dialog);
  auto* fields = new StepFields(document);
  if (fields->steps().empty()) {
    column->addWidget(new QLabel("The drawing has no line types."));
    fields->hide();
  } else {
    column->addWidget(new QLabel("Processing step of each line type:"));
  }
  column->addWidget(fields);
  auto* beside = new ExtrasBox(output, proposed);
  column->addWidget(beside);
  if (findings > 0) column->addWidget(makeFindingsLabel(findings));
  addButtons(dialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return ExportChoice{fields->steps(), beside->extras()};
}

}  // namespace host
