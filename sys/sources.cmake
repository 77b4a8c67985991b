vxmfc_sources(FOLDER sys
  HEADERS
    sys/criticalsection.h
    sys/errorcodes.h
    sys/memory.h
    sys/registry.h
    sys/registrytypes.h
    sys/tls.h
  SOURCES
    vxmemory.cpp
    vxtls.cpp
    vxcriticalsection.cpp
    vxwinreg.cpp
    vxwinregvalue.cpp
    vxwinregenum.cpp
    vxwinregtree.cpp)
