/// @file hostwindows.h
/// The windows of the host program that the library knows by name.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>

/// The host's main frame: the top-level widget named "CTolmMainFrame" (case-sensitive); null when
/// there is none. Owned by the host.
VXMFC_EXPORT QWidget* TolmGetMainFrame();

/// The active sub-window of the MDI area that is a direct child of the main frame; null without a
/// main frame, an MDI area or an active sub-window. Owned by the host.
VXMFC_EXPORT QWidget* TolmGetViewWindow();
