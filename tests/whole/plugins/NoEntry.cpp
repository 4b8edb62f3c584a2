// Has code, but not the entry that a plug-in needs.
extern "C" __attribute__((visibility("default"))) int SomethingElse() {
  return 0;
}
