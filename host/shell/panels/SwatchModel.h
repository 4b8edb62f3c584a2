// The swatches of a document, as rows under the headings of their groups.
#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QIcon>
#include <memory>
#include <optional>
#include <vector>

#include "DocumentState.h"

namespace host {

class Document;
class PaintColours;

class SwatchModel : public QAbstractListModel {
 public:
  struct Row {
    SwatchId swatch = 0;  // 0: a heading
    QString text;
    AIColor paint{};
    std::optional<AICustomColor> custom;  // what is behind the paint, if it is a tint of something
  };

  SwatchModel();
  ~SwatchModel() override;

  void show(std::shared_ptr<const Document> document);  // null: no rows
  // Null if there is no such row, or it is a heading.
  const Row* swatchAt(int row) const;
  int rowOf(SwatchId swatch) const;  // -1 if it is not there

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  QVariant headingData(const Row& row, int role) const;
  QIcon chip(const Row& row) const;

  std::shared_ptr<const Document> document_;
  std::unique_ptr<PaintColours> colours_;  // those of the document
  std::vector<Row> rows_;
  mutable QHash<SwatchId, QIcon> chips_;  // made when they are first seen
};

}  // namespace host
