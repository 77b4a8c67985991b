/// @file dlg.h
/// Dialogs, data exchange and message boxes.
#pragma once

#include <VxMFCEmu/dlg/dataexchange.h>
#include <VxMFCEmu/dlg/ddv.h>
#include <VxMFCEmu/dlg/ddx.h>
#include <VxMFCEmu/dlg/dialog.h>
#include <VxMFCEmu/dlg/messagebox.h>
