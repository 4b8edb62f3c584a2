#include "PdfGroups.h"

#include "PdfInks.h"

namespace host {

std::string PdfGroups::add(std::string content, std::set<std::string> objects, double width, double height) {
  groups_.push_back({std::move(content), std::move(objects), width, height});
  return pdfResource("F", groups_.size() - 1);
}

void PdfGroups::drawInto(QPDF& pdf, QPDFObjectHandle shared, QPDFObjectHandle objects) const {
  for (std::size_t i = 0; i < groups_.size(); ++i) {
    const Group& group = groups_[i];
    auto inner = QPDFObjectHandle::newDictionary();
    for (const std::string& name : group.objects) inner.replaceKey(name, objects.getKey(name));
    QPDFObjectHandle resources = shared.shallowCopy();
    resources.replaceKey("/XObject", inner);
    QPDFObjectHandle form = QPDFObjectHandle::newStream(&pdf, group.content);
    QPDFObjectHandle dictionary = form.getDict();
    dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
    dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
    dictionary.replaceKey("/BBox", QPDFObjectHandle::newFromRectangle({0, 0, group.width, group.height}));
    dictionary.replaceKey("/Group", QPDFObjectHandle::parse("<< /S /Transparency /I false /K false >>"));
    dictionary.replaceKey("/Resources", resources);
    objects.replaceKey(pdfResource("F", i), form);
  }
}

}  // namespace host
