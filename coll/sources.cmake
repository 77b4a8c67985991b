vxmfc_sources(FOLDER coll
  HEADERS
    coll/file.h
  SOURCES
    vxfile.cpp
    vxstdiofile.cpp
    vxmemfile.cpp)
