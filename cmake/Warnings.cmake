# Warnings are errors in our own targets; Qt's and other headers come in as system headers.
function(velmora_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 reports out-of-range memcmp bounds inside Qt's inlined string comparisons, where
    # the length cannot be negative; the warning is a false positive there.
    target_compile_options(${target} PRIVATE -Wno-stringop-overread)
  endif()
  target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_FOREACH)
endfunction()
