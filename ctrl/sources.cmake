vxmfc_sources(FOLDER ctrl
  HEADERS
    ctrl/datetimectrl.h
    ctrl/progressctrl.h
    ctrl/scrollbar.h
    ctrl/sliderctrl.h
    ctrl/spinbuttonctrl.h
  SOURCES
    vxdatetimectrl.cpp
    vxprogressctrl.cpp
    vxscrollbar.cpp
    vxsliderctrl.cpp
    vxspinbuttonctrl.cpp)
