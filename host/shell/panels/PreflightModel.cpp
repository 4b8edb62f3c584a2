#include "PreflightModel.h"

#include <QFont>
#include <QPainter>
#include <utility>

namespace host {
namespace {

constexpr int kSignSize = 12;  // pixels

QString titleOf(FindingKind kind) {
  switch (kind) {
    case FindingKind::OpenPath:
      return "Open paths";
    case FindingKind::DoubledLine:
      return "Doubled lines";
    case FindingKind::OutOfReach:
      return "Hidden or locked";
    case FindingKind::NearMissName:
      return "Names";
    case FindingKind::WrongLayer:
      return "Wrong layer";
    case FindingKind::OutsideMarks:
      return "Outside the marks";
    case FindingKind::InClearZone:
      return "Too near to marks";
    case FindingKind::SymmetricalMarks:
      return "Symmetrical marks";
    case FindingKind::TinySegment:
      return "Tiny segments";
    case FindingKind::LiveText:
      return "Live text";
  }
  return {};
}

// What makes a job fail, beside what makes it slower or rougher.
bool isGrave(FindingKind kind) {
  return kind != FindingKind::OpenPath && kind != FindingKind::DoubledLine &&
         kind != FindingKind::SymmetricalMarks && kind != FindingKind::TinySegment;
}

// Different in shape too, for eyes that don't tell the colours.
QPixmap sign(bool isForGrave, int scale) {
  QPixmap pixmap(kSignSize * scale, kSignSize * scale);
  pixmap.setDevicePixelRatio(scale);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(isForGrave ? QColor(222, 68, 60) : QColor(214, 148, 20));
  if (isForGrave) {
    painter.drawEllipse(QRectF(1.5, 1.5, 9, 9));
  } else {
    painter.drawPolygon(QPolygonF({{6, 1.5}, {11, 10.5}, {1, 10.5}}));
  }
  return pixmap;
}

QIcon signIcon(bool isForGrave) {
  QIcon icon;
  for (const int scale : {1, 2}) {
    const QPixmap pixmap = sign(isForGrave, scale);
    icon.addPixmap(pixmap, QIcon::Normal);
    icon.addPixmap(pixmap, QIcon::Selected);
  }
  return icon;
}

}  // namespace

void PreflightModel::show(std::vector<Finding> findings, const QString& allClear) {
  beginResetModel();
  findings_ = std::move(findings);
  isStale_ = false;
  makeRows();
  if (rows_.empty()) rows_.push_back({allClear});
  endResetModel();
}

void PreflightModel::showNothing() {
  if (rows_.empty()) return;
  beginResetModel();
  findings_.clear();
  rows_.clear();
  isStale_ = false;
  endResetModel();
}

void PreflightModel::markStale() {
  if (isStale_) return;
  beginInsertRows({}, 0, 0);
  isStale_ = true;
  rows_.insert(rows_.begin(), Row{"Changed since. F5 checks again"});
  endInsertRows();
}

void PreflightModel::makeRows() {
  rows_.clear();
  for (std::size_t i = 0; i < findings_.size(); ++i) {
    const FindingKind kind = findings_[i].kind;
    if (i == 0 || findings_[i - 1].kind != kind) rows_.push_back({titleOf(kind), kNone, true});
    rows_.push_back({QString::fromStdString(findings_[i].sentence), i});
  }
}

const Finding* PreflightModel::findingAt(int row) const {
  if (row < 0 || row >= rowCount()) return nullptr;
  const std::size_t finding = rows_[static_cast<std::size_t>(row)].finding;
  return finding == kNone ? nullptr : &findings_[finding];
}

int PreflightModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant PreflightModel::data(const QModelIndex& index, int role) const {
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole) return row.text;
  if (row.finding != kNone) return findingData(row, role);
  if (role != Qt::FontRole || !row.isHeading) return {};
  QFont bold;
  bold.setBold(true);
  return bold;
}

QVariant PreflightModel::findingData(const Row& row, int role) const {
  static const QIcon grave = signIcon(true), slight = signIcon(false);
  const Finding& finding = findings_[row.finding];
  switch (role) {
    case Qt::DecorationRole:
      return isGrave(finding.kind) ? grave : slight;
    case Qt::ToolTipRole:
      return "<p>" + row.text.toHtmlEscaped() + "</p>";  // which wraps
    case Qt::AccessibleTextRole:
      return titleOf(finding.kind) + ": " + row.text;
    default:
      return {};
  }
}

Qt::ItemFlags PreflightModel::flags(const QModelIndex& index) const {
  const bool isChoice = findingAt(index.row()) != nullptr || isStaleRow(index.row());
  return isChoice ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

}  // namespace host
