// The artboards of a document, as rows.
#pragma once

#include <QAbstractListModel>
#include <vector>

#include "AITypes.h"

namespace host {

class Document;

struct ArtboardRow {
  QString name;
  QString size;  // in the unit of the rulers
  AIRealRect position{};
  bool isActive = false;
};

// In the order of the document.
class ArtboardModel : public QAbstractListModel {
 public:
  static constexpr int kSizeRole = Qt::UserRole;  // the size's text

  void show(const Document* document);  // null: no rows
  const ArtboardRow& at(int row) const { return rows_[static_cast<std::size_t>(row)]; }
  int activeRow() const;  // -1: there is none

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<ArtboardRow> rows_;
};

}  // namespace host
