// What a preflight found, as rows under headings.
#pragma once

#include <QAbstractListModel>
#include <QIcon>
#include <vector>

#include "Preflight.h"

namespace host {

class PreflightModel : public QAbstractListModel {
 public:
  // Of a document that was checked. If there are none, `allClear` says so.
  void show(std::vector<Finding> findings, const QString& allClear);
  void showNothing();  // there is no document
  // A row above the others says that they are of an earlier state of the document.
  void markStale();

  // Null for a row without one, such as a heading.
  const Finding* findingAt(int row) const;
  bool isStaleRow(int row) const { return isStale_ && row == 0; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  struct Row {
    QString text;
    std::size_t finding = kNone;
    bool isHeading = false;
  };

  void makeRows();
  QVariant findingData(const Row& row, int role) const;

  std::vector<Finding> findings_;
  std::vector<Row> rows_;
  bool isStale_ = false;
};

}  // namespace host
