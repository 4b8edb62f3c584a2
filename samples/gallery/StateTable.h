// Every item in every state: a row for each kind of item, a column for each state.
#pragma once

#include <QObject>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "Section.h"

namespace gallery {

enum State : std::size_t { kNormal, kFocused, kPressed, kDisabled, kStateCount };

// The items of the focused column show the focus together: it is in a text field there, and the others lead
// to it. The normal items have tips.
class StateTable : public Section {
 public:
  explicit StateTable(qRVADM::RVADM_ItemParent* itemParent);

  void InitItems();  // puts them into their states
  void TakeFocus();
  void LayoutItems() override;
  bool OnItemNotify(qRVADM::RVADM_Item* item) override;
  // Which item it was that notified last: "Slider, Normal", translated.
  const std::string& GetLastNotice() const { return lastNotice; }

 private:
  struct Row {
    const char* name;
    qRVADM::RVADM_Item* label;
    std::array<qRVADM::RVADM_Item*, kStateCount> items;  // null: the kind of item does not have the state
  };
  struct Kind;

  void MakeRow(const Kind& kind);
  void ShareFocus();
  std::vector<int> ColumnLefts(int left) const;
  static int LayoutRow(const Row& row, int left, int top, const std::vector<int>& lefts);  // its bottom

  std::array<qRVADM::RVADM_Item*, kStateCount> heads{};
  std::vector<Row> rows;
  qRVADM::RVADM_Item* focusedField = nullptr;
  std::string lastNotice;
  QObject focusWatch;  // hears of the focus for as long as the table stands
};

}  // namespace gallery
