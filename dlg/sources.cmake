vxmfc_sources(FOLDER dlg
  HEADERS
    dlg/dataexchange.h
    dlg/ddv.h
    dlg/ddx.h
    dlg/dialog.h
    dlg/messagebox.h
  SOURCES
    vxafxddx.cpp
    vxdataexchange.cpp
    vxddv.cpp
    vxddxnamed.cpp
    vxddxtext.cpp
    vxdialog.cpp
    vxdialogform.cpp
    vxmessagebox.cpp)
