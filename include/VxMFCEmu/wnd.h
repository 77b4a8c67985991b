/// @file wnd.h
#pragma once

#include <VxMFCEmu/wnd/eventtranslation.h>
#include <VxMFCEmu/wnd/input.h>
#include <VxMFCEmu/wnd/messageevent.h>
#include <VxMFCEmu/wnd/virtualkeys.h>
#include <VxMFCEmu/wnd/wincodes.h>
#include <VxMFCEmu/wnd/winmessages.h>
