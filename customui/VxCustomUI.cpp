#include "VxCustomUI.h"
