// The layers of a document, as rows.
#pragma once

#include <QAbstractListModel>
#include <functional>
#include <vector>

#include "DocumentState.h"

namespace host {

class Document;

struct LayerRow {
  LayerId id = 0;
  QString title;
  bool isVisible = true;
  bool isLocked = false;
  bool isCurrent = false;
  bool hasSelection = false;  // some of its art is selected
};

// From the top down, as the document has them.
class LayerModel : public QAbstractListModel {
 public:
  // `rename` is called when the user has typed another title.
  explicit LayerModel(std::function<void(LayerId, const QString&)> rename);

  void show(const Document* document);  // null: no rows
  const LayerRow& at(int row) const { return rows_[static_cast<std::size_t>(row)]; }
  int currentRow() const;  // that of the current layer; -1: there is none

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  std::function<void(LayerId, const QString&)> rename_;
  std::uint32_t serial_ = 0;  // of the document; 0: there is none
  std::vector<LayerRow> rows_;
};

}  // namespace host
