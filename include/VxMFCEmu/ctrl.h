/// @file ctrl.h
/// The standard controls.
#pragma once

#include <VxMFCEmu/ctrl/checklistbox.h>
#include <VxMFCEmu/ctrl/combobox.h>
#include <VxMFCEmu/ctrl/comboboxex.h>
#include <VxMFCEmu/ctrl/listbox.h>
#include <VxMFCEmu/ctrl/progressctrl.h>
