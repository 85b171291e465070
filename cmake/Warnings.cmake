# Warnings are errors in our own targets; Qt's and other headers come in as system headers.
# Every target of ours goes through velmora_warnings, so the instrumented builds below reach all of
# them while Qt and the other libraries stay as Debian ships them.
option(VELMORA_SANITIZE "Build our targets under AddressSanitizer, UBSan and LeakSanitizer" OFF)

function(velmora_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 reports out-of-range memcmp bounds inside Qt's inlined string comparisons, where
    # the length cannot be negative; the warning is a false positive there.
    target_compile_options(${target} PRIVATE -Wno-stringop-overread)
  endif()
  target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_FOREACH)
  if(VELMORA_SANITIZE)
    # -O1 keeps the instrumented suite fast enough for CI while the stacks stay readable.
    target_compile_options(${target} PRIVATE -O1 -g1 -fsanitize=address,undefined
                                             -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
      # GCC's flow warnings misfire on the code ASan adds around Qt's inlined containers.
      target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
    endif()
  endif()
  if(VELMORA_FUZZ)
    # The code under fuzzing is instrumented too, so the fuzzer sees its branches and ASan its
    # memory; only the fuzz targets themselves link libFuzzer's main.
    target_compile_options(${target} PRIVATE -g -fsanitize=fuzzer-no-link,address,undefined
                                             -fno-sanitize-recover=undefined)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
  endif()
endfunction()
