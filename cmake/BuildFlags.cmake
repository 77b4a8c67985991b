# Flags of everything that this project compiles: warnings, Qt strictness, sanitizers, hardening.
add_library(vxmfc_flags INTERFACE)
target_compile_options(vxmfc_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast
  $<$<BOOL:${VXMFC_WARNINGS_AS_ERRORS}>:-Werror>
  # Unique symbols would pin a library in memory after dlclose.
  $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
target_compile_definitions(vxmfc_flags INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_DEPRECATED_WARNINGS)

if(VXMFC_SANITIZE STREQUAL "address")
  set(_vxmfc_instruments -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
elseif(VXMFC_SANITIZE STREQUAL "thread")
  set(_vxmfc_instruments -fsanitize=thread -fno-omit-frame-pointer)
elseif(VXMFC_SANITIZE)
  message(FATAL_ERROR "VXMFC_SANITIZE is '${VXMFC_SANITIZE}'; use address or thread")
endif()
if(VXMFC_BUILD_FUZZERS)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "VXMFC_BUILD_FUZZERS needs clang, which has the fuzzing engine")
  endif()
  # What is compiled counts the branches that an input takes; the engine itself is in the targets.
  list(APPEND _vxmfc_instruments -fsanitize=fuzzer-no-link)
endif()
if(VXMFC_COVERAGE)
  # Counts are kept right when threads meet in a line.
  list(APPEND _vxmfc_instruments --coverage -fprofile-update=atomic)
endif()

# Stack guards, and no table of functions that stays writable after loading.
target_compile_options(vxmfc_flags INTERFACE -fstack-protector-strong)
target_link_options(vxmfc_flags INTERFACE -Wl,-z,relro,-z,now)
if(_vxmfc_instruments)
  target_compile_options(vxmfc_flags INTERFACE ${_vxmfc_instruments})
  target_link_options(vxmfc_flags INTERFACE ${_vxmfc_instruments})
endif()
if(NOT VXMFC_SANITIZE)
  # Not with sanitizers: a library finds their run-time system in the program that loads it, and they
  # watch the calls themselves that checked ones would stand in for. Those need an optimiser, too.
  target_link_options(vxmfc_flags INTERFACE -Wl,--no-undefined)
  target_compile_options(vxmfc_flags INTERFACE
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>)
endif()
