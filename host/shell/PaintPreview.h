// The paint before and after, as colours and in words.
#pragma once

#include <QWidget>

#include "AIColor.h"

class QLabel;

namespace host {

class Document;
class PaintChip;
class PaintColours;

class PaintPreview : public QWidget {
 public:
  // `before` is what the user began with. Null: no document. The others must outlive this.
  PaintPreview(const AIColor& before, const Document* document, PaintColours& colours);

  void show(const AIColor& after);

 private:
  struct Part {
    PaintChip* chip;
    QLabel* words;
    QString name;
  };
  Part addPart(const QString& name);
  void show(const Part& part, const AIColor& paint);

  const Document* document_;
  PaintColours& colours_;
  Part after_;
};

}  // namespace host
