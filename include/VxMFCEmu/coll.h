/// @file coll.h
#pragma once
