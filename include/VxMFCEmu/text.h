/// @file text.h
#pragma once
