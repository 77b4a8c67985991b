vxmfc_sources(FOLDER ctrl
  HEADERS
    ctrl/button.h
    ctrl/edit.h
    ctrl/progressctrl.h
    ctrl/static.h
  SOURCES
    vxbutton.cpp
    vxedit.cpp
    vxeditinput.cpp
    vxeditlines.cpp
    vxeditmessages.cpp
    vxprogressctrl.cpp
    vxstatic.cpp)
