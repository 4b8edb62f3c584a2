#include "AIUser.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "DecimalText.h"
#include "Entry.h"
#include "EvaluateExpression.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

AIErr show(Host& host, AlertKind kind, AIUnicodeStringHandle text) {
  const HostString* string = findString(host, text);
  if (string == nullptr) return kBadParameterErr;
  host.alert(kind, string->text());
  return kNoErr;
}

AIErr messageAlert(Host& host, AIUnicodeStringHandle text) {
  return show(host, AlertKind::Message, text);
}

AIErr errorAlert(Host& host, AIUnicodeStringHandle text) {
  return show(host, AlertKind::Error, text);
}

AIErr createCursorResourceMgr(Host& host, SPPluginRef plugin, AIResourceManagerHandle* manager) {
  if (host.plugins().find(plugin) == nullptr || manager == nullptr) return kBadParameterErr;
  *manager = host.objects().cursorResources.make({plugin});
  return *manager == nullptr ? kOutOfMemoryErr : kNoErr;
}

AIErr disposeCursorResourceMgr(Host& host, AIResourceManagerHandle manager) {
  return host.objects().cursorResources.dispose(manager) ? kNoErr : kBadParameterErr;
}

AIErr setCursor(Host& host, std::int32_t cursorID, AIResourceManagerHandle manager) {
  const CursorResources* resources = host.objects().cursorResources.find(manager);
  if (resources == nullptr) return kBadParameterErr;
  if (host.onCursor) host.onCursor(*host.plugins().find(resources->plugin), cursorID);
  return kNoErr;
}

AIErr getRGBColor(Host& host, AIUnicodeStringHandle title, AIRGBColor* color, AIBoolean* accepted) {
  const HostString* text = findString(host, title);
  if (text == nullptr || color == nullptr || accepted == nullptr) return kBadParameterErr;
  *accepted = 0;
  if (!host.interactionAllowed || !host.pickRGBColor) return kNoErr;
  AIRGBColor chosen = *color;
  if (!host.pickRGBColor(std::string(text->text()), chosen)) return kNoErr;
  *color = chosen;
  *accepted = 1;
  return kNoErr;
}

AIErr getUIScaleFactor(Host& host, AIReal* factor) {
  if (factor == nullptr) return kBadParameterErr;
  const double pixels = host.uiScaleFactor ? host.uiScaleFactor() : 1;
  *factor = pixels > 0 ? pixels : 1;
  return kNoErr;
}

AIErr realToString(Host& host, AIReal value, std::int16_t precision, AIBoolean fixed,
                   AIUnicodeStringHandle text) {
  if (!std::isfinite(value) || precision < 0) return kBadParameterErr;
  return writeString(host, text, decimalText(value, precision, fixed != 0));
}

bool isUsable(const AIExpressionOptions& options) {
  return std::isfinite(options.minimum) && std::isfinite(options.maximum) &&
         std::isfinite(options.defaultValue) && options.minimum <= options.maximum && options.precision >= 0;
}

AIErr evaluate(Host& host, AIUnicodeStringHandle expression, const AIExpressionOptions* options,
               AIUnicodeStringHandle evaluated, AIBoolean* flag, AIReal* result) {
  const HostString* typed = findString(host, expression);
  if (typed == nullptr || options == nullptr || flag == nullptr || result == nullptr) return kBadParameterErr;
  if (!isUsable(*options)) return kBadParameterErr;
  const std::optional<double> value =
      evaluateExpression(typed->text(), unitOfField(options->unit), options->defaultValue);
  *flag = value ? 0 : 1;
  *result = value ? std::clamp(*value, options->minimum, options->maximum) : options->defaultValue;
  if (evaluated == nullptr) return kNoErr;
  return writeString(host, evaluated, decimalText(*result, options->precision, false));
}

}  // namespace

SuiteOffer userSuite() {
  SuiteEntries entries(kAIUserSuite);
  static const AIUserSuite table{
      entries.add<messageAlert>("MessageAlert"),
      entries.add<errorAlert>("ErrorAlert"),
      entries.add<createCursorResourceMgr>("CreateCursorResourceMgr"),
      entries.add<disposeCursorResourceMgr>("DisposeCursorResourceMgr"),
      entries.add<setCursor>("SetCursor"),
      entries.add<getRGBColor>("GetRGBColor"),
      entries.add<getUIScaleFactor>("GetUIScaleFactor"),
      entries.add<realToString>("RealToString"),
      entries.add<evaluate>("EvaluateExpression"),
  };
  return entries.offer(kAIUserSuiteVersion, &table);
}

}  // namespace host
