# Uses ccache when it is there; the sloppiness it needs for precompiled headers goes with the call.
# The compiler options make the use of a precompiled header something that it can see and repeat.
find_program(VXMFC_CCACHE ccache)
if(VXMFC_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      "${CMAKE_COMMAND}" -E env "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
      "${VXMFC_CCACHE}")
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>
                      "SHELL:$<$<CXX_COMPILER_ID:Clang>:-Xclang -fno-pch-timestamp>")
endif()
