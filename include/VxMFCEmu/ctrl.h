/// @file ctrl.h
/// The standard controls.
#pragma once

#include <VxMFCEmu/ctrl/button.h>
#include <VxMFCEmu/ctrl/checklistbox.h>
#include <VxMFCEmu/ctrl/combobox.h>
#include <VxMFCEmu/ctrl/comboboxex.h>
#include <VxMFCEmu/ctrl/datetimectrl.h>
#include <VxMFCEmu/ctrl/edit.h>
#include <VxMFCEmu/ctrl/headerctrl.h>
#include <VxMFCEmu/ctrl/listbox.h>
#include <VxMFCEmu/ctrl/progressctrl.h>
#include <VxMFCEmu/ctrl/scrollbar.h>
#include <VxMFCEmu/ctrl/sliderctrl.h>
#include <VxMFCEmu/ctrl/spinbuttonctrl.h>
#include <VxMFCEmu/ctrl/static.h>
