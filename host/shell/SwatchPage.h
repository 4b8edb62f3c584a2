// A page of the paint picker: the swatches of the document.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "DocumentState.h"

class QListWidget;
class QListWidgetItem;

namespace host {

class Document;
class PaintColours;
class SliderField;

class SwatchPage : public QWidget {
 public:
  struct Events {
    std::function<void(const AIColor&)> chosen;  // the user picks a swatch, none, or another tint
    std::function<void()> accepted;              // with a double click
  };

  // No paint, the swatches without a group, and those of each group under its name. The list begins at the
  // swatch `first`; 0: where the selected one is seen. Null: no document. The others must outlive this.
  SwatchPage(const Document* document, SwatchId first, PaintColours& colours, Events events);

  // Calls nobody. A paint that is no swatch leaves none selected.
  void show(const AIColor& paint);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void fill(const Document& document, PaintColours& colours);
  void addHeading(const SwatchGroup& group);
  void addPaint(const QString& name, const AIColor& paint, const QColor& colour);
  void choose(const QListWidgetItem* row);
  void setTint(AIReal tint);
  int rowOf(const AIColor& paint) const;  // -1 if it is none of them

  const Document* document_;
  SwatchId first_;
  Events events_;
  QListWidget* list_;
  SliderField* tint_;
  std::vector<AIColor> paints_;  // by a row's number in kPaintRole
  int firstRow_ = -1;            // -1: none, or it was shown there already
  AIColor paint_{};
};

}  // namespace host
