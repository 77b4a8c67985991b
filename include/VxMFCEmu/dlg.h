/// @file dlg.h
#pragma once
