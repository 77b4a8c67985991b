vxmfc_sources(FOLDER ctrl
  HEADERS
    ctrl/progressctrl.h
  SOURCES
    vxprogressctrl.cpp)
