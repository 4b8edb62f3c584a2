#include "LayerModel.h"

#include <QStringList>
#include <algorithm>
#include <tuple>
#include <utility>

#include "Document.h"

namespace host {
namespace {

std::vector<LayerRow> rowsOf(const Document& document) {
  const DocumentState& state = document.state();
  std::vector<LayerRow> rows;
  for (const LayerId id : state.layers) {
    const Layer& layer = *document.layer(id);
    rows.push_back({id, QString::fromStdString(layer.title), layer.visible, !layer.editable,
                    id == state.currentLayer, document.holdsSelected(layer.root)});
  }
  return rows;
}

bool operator==(const LayerRow& a, const LayerRow& b) {
  const auto all = [](const LayerRow& row) {
    return std::tie(row.id, row.title, row.isVisible, row.isLocked, row.isCurrent, row.hasSelection);
  };
  return all(a) == all(b);
}

// What the signs of a row say.
QString spokenText(const LayerRow& row) {
  QStringList words{row.title};
  if (row.isCurrent) words << "current";
  if (!row.isVisible) words << "hidden";
  if (row.isLocked) words << "locked";
  if (row.hasSelection) words << "with selected art";
  return words.join(", ");
}

}  // namespace

LayerModel::LayerModel(std::function<void(LayerId, const QString&)> rename) : rename_(std::move(rename)) {}

void LayerModel::show(const Document* document) {
  std::vector<LayerRow> rows = document == nullptr ? std::vector<LayerRow>() : rowsOf(*document);
  const std::uint32_t serial = document == nullptr ? 0 : document->serial();
  const bool sameLayers = std::exchange(serial_, serial) == serial &&
                          std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(),
                                     [](const LayerRow& a, const LayerRow& b) { return a.id == b.id; });
  if (!sameLayers) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
    return;
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i] == rows_[i]) continue;
    rows_[i] = rows[i];
    const QModelIndex changed = index(static_cast<int>(i));
    Q_EMIT dataChanged(changed, changed);
  }
}

int LayerModel::currentRow() const {
  const auto found =
      std::find_if(rows_.begin(), rows_.end(), [](const LayerRow& row) { return row.isCurrent; });
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int LayerModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant LayerModel::data(const QModelIndex& index, int role) const {
  const LayerRow& row = at(index.row());
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return row.title;
    case Qt::ToolTipRole:
      return row.title.toHtmlEscaped();
    case Qt::AccessibleTextRole:
      return spokenText(row);
    default:
      return {};
  }
}

bool LayerModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  const QString title = value.toString().trimmed();
  const LayerRow row = at(index.row());
  if (role != Qt::EditRole || title.isEmpty() || title == row.title) return false;
  rename_(row.id, title);
  return true;
}

Qt::ItemFlags LayerModel::flags(const QModelIndex& index) const {
  return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable : Qt::NoItemFlags;
}

}  // namespace host
