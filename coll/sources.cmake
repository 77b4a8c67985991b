vxmfc_sources(FOLDER coll
  HEADERS
    coll/file.h
    coll/filehandle.h
  SOURCES
    vxfile.cpp
    vxstdiofile.cpp
    vxmemfile.cpp
    vxfilehandle.cpp)
