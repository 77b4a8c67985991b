vxmfc_sources(FOLDER sys
  HEADERS
    sys/criticalsection.h
    sys/errorcodes.h
    sys/memory.h
    sys/profile.h
    sys/registry.h
    sys/registrytypes.h
    sys/tls.h
  SOURCES
    vxmemory.cpp
    vxtls.cpp
    vxcriticalsection.cpp
    vxprofile.cpp
    vxwinreg.cpp
    vxwinregvalue.cpp
    vxwinregenum.cpp
    vxwinregtree.cpp)
