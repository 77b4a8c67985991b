vxmfc_sources(FOLDER text
  HEADERS
    text/conversions.h
    text/cstring.h
    text/cstringoperators.h
    text/resourcename.h
    text/vxqstring.h
  SOURCES
    vxtranscode.cpp
    vxformatspec.cpp
    vxformatnumber.cpp
    vxformat.cpp
    vxresourcename.cpp
    vxidtable.cpp
    vxstringtable.cpp
    vxqstring.cpp
    vxconversions.cpp
    vxcstring.cpp
    vxcstringsearch.cpp
    vxcstringchange.cpp
    vxcstringformat.cpp)

# Its loops are worth vectorising and unrolling. On the processors that are slow where a jump crosses
# a boundary of 32 bytes, the same source is half as fast again or not with every change elsewhere.
set(_vxmfc_fast_loops -O3)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  list(APPEND _vxmfc_fast_loops -funroll-loops -falign-loops=32)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    list(APPEND _vxmfc_fast_loops -Wa,-mbranches-within-32B-boundaries)
  endif()
endif()
# Precompiled headers want the same options everywhere.
set_source_files_properties("${VXMFC_ROOT}/text/vxtranscode.cpp" PROPERTIES
  COMPILE_OPTIONS "$<$<NOT:$<CONFIG:Debug>>:${_vxmfc_fast_loops}>"
  SKIP_PRECOMPILE_HEADERS ON)
