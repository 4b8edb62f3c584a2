# Every target of ours compiles with these; a warning is an error.
add_library(corvane_warnings INTERFACE)
target_compile_features(corvane_warnings INTERFACE cxx_std_17)
target_compile_options(corvane_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wformat=2 -Werror)
target_compile_definitions(corvane_warnings INTERFACE QT_NO_KEYWORDS)
