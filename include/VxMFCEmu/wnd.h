/// @file wnd.h
/// Windows and messages: the window functions, events as messages, keyboard and mouse, geometry,
/// Win32 constants, control ids, hooks.
#pragma once

#include <VxMFCEmu/wnd/controlmessages.h>
#include <VxMFCEmu/wnd/eventtranslation.h>
#include <VxMFCEmu/wnd/geometry.h>
#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/hostwindows.h>
#include <VxMFCEmu/wnd/input.h>
#include <VxMFCEmu/wnd/messageevent.h>
#include <VxMFCEmu/wnd/resourceids.h>
#include <VxMFCEmu/wnd/virtualkeys.h>
#include <VxMFCEmu/wnd/wincodes.h>
#include <VxMFCEmu/wnd/windowfunctions.h>
#include <VxMFCEmu/wnd/windowstyle.h>
#include <VxMFCEmu/wnd/winmessages.h>
#include <VxMFCEmu/wnd/winstyles.h>
