#include "PdfGroups.h"

#include "PdfInks.h"

namespace host {

std::string PdfGroups::add(Group group, AIRealPoint size) {
  groups_.emplace_back(std::move(group), size);
  return pdfResource("F", groups_.size() - 1);
}

void PdfGroups::drawInto(QPDF& pdf, QPDFObjectHandle shared, QPDFObjectHandle objects) const {
  for (std::size_t i = 0; i < groups_.size(); ++i) {
    const auto& [group, size] = groups_[i];
    auto inner = QPDFObjectHandle::newDictionary();
    for (const std::string& name : group.objects) inner.replaceKey(name, objects.getKey(name));
    QPDFObjectHandle resources = shared.shallowCopy();
    resources.replaceKey("/XObject", inner);
    QPDFObjectHandle form = QPDFObjectHandle::newStream(&pdf, group.content);
    QPDFObjectHandle dictionary = form.getDict();
    dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
    dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
    dictionary.replaceKey("/BBox", QPDFObjectHandle::newFromRectangle({0, 0, size.x, size.y}));
    dictionary.replaceKey(
        "/Group", QPDFObjectHandle::parse(group.isIsolated ? "<< /S /Transparency /I true /K false >>"
                                                           : "<< /S /Transparency /I false /K false >>"));
    dictionary.replaceKey("/Resources", resources);
    objects.replaceKey(pdfResource("F", i), form);
  }
}

}  // namespace host
