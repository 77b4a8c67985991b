vxmfc_sources(FOLDER core
  HEADERS
    core/cmdtarget.h
    core/object.h
    core/runtimeclass.h
  SOURCES
    vxcreateregistry.cpp
    vxruntimeclass.cpp
    vxincoming.cpp
    vxobject.cpp
    vxcmdtarget.cpp
    vxinterim.cpp)
