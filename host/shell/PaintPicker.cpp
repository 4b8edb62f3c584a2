#include "PaintPicker.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>
#include <utility>

#include "ComponentPage.h"
#include "PaintPreview.h"
#include "SwatchPage.h"

namespace host {
namespace {

constexpr QSize kSize(480, 400);
constexpr std::pair<AIColorTag, const char*> kComponentPages[] = {
    {kThreeColor, "&RGB"}, {kFourColor, "&CMYK"}, {kGrayColor, "Gr&ay"}};

}  // namespace

PaintPicker::PaintPicker(const Document* document, SwatchId first, const AIColor& paint, QWidget* parent)
    : QDialog(parent,
              Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      colours_(document),
      set_(paint),
      paint_(paint),
      pages_(new QTabWidget),
      preview_(new PaintPreview(paint, document, colours_)) {
  setWindowTitle("Choose a Paint");
  buildPages(document, first);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* upper = new QHBoxLayout;
  upper->addWidget(pages_, 1);
  upper->addWidget(preview_);
  auto* rows = new QVBoxLayout(this);
  rows->addLayout(upper, 1);
  rows->addWidget(buttons);
  pages_->currentWidget()->setFocus();
  showPaint();
  resize(sizeHint().expandedTo(kSize));
}

void PaintPicker::buildPages(const Document* document, SwatchId first) {
  const auto setPaint = [this](const AIColor& paint) { set(paint); };
  swatches_ = new SwatchPage(document, first, colours_, {setPaint, [this] { accept(); }});
  pages_->addTab(swatches_, "&Swatches");
  for (const auto& [kind, title] : kComponentPages) {
    components_.push_back(new ComponentPage(kind, setPaint));
    const int page = pages_->addTab(components_.back(), title);
    if (paint_.kind == kind) pages_->setCurrentIndex(page);
  }
  pages_->setAccessibleName("Kind of paint");
  pages_->setUsesScrollButtons(false);
  connect(pages_, &QTabWidget::currentChanged, this, [this](int page) { turnedTo(page); });
}

void PaintPicker::set(const AIColor& paint) {
  set_ = paint;
  paint_ = paint;
  preview_->show(paint_);
}

void PaintPicker::turnedTo(int page) {
  paint_ = page == 0 ? set_ : colours_.as(components_[static_cast<std::size_t>(page) - 1]->kind(), set_);
  showPaint();
}

void PaintPicker::showPaint() {
  swatches_->show(paint_);
  for (ComponentPage* page : components_) page->show(colours_.as(page->kind(), paint_));
  preview_->show(paint_);
}

}  // namespace host
