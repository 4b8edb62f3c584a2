#include "ArtboardModel.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "Document.h"
#include "RulerUnits.h"

namespace host {
namespace {

// Without zeros that say nothing.
QString shortNumber(double points, AIRulerUnits units) {
  std::string number = lengthNumber(points, units);
  if (number.find('.') != std::string::npos) number.erase(number.find_last_not_of('0') + 1);
  if (number.back() == '.') number.pop_back();
  return QString::fromStdString(number);
}

QString sizeText(const AIRealRect& position, const Document& document) {
  const AIRulerUnits units = document.rulerUnits();
  const double scale = document.scale();
  return shortNumber((position.right - position.left) * scale, units) + " \u00D7 " +
         shortNumber((position.top - position.bottom) * scale, units) + " " + rulerUnit(units).sign;
}

std::vector<ArtboardRow> rowsOf(const Document& document) {
  const DocumentState& state = document.state();
  std::vector<ArtboardRow> rows;
  for (std::size_t i = 0; i < state.artboards.size(); ++i) {
    const Artboard& artboard = state.artboards[i];
    const QString number = QString::number(i + 1);
    rows.push_back({artboard.name.empty() ? "Artboard " + number : QString::fromStdString(artboard.name),
                    sizeText(artboard.position, document), artboard.position, i == state.activeArtboard});
  }
  return rows;
}

bool isSame(const ArtboardRow& a, const ArtboardRow& b) {
  const auto all = [](const ArtboardRow& row) {
    const AIRealRect& p = row.position;
    return std::tie(row.name, row.size, p.left, p.top, p.right, p.bottom, row.isActive);
  };
  return all(a) == all(b);
}

}  // namespace

void ArtboardModel::show(const Document* document) {
  std::vector<ArtboardRow> rows = document == nullptr ? std::vector<ArtboardRow>() : rowsOf(*document);
  if (std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(), isSame)) return;
  if (rows.size() == rows_.size()) {
    rows_ = std::move(rows);
    Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    return;
  }
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

int ArtboardModel::activeRow() const {
  const auto found =
      std::find_if(rows_.begin(), rows_.end(), [](const ArtboardRow& row) { return row.isActive; });
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int ArtboardModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant ArtboardModel::data(const QModelIndex& index, int role) const {
  const ArtboardRow& row = at(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return row.name;
    case kSizeRole:
      return row.size;
    case Qt::ToolTipRole:
      return (row.name + ", " + row.size).toHtmlEscaped();
    case Qt::AccessibleTextRole:
      return row.name + ", " + row.size + (row.isActive ? ", active" : "");
    default:
      return {};
  }
}

}  // namespace host
