// The host's dialog for a paint.
#pragma once

#include <QDialog>
#include <vector>

#include "DocumentState.h"
#include "PaintColours.h"

class QTabWidget;

namespace host {

class ComponentPage;
class Document;
class PaintPreview;
class SwatchPage;

// A page for swatches and one for each kind of paint that is numbers. The page that the user turns to says
// what kind the paint becomes; turning back loses nothing.
class PaintPicker : public QDialog {
 public:
  // `document`, which must outlive the dialog, has the swatches and whatever `paint` refers to; null: there
  // is none. `first` is the swatch that the list begins at, 0: its first.
  PaintPicker(const Document* document, SwatchId first, const AIColor& paint, QWidget* parent);

  const AIColor& paint() const { return paint_; }

 private:
  void buildPages(const Document* document, SwatchId first);
  void set(const AIColor& paint);  // by the user
  void turnedTo(int page);
  void showPaint();

  PaintColours colours_;
  AIColor set_;    // what the user set last, on whatever page
  AIColor paint_;  // the same as the page in front has it
  QTabWidget* pages_;
  SwatchPage* swatches_ = nullptr;
  std::vector<ComponentPage*> components_;
  PaintPreview* preview_;
};

}  // namespace host
