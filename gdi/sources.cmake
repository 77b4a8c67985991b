vxmfc_sources(FOLDER gdi
  HEADERS
    gdi/dc.h
    gdi/gdiobject.h
    gdi/imagelist.h
  SOURCES
    vxgdiobject.cpp
    vxdc.cpp
    vximagelist.cpp)
