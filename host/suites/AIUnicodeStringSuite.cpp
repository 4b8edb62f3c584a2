#include "AIUnicodeString.h"

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

// The platform's encoding is UTF-8 too.
bool isKnown(AICharacterEncoding encoding) {
  return encoding == kAIPlatformCharacterEncoding || encoding == kAIUTF8CharacterEncoding;
}

AIErr newString(Host& host, const char* bytes, std::size_t count, AICharacterEncoding encoding,
                AIUnicodeStringHandle* string) {
  if (string == nullptr || (bytes == nullptr && count > 0) || !isKnown(encoding)) return kBadParameterErr;
  *string = host.objects().strings.make(HostString(std::string_view(bytes, count)));
  return *string == nullptr ? kOutOfMemoryErr : kNoErr;
}

AIErr disposeString(Host& host, AIUnicodeStringHandle string) {
  return host.objects().strings.dispose(string) ? kNoErr : kBadParameterErr;
}

AIErr getLength(Host& host, AIUnicodeStringHandle string, std::size_t* utf16Units) {
  const HostString* found = findString(host, string);
  if (found == nullptr || utf16Units == nullptr) return kBadParameterErr;
  *utf16Units = found->utf16Units();
  return kNoErr;
}

AIErr getBytes(Host& host, AIUnicodeStringHandle string, AICharacterEncoding encoding, const char** bytes,
               std::size_t* count) {
  const HostString* found = findString(host, string);
  if (found == nullptr || bytes == nullptr || !isKnown(encoding)) return kBadParameterErr;
  *bytes = found->text().c_str();
  if (count != nullptr) *count = found->text().size();
  return kNoErr;
}

}  // namespace

SuiteOffer unicodeStringSuite() {
  SuiteEntries entries(kAIUnicodeStringSuite);
  static const AIUnicodeStringSuite table{
      entries.add<newString>("New"),
      entries.add<disposeString>("Dispose"),
      entries.add<getLength>("GetLength"),
      entries.add<getBytes>("GetBytes"),
  };
  return entries.offer(kAIUnicodeStringSuiteVersion, &table);
}

}  // namespace host
