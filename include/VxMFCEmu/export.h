/// @file export.h
/// Marks what the library exports; everything else is hidden.
#pragma once

#include <QtCore/qglobal.h>

#if defined(VXMFC_BUILDING_LIBRARY)
#    define VXMFC_EXPORT Q_DECL_EXPORT
#else
#    define VXMFC_EXPORT Q_DECL_IMPORT
#endif
