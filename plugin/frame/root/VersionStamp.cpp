// Names the build in the image, for whoever looks into the file; nothing reads it at run time.
namespace {

constexpr char kVersionStamp[] = "\n***HMXVERSIONINFO***1.00.1.1__corvane__Oct 31 2022__17:56:30\n";
[[gnu::used]] const char* volatile versionStamp = kVersionStamp;

}  // namespace
