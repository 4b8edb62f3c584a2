#include "NumberSamples.h"

#include <algorithm>

#include "RVADM_Label.h"
#include "RVADM_NumericEdit.h"
#include "TextKey.h"

namespace gallery {

using namespace qRVADM;

namespace {

constexpr int kFieldWidth = 102;
constexpr int kColumnGap = 16;
constexpr int kRowGap = 4;
constexpr double kMost = 10000;  // points
constexpr Dimension kFirst = {10, kMillimeterUnits};
constexpr double kFirstPercentage = 50;

// How a field differs from a plain one.
constexpr int kArrows = 1;
constexpr int kEachKey = 2;
constexpr int kKeepsEmpty = 4;
constexpr int kDisabled = 8;

}  // namespace

struct NumberSamples::Sample {
  const char* name;
  ADMUnits unit;
  int flags;
};

NumberSamples::NumberSamples(RVADM_ItemParent* itemParent)
    : Section(itemParent, TextKey("Numbers")),
      inInches(Make<RVADM_Label>("", false)),
      inches([this] { return inInches->GetTextInt(); },
             [this](const QString& text) { inInches->SetTextInt(text); },
             [this](const QString& text) { inInches->SetTextInt(text); },
             {ConvertDimension(kFirst, kInchUnits), kInchUnits}) {
  const Sample samples[] = {
      {TextKey("Points:"), kPointUnits, 0},
      {TextKey("Millimeters:"), kMillimeterUnits, kArrows},
      {TextKey("Inches:"), kInchUnits, kArrows},
      {TextKey("Picas:"), kPicaUnits, 0},
      {TextKey("Percent:"), kPercentUnits, kArrows},
      {TextKey("With each key:"), kMillimeterUnits, kArrows | kEachKey},
      {TextKey("May be empty:"), kPointUnits, kKeepsEmpty},
      {TextKey("Not enabled:"), kMillimeterUnits, kArrows | kDisabled},
  };
  for (const Sample& sample : samples) MakeRow(sample);
  inches.SetMinimum(0);
  inInches->SetWidth(kFieldWidth);
}

void NumberSamples::MakeRow(const Sample& sample) {
  const auto has = [&sample](int flag) { return (sample.flags & flag) != 0; };
  auto* const label = Make<RVADM_Label>(sample.name, true);
  auto* const field = Make<RVADM_NumericEdit>(has(kEachKey), -1, 0.0, kMost, 1.0);
  field->SetUnits(sample.unit);
  field->SetKeepEmpty(has(kKeepsEmpty));
  field->SetShowArrows(has(kArrows));
  const bool isPercentage = sample.unit == kPercentUnits;
  field->SetValue(sample.unit, isPercentage ? kFirstPercentage : ConvertDimension(kFirst, sample.unit));
  if (has(kKeepsEmpty)) field->SetText("", false, false);
  field->SetWidth(kFieldWidth);
  field->SetEnabled(!has(kDisabled));
  rows.push_back({label, field, !isPercentage && !has(kKeepsEmpty | kDisabled)});
}

void NumberSamples::LayoutItems() {
  const int left = GetInnerRect().left;
  const std::size_t half = rows.size() / 2;
  Column(half, Column(0, left) + kColumnGap);
  rows.back().field->PlaceBelow(inInches, kAlignBase | kAlignLeft, kDefaultGap);
  FitGroup();
}

// Half of the rows from the one that is given on; returns where they end.
int NumberSamples::Column(std::size_t first, int left) {
  const std::size_t end = first + rows.size() / 2;
  int widest = 0;
  for (std::size_t i = first; i < end; ++i) widest = std::max(widest, rows[i].label->GetWidth());
  int top = GetInnerRect().top;
  for (std::size_t i = first; i < end; ++i) {
    rows[i].label->MoveTo(left, top, false);
    rows[i].label->PlaceRightOf(rows[i].field, kAlignBase | kAlignTop, kDefaultGap);
    rows[i].field->MoveTo(widest - rows[i].label->GetWidth(), 0, true);
    rows[i].label->AlignWith(rows[i].field, kCenterV);
    top = rows[i].field->GetBottom() + kRowGap;
  }
  return rows[first].field->GetRight();
}

void NumberSamples::Follow(const Row& changed) {
  if (!changed.isLength) return;
  const double points = changed.field->GetValue(kPointUnits);
  for (const Row& row : rows) {
    if (row.isLength && row.field != changed.field) row.field->SetValue(kPointUnits, points);
  }
  inches.SetDimension({points, kPointUnits});
}

bool NumberSamples::OnItemNotify(RVADM_Item* item) {
  const auto changed = std::find_if(
      rows.begin(), rows.end(), [item](const Row& row) { return item == row.field || item == row.label; });
  if (changed != rows.end() && item == changed->field) Follow(*changed);
  return changed != rows.end() || item == inInches;
}

}  // namespace gallery
