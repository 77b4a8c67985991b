vxmfc_sources(FOLDER ctrl
  HEADERS
    ctrl/checklistbox.h
    ctrl/combobox.h
    ctrl/comboboxex.h
    ctrl/listbox.h
    ctrl/progressctrl.h
  SOURCES
    vxchecklistbox.cpp
    vxcombobox.cpp
    vxcomboboxex.cpp
    vxcombomessages.cpp
    vxcomboparts.cpp
    vxlistbox.cpp
    vxlistmessages.cpp
    vxlistselection.cpp
    vxprogressctrl.cpp)
