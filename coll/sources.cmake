vxmfc_sources(FOLDER coll
  HEADERS
    coll/archive.h
    coll/file.h
    coll/filehandle.h
    coll/serial.h
  SOURCES
    vxarchive.cpp
    vxarchiveobjects.cpp
    vxarchivetext.cpp
    vxstackroom.cpp
    vxfile.cpp
    vxstdiofile.cpp
    vxmemfile.cpp
    vxfilehandle.cpp)
