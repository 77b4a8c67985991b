/// @file dlg.h
/// Dialogs, data exchange and message boxes.
#pragma once

#include <VxMFCEmu/dlg/messagebox.h>
