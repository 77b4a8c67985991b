vxmfc_sources(FOLDER dlg
  HEADERS
    dlg/messagebox.h
  SOURCES
    vxmessagebox.cpp)
