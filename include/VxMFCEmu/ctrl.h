/// @file ctrl.h
/// The standard controls.
#pragma once

#include <VxMFCEmu/ctrl/progressctrl.h>
