vxmfc_sources(FOLDER sys
  HEADERS
    sys/criticalsection.h
    sys/memory.h
    sys/profile.h
    sys/tls.h
  SOURCES
    vxmemory.cpp
    vxtls.cpp
    vxcriticalsection.cpp
    vxprofile.cpp)
