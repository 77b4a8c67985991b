/// @file sys.h
#pragma once
