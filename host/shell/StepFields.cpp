#include "StepFields.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>
#include <QStandardItemModel>

#include "Document.h"
#include "Handles.h"
#include "PaintChip.h"
#include "PaintColours.h"

namespace host {
namespace {

constexpr int kStepRole = Qt::UserRole;
constexpr QSize kChip(20, 14);
constexpr int kMostVisible = 20;
constexpr int kNameWidth = 220;  // pixels of the interface

AIColor paintOf(const LineType& type, const Document& document) {
  AIColor paint{};
  paint.kind = kCustomColor;
  paint.c.c.color = makeHandle<AICustomColorHandle>(HandleKind::CustomColor, document.serial(), type.color);
  return paint;
}

void addChoice(QStandardItemModel& model, const QString& text, const QString& step) {
  auto* item = new QStandardItem(text);
  item->setData(step, kStepRole);
  item->setData(step, Qt::ToolTipRole);
  model.appendRow(item);
}

void addHeading(QStandardItemModel& model, const QString& text) {
  auto* item = new QStandardItem(text);
  item->setFlags(Qt::NoItemFlags);
  model.appendRow(item);
}

// The types below their groups; groups that want no type for themselves.
QStandardItemModel* makeChoices(QObject* parent) {
  auto* model = new QStandardItemModel(parent);
  addChoice(*model, "None", QString());
  QString group;
  for (const std::string& each : processingSteps()) {
    const QString step = QString::fromStdString(each);
    const QString itsGroup = step.contains('/') ? step.section('/', 0, 0) : "Other";
    if (itsGroup != group) addHeading(*model, group = itsGroup);
    addChoice(*model, step.section('/', -1), step);
  }
  return model;
}

QLabel* makeNameLabel(const QString& name) {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setText(label->fontMetrics().elidedText(name, Qt::ElideMiddle, kNameWidth));
  if (label->text() != name) label->setToolTip(name.toHtmlEscaped());
  return label;
}

}  // namespace

StepFields::StepFields(const Document& document) : choices_(makeChoices(this)) {
  auto* rows = new QWidget;
  auto* grid = new QGridLayout(rows);
  grid->setColumnStretch(1, 1);
  PaintColours colours(&document);
  for (const LineType& type : typesWithSteps(document)) addRow(*grid, type, document, colours);
  grid->setRowStretch(grid->rowCount(), 1);
  setWidget(rows);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setMinimumWidth(rows->sizeHint().width() + verticalScrollBar()->sizeHint().width() + 2 * frameWidth());
}

void StepFields::addRow(QGridLayout& grid, const LineType& type, const Document& document,
                        PaintColours& colours) {
  const QString name = QString::fromStdString(type.name).simplified();
  const int row = static_cast<int>(fields_.size());
  auto* chip = new PaintChip(kChip);
  chip->show({colours.shown(paintOf(type, document)), false, true});
  grid.addWidget(chip, row, 0);
  grid.addWidget(makeNameLabel(name), row, 1);
  QComboBox* box = makeBox(name, QString::fromStdString(stepOf(document, type)));
  grid.addWidget(box, row, 2);
  fields_.push_back({type.name, box});
}

QComboBox* StepFields::makeBox(const QString& lineType, const QString& step) {
  auto* box = new QComboBox;
  box->setModel(choices_);
  box->setMaxVisibleItems(kMostVisible);
  box->setAccessibleName("Processing step of " + lineType);
  box->setCurrentIndex(box->findData(step, kStepRole));
  box->setFocusPolicy(Qt::StrongFocus);
  box->installEventFilter(this);
  return box;
}

StepByType StepFields::steps() const {
  StepByType steps;
  for (const Field& field : fields_) {
    steps[field.lineType] = field.box->currentData(kStepRole).toString().toStdString();
  }
  return steps;
}

bool StepFields::eventFilter(QObject* watched, QEvent* event) {
  const auto* box = qobject_cast<QComboBox*>(watched);
  if (box == nullptr || event->type() != QEvent::Wheel || box->hasFocus()) {
    return QScrollArea::eventFilter(watched, event);
  }
  event->ignore();
  return true;
}

}  // namespace host
