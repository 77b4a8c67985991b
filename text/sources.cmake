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

# Its loops are worth vectorising; precompiled headers want the same options everywhere.
set_source_files_properties("${VXMFC_ROOT}/text/vxtranscode.cpp" PROPERTIES
  COMPILE_OPTIONS "$<$<NOT:$<CONFIG:Debug>>:-O3>"
  SKIP_PRECOMPILE_HEADERS ON)
