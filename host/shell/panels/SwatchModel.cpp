#include "SwatchModel.h"

#include <QFont>
#include <algorithm>
#include <utility>

#include "Document.h"
#include "PaintChip.h"
#include "PaintColours.h"
#include "PaintComponents.h"
#include "PaintText.h"
#include "SvgFallbackColour.h"
#include "SwatchOrder.h"

namespace host {
namespace {

constexpr QSize kChip(20, 14);

using Row = SwatchModel::Row;

Row headingOf(const SwatchGroup& group) {
  Row row;
  row.text = group.name.empty() ? "Group" : QString::fromStdString(group.name);
  return row;
}

Row rowOf(SwatchId id, const Document& document) {
  const Swatch& swatch = *document.swatch(id);
  Row row;
  row.swatch = id;
  row.paint = swatch.color;
  row.text = swatch.name.empty() ? paintText(swatch.color, &document) : QString::fromStdString(swatch.name);
  const CustomColor* const custom =
      swatch.color.kind == kCustomColor ? customColorOf(swatch.color, document) : nullptr;
  if (custom != nullptr) row.custom = custom->definition;
  return row;
}

std::vector<Row> rowsOf(const Document& document) {
  std::vector<Row> rows;
  for (const SwatchEntry& entry : listedSwatches(document)) {
    rows.push_back(entry.swatch == 0 ? headingOf(*document.swatchGroup(entry.group))
                                     : rowOf(entry.swatch, document));
  }
  return rows;
}

bool isSame(const Row& a, const Row& b) {
  return a.swatch == b.swatch && a.text == b.text && isSamePaint(a.paint, b.paint) &&
         a.custom.has_value() == b.custom.has_value() &&
         (!a.custom || isSameDefinition(*a.custom, *b.custom));
}

bool isSpot(const Row& row) {
  return row.custom && (row.custom->flag & kCustomSpotColor) != 0;
}

}  // namespace

SwatchModel::SwatchModel() = default;
SwatchModel::~SwatchModel() = default;

void SwatchModel::show(std::shared_ptr<const Document> document) {
  std::vector<Row> rows = document == nullptr ? std::vector<Row>() : rowsOf(*document);
  const bool isNothingNew =
      document == document_ && std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(), isSame);
  if (isNothingNew) return;
  beginResetModel();
  rows_ = std::move(rows);
  chips_.clear();
  if (document != document_) {
    colours_ = document == nullptr ? nullptr : std::make_unique<PaintColours>(document.get());
    document_ = std::move(document);
  }
  endResetModel();
}

const Row* SwatchModel::swatchAt(int row) const {
  if (row < 0 || row >= rowCount()) return nullptr;
  const Row& found = rows_[static_cast<std::size_t>(row)];
  return found.swatch == 0 ? nullptr : &found;
}

int SwatchModel::rowOf(SwatchId swatch) const {
  const auto found =
      std::find_if(rows_.begin(), rows_.end(), [=](const Row& row) { return row.swatch == swatch; });
  return swatch == 0 || found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int SwatchModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant SwatchModel::data(const QModelIndex& index, int role) const {
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  if (row.swatch == 0) return headingData(row, role);
  switch (role) {
    case Qt::DisplayRole:
      return row.text;
    case Qt::DecorationRole:
      return chip(row);
    case Qt::ToolTipRole:
      return (row.text + "\n" + paintDefinition(row.paint, document_.get()))
          .toHtmlEscaped()
          .replace('\n', "<br>");
    case Qt::AccessibleDescriptionRole:
      return paintDefinition(row.paint, document_.get());
    default:
      return {};
  }
}

QVariant SwatchModel::headingData(const Row& row, int role) const {
  if (role == Qt::DisplayRole) return row.text;
  if (role != Qt::FontRole) return {};
  QFont bold;
  bold.setBold(true);
  return bold;
}

QIcon SwatchModel::chip(const Row& row) const {
  QIcon& icon = chips_[row.swatch];
  if (icon.isNull()) {
    icon = chipIcon({colours_->shown(row.paint), row.paint.kind == kNoneColor, isSpot(row)}, kChip);
  }
  return icon;
}

Qt::ItemFlags SwatchModel::flags(const QModelIndex& index) const {
  return swatchAt(index.row()) == nullptr ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

}  // namespace host
