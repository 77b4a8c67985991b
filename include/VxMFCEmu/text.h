/// @file text.h
/// Strings and text: the string class, conversions, and the name that resources are found by.
#pragma once

#include <VxMFCEmu/text/conversions.h>
#include <VxMFCEmu/text/cstring.h>
#include <VxMFCEmu/text/resourcename.h>
#include <VxMFCEmu/text/vxqstring.h>
