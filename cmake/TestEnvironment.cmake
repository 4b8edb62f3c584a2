# Tests see no display and no language of this machine, and leave nothing in anybody's folders. What they free is
# free: without the allocator's stock for each thread, memory in use can be counted.
set(test_environment
  GLIBC_TUNABLES=glibc.malloc.tcache_count=0
  QT_QPA_PLATFORM=offscreen
  LC_ALL=C.UTF-8
  CORVANE_SHARED_DATA=${CMAKE_BINARY_DIR}/shared-data
  LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0
  UBSAN_OPTIONS=print_stacktrace=1)
