// Fields for numbers.
#pragma once

#include <vector>

#include "DimensionController.h"
#include "Section.h"

namespace qRVADM {
class RVADM_Label;
class RVADM_NumericEdit;
}  // namespace qRVADM

namespace gallery {

// The fields for lengths show one length in several units; a label follows the one that tells of each key.
class NumberSamples : public Section {
 public:
  explicit NumberSamples(qRVADM::RVADM_ItemParent* itemParent);

  void LayoutItems() override;
  bool OnItemNotify(qRVADM::RVADM_Item* item) override;

 private:
  struct Sample;
  struct Row {
    qRVADM::RVADM_Label* label;
    qRVADM::RVADM_NumericEdit* field;
    bool isLength;
  };

  void MakeRow(const Sample& sample);
  void Follow(const Row& changed);
  int Column(std::size_t first, int left);

  std::vector<Row> rows;
  qRVADM::RVADM_Label* inInches;
  qRVADM::DimensionController inches;  // writes the label
};

}  // namespace gallery
