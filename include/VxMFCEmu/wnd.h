/// @file wnd.h
#pragma once
