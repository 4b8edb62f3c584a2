// A page of the paint picker: the components of one kind of paint.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "PaintComponents.h"

namespace host {

class SliderField;

class ComponentPage : public QWidget {
 public:
  // `kind` is kGrayColor, kThreeColor or kFourColor; `changed` is called with what the user sets.
  ComponentPage(AIColorTag kind, std::function<void(const AIColor&)> changed);

  AIColorTag kind() const { return kind_; }
  // A paint of the kind; calls nobody. Its numbers stay as they are until the user sets them.
  void show(const AIColor& paint);

 private:
  void set(std::size_t component, AIReal value);

  AIColorTag kind_;
  std::function<void(const AIColor&)> changed_;
  PaintComponents components_{};
  std::vector<SliderField*> fields_;
};

}  // namespace host
