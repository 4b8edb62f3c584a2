// The host's dialog for an RGB colour.
#pragma once

#include <QColorDialog>

#include "AIColor.h"

namespace host {

class RGBPicker : public QColorDialog {
 public:
  // An empty title is the host's own.
  RGBPicker(const QString& title, const AIRGBColor& color, QWidget* parent);

  // The dialog has 8 bits a component: one that the user left alone keeps all of its 16.
  AIRGBColor color() const;

 private:
  AIRGBColor before_;
};

}  // namespace host
