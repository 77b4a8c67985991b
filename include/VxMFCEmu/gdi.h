/// @file gdi.h
#pragma once
