# Warnings are errors in our own targets; Qt's and other headers come in as system headers.
function(velmora_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror)
  target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_FOREACH)
endfunction()
