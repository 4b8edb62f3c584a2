// A number that is set with a slider or typed into the field beside it.
#pragma once

#include <QObject>
#include <QString>
#include <functional>

class QDoubleSpinBox;
class QGridLayout;
class QLabel;
class QSlider;
class QWidget;

namespace host {

class SliderField : public QObject {
 public:
  struct Range {
    int top;      // what 1 is shown as; 0 is 0
    bool tenths;  // can be set, not only whole numbers
    QString suffix;
  };

  // Fills the next row of the grid, which is the layout of `parent`. `changed` is called with what the user
  // sets, 0 to 1.
  SliderField(QWidget& parent, QGridLayout& grid, const QString& label, const Range& range,
              std::function<void(double)> changed);

  void show(double value);  // calls nobody; beyond 0 to 1 is shown as the end of it
  void setEnabled(bool enabled);
  QWidget* field() const;  // that takes numbers

 private:
  QLabel* label_;
  QSlider* slider_;
  QDoubleSpinBox* field_;
  int top_;
  int steps_;  // of the slider in a unit of the field
};

}  // namespace host
