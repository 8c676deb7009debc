# Lets the calls of failing_calls.cpp take the place of the system's in a test program.
function(tamrikon_failing_calls target)
  target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support/failing_calls.cpp)
  foreach(call open close read pread write fsync ftruncate truncate fstat stat access fchmod mkostemp
               rename unlink mkdir)
    target_link_options(${target} PRIVATE -Wl,--wrap=${call})
  endforeach()
endfunction()
