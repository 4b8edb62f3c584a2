#include "SliderField.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QWidget>
#include <cmath>
#include <utility>

namespace host {
namespace {

// Shows no zeros behind the decimal sign.
class NumberField : public QDoubleSpinBox {
 public:
  QString textFromValue(double value) const override {
    return locale().toString(value, 'f', QLocale::FloatingPointShortest);
  }
};

QString withoutMnemonic(QString label) {
  return label.remove('&').remove(':');
}

}  // namespace

SliderField::SliderField(QWidget& parent, QGridLayout& grid, const QString& label, const Range& range,
                         std::function<void(double)> changed)
    : QObject(&parent),
      label_(new QLabel(label)),
      slider_(new QSlider(Qt::Horizontal)),
      field_(new NumberField),
      top_(range.top),
      steps_(range.tenths ? 10 : 1) {
  field_->setDecimals(range.tenths ? 1 : 0);
  field_->setRange(0, top_);
  field_->setSuffix(range.suffix);
  field_->setAccelerated(true);
  slider_->setRange(0, top_ * steps_);
  slider_->setSingleStep(steps_);
  slider_->setPageStep(top_ * steps_ / 10);
  label_->setBuddy(field_);
  slider_->setAccessibleName(withoutMnemonic(label));
  field_->setAccessibleName(withoutMnemonic(label));
  const int row = grid.rowCount();
  grid.addWidget(label_, row, 0);
  grid.addWidget(slider_, row, 1);
  grid.addWidget(field_, row, 2);
  connect(slider_, &QSlider::valueChanged, this,
          [this](int steps) { field_->setValue(static_cast<double>(steps) / steps_); });
  connect(field_, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
          [this, changed = std::move(changed)](double value) {
            const QSignalBlocker quiet(slider_);
            slider_->setValue(static_cast<int>(std::lround(value * steps_)));
            changed(value / top_);
          });
}

void SliderField::show(double value) {
  const QSignalBlocker quietField(field_), quietSlider(slider_);
  field_->setValue(value * top_);
  slider_->setValue(static_cast<int>(std::lround(field_->value() * steps_)));
}

void SliderField::setEnabled(bool enabled) {
  label_->setEnabled(enabled);
  slider_->setEnabled(enabled);
  field_->setEnabled(enabled);
}

QWidget* SliderField::field() const {
  return field_;
}

}  // namespace host
