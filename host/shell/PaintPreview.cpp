#include "PaintPreview.h"

#include <QLabel>
#include <QVBoxLayout>

#include "PaintChip.h"
#include "PaintColours.h"
#include "PaintText.h"

namespace host {
namespace {

constexpr QSize kChip(120, 48);

}  // namespace

PaintPreview::PaintPreview(const AIColor& before, const Document* document, PaintColours& colours)
    : document_(document), colours_(colours) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  after_ = addPart("New");
  show(addPart("Before"), before);
  column->addStretch();
  show(before);
}

PaintPreview::Part PaintPreview::addPart(const QString& name) {
  Part part{new PaintChip(kChip), new QLabel, name};
  part.words->setTextFormat(Qt::PlainText);
  part.words->setWordWrap(true);
  part.words->setFixedWidth(kChip.width());
  part.words->setMinimumHeight(2 * part.words->fontMetrics().lineSpacing());
  part.words->setAlignment(Qt::AlignTop);
  for (QWidget* widget : {static_cast<QWidget*>(new QLabel(name)), static_cast<QWidget*>(part.chip),
                          static_cast<QWidget*>(part.words)}) {
    layout()->addWidget(widget);
  }
  return part;
}

void PaintPreview::show(const AIColor& after) {
  show(after_, after);
}

void PaintPreview::show(const Part& part, const AIColor& paint) {
  const QString words = paintText(paint, document_);
  part.chip->show({colours_.shown(paint), paint.kind == kNoneColor});
  part.chip->setAccessibleName(part.name + ": " + words);
  part.words->setText(words);
}

}  // namespace host
