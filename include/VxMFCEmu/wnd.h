/// @file wnd.h
/// Windows and messages: CWnd_E, message maps, sending and posting, input, the window functions,
/// geometry, Win32 constants, control ids, hooks.
#pragma once

#include <VxMFCEmu/wnd/cmdui.h>
#include <VxMFCEmu/wnd/commandmap.h>
#include <VxMFCEmu/wnd/controlmessages.h>
#include <VxMFCEmu/wnd/eventtranslation.h>
#include <VxMFCEmu/wnd/geometry.h>
#include <VxMFCEmu/wnd/globaleventhandler.h>
#include <VxMFCEmu/wnd/hostwindows.h>
#include <VxMFCEmu/wnd/input.h>
#include <VxMFCEmu/wnd/menu.h>
#include <VxMFCEmu/wnd/messageevent.h>
#include <VxMFCEmu/wnd/messagemap.h>
#include <VxMFCEmu/wnd/messagestructs.h>
#include <VxMFCEmu/wnd/resourceids.h>
#include <VxMFCEmu/wnd/sendmessage.h>
#include <VxMFCEmu/wnd/timers.h>
#include <VxMFCEmu/wnd/virtualkeys.h>
#include <VxMFCEmu/wnd/wincodes.h>
#include <VxMFCEmu/wnd/window.h>
#include <VxMFCEmu/wnd/windowfunctions.h>
#include <VxMFCEmu/wnd/windowstyle.h>
#include <VxMFCEmu/wnd/winmessages.h>
#include <VxMFCEmu/wnd/winstyles.h>
