#include "ComponentPage.h"

#include <QGridLayout>
#include <utility>

#include "SliderField.h"

namespace host {
namespace {

const std::vector<const char*>& labelsOf(AIColorTag kind) {
  static const std::vector<const char*> gray{"&Black:"}, rgb{"R&ed:", "Gree&n:", "B&lue:"},
      cmyk{"Cya&n:", "Ma&genta:", "&Yellow:", "Blac&k:"};
  return kind == kGrayColor ? gray : kind == kThreeColor ? rgb : cmyk;
}

}  // namespace

ComponentPage::ComponentPage(AIColorTag kind, std::function<void(const AIColor&)> changed)
    : kind_(kind), changed_(std::move(changed)) {
  const SliderField::Range light{255, false, {}}, ink{100, true, " %"};
  auto* grid = new QGridLayout(this);
  for (const char* label : labelsOf(kind)) {
    fields_.push_back(new SliderField(*this, *grid, label, kind == kThreeColor ? light : ink,
                                      [this, i = fields_.size()](double value) { set(i, value); }));
  }
  grid->setRowStretch(grid->rowCount(), 1);
  setFocusProxy(fields_.front()->field());
}

void ComponentPage::show(const AIColor& paint) {
  components_ = componentsOf(paint).value_or(components_);
  for (std::size_t i = 0; i < fields_.size(); ++i) fields_[i]->show(components_[i]);
}

void ComponentPage::set(std::size_t component, AIReal value) {
  components_[component] = value;
  changed_(paintOf(kind_, components_));
}

}  // namespace host
