# Flags of everything that this project compiles: warnings, sanitizers, Qt strictness.
add_library(vxmfc_flags INTERFACE)
target_compile_options(vxmfc_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast
  $<$<BOOL:${VXMFC_WARNINGS_AS_ERRORS}>:-Werror>
  # Unique symbols would pin a library in memory after dlclose.
  $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
target_compile_definitions(vxmfc_flags INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_DEPRECATED_WARNINGS)

if(VXMFC_SANITIZE STREQUAL "address")
  set(_vxmfc_sanitize -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
elseif(VXMFC_SANITIZE STREQUAL "thread")
  set(_vxmfc_sanitize -fsanitize=thread -fno-omit-frame-pointer)
elseif(VXMFC_SANITIZE)
  message(FATAL_ERROR "VXMFC_SANITIZE is '${VXMFC_SANITIZE}'; use address or thread")
endif()
if(VXMFC_BUILD_FUZZERS)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "VXMFC_BUILD_FUZZERS needs clang, which has the fuzzing engine")
  endif()
  # What is compiled counts the branches that an input takes; the engine itself is in the targets.
  list(APPEND _vxmfc_sanitize -fsanitize=fuzzer-no-link)
endif()
if(_vxmfc_sanitize)
  target_compile_options(vxmfc_flags INTERFACE ${_vxmfc_sanitize})
  target_link_options(vxmfc_flags INTERFACE ${_vxmfc_sanitize})
else()
  # Not with sanitizers: a library finds their run-time system in the program that loads it.
  target_link_options(vxmfc_flags INTERFACE -Wl,--no-undefined)
endif()
