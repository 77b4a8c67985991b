vxmfc_sources(FOLDER wnd
  HEADERS
    wnd/controlmessages.h
    wnd/eventtranslation.h
    wnd/geometry.h
    wnd/hostwindows.h
    wnd/input.h
    wnd/messageevent.h
    wnd/rectfunctions.h
    wnd/resourceids.h
    wnd/virtualkeys.h
    wnd/wincodes.h
    wnd/windowfunctions.h
    wnd/windowgeometry.h
    wnd/windowstate.h
    wnd/windowstyle.h
    wnd/windowtext.h
    wnd/windowtree.h
    wnd/winmessages.h
    wnd/winstyles.h
  SOURCES
    vxcontrolstate.cpp
    vxeventtomsg.cpp
    vxhostwindows.cpp
    vxinput.cpp
    vxkeystate_x11.cpp
    vxlivewidgets.cpp
    vxmessageevent.cpp
    vxmsgtoevent.cpp
    vxresourceids.cpp
    vxtranslatemessage.cpp
    vxwindowgeometry.cpp
    vxwindowstate.cpp
    vxwindowstyle.cpp
    vxwindowtext.cpp
    vxwindowtree.cpp
)
# The macros of the X headers do not go together with Qt's.
set_source_files_properties("${VXMFC_ROOT}/wnd/vxkeystate_x11.cpp" PROPERTIES
  SKIP_PRECOMPILE_HEADERS ON)
