/// @file ctrl.h
#pragma once
