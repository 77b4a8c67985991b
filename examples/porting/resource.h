// The ids of the snippets, as a resource editor writes them: the same before and after.
#pragma once

#define IDD_OPTIONS 101
#define IDS_GIZMO 201
#define IDC_SPACING 1001
#define IDC_GRID 1002
#define IDC_SIZE 1003
#define IDC_DEFAULTS 1004
