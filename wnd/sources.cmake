vxmfc_sources(FOLDER wnd
  HEADERS
    wnd/eventtranslation.h
    wnd/input.h
    wnd/messageevent.h
    wnd/wincodes.h
    wnd/winmessages.h
    wnd/virtualkeys.h
  SOURCES
    vxinput.cpp
    vxkeystate_x11.cpp
    vxmessageevent.cpp
    vxeventtomsg.cpp
    vxmsgtoevent.cpp
    vxtranslatemessage.cpp)
# The macros of the X headers do not go together with Qt's.
set_source_files_properties("${VXMFC_ROOT}/wnd/vxkeystate_x11.cpp" PROPERTIES
  SKIP_PRECOMPILE_HEADERS ON)
