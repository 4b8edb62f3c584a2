// The line types of a drawing, with a field each that chooses its processing step.
#pragma once

#include <QScrollArea>
#include <vector>

#include "ProcessingSteps.h"

class QComboBox;
class QGridLayout;
class QStandardItemModel;

namespace host {

class PaintColours;

class StepFields : public QScrollArea {
 public:
  // Shows the steps that hold in the document, which it reads only now.
  explicit StepFields(const Document& document);

  // Of all its line types.
  StepByType steps() const;

 protected:
  // The wheel scrolls; it changes a field only when that has the focus.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Field {
    std::string lineType;
    QComboBox* box;
  };
  void addRow(QGridLayout& grid, const LineType& type, const Document& document, PaintColours& colours);
  QComboBox* makeBox(const QString& lineType, const QString& step);

  QStandardItemModel* choices_;  // of all fields
  std::vector<Field> fields_;
};

}  // namespace host
