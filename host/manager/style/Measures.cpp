#include "Measures.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

namespace host::look {
namespace {

QFontMetrics metricsOf(const QStyleOption* option, const QWidget* widget) {
  if (option != nullptr) return option->fontMetrics;
  return widget != nullptr ? widget->fontMetrics() : QFontMetrics(QApplication::font());
}

}  // namespace

Measures::Measures(const QFontMetrics& metrics) : text_(std::max(metrics.height(), 8)) {}

Measures::Measures(const QStyleOption* option, const QWidget* widget) : Measures(metricsOf(option, widget)) {}

int Measures::share(double of) const {
  return qRound(text_ * of);
}

}  // namespace host::look
