vxmfc_sources(FOLDER wnd
  HEADERS
    wnd/eventtranslation.h
    wnd/globaleventhandler.h
    wnd/input.h
    wnd/menu.h
    wnd/messageevent.h
    wnd/messagemap.h
    wnd/messagestructs.h
    wnd/resourceids.h
    wnd/sendmessage.h
    wnd/virtualkeys.h
    wnd/wincodes.h
    wnd/window.h
    wnd/winmessages.h
  SOURCES
    vxdefaulthandlers.cpp
    vxeventtomsg.cpp
    vxglobaleventhandler.cpp
    vxidle.cpp
    vxinput.cpp
    vxkeystate_x11.cpp
    vxmenu.cpp
    vxmessageevent.cpp
    vxmsgtoevent.cpp
    vxseesmessages.cpp
    vxsendmessage.cpp
    vxsignatures.cpp
    vxtranslatemessage.cpp
    vxwnd.cpp
    vxwnddispatch.cpp
    vxwndedges.cpp
    vxwndforward.cpp
    vxwndlife.cpp)
# The macros of the X headers do not go together with Qt's.
set_source_files_properties("${VXMFC_ROOT}/wnd/vxkeystate_x11.cpp" PROPERTIES
  SKIP_PRECOMPILE_HEADERS ON)
