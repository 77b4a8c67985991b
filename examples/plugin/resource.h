// Ids of the plug-in's controls, commands and texts; the maps are in VxDemoPluginIDs and
// VxDemoPluginStrings. OK and Cancel are there as well, under IDOK and IDCANCEL.
#pragma once

constexpr int IDC_REPORTS = 1001;
constexpr int IDC_STATUS = 1002;
constexpr int IDC_POST = 1003;
constexpr int IDC_CLEAR = 1004;
constexpr int IDC_SETTINGS = 1005;
constexpr int IDC_CONTROLS = 1006;
constexpr int IDC_SAVE = 1007;
constexpr int IDC_OPEN = 1008;

// The status line: commands, then what only shows a state.
constexpr int ID_VIEW_GRID = 1101;
constexpr int ID_VIEW_LABELS = 1102;
constexpr int ID_VIEW_FIT = 1103;
constexpr int ID_INDICATOR_ITEMS = 1104;
constexpr int ID_INDICATOR_ZOOM = 1105;

// The settings dialog: the id of its form, settings.ui, and those of its controls.
constexpr unsigned IDD_SETTINGS = 200;
constexpr int IDC_TITLE = 2001;
constexpr int IDC_PAPER = 2002;
constexpr int IDC_GRID = 2003;
constexpr int IDC_SPACING = 2004;
constexpr int IDC_LABELS = 2005;
constexpr int IDC_FINE = 2006; // the first of the radio buttons
constexpr int IDC_DEFAULTS = 2007;

// The controls page: those of its form, controls.ui, and those that it makes.
constexpr int IDC_NAME = 2101;
constexpr int IDC_SIZE = 2102;
constexpr int IDC_LANDSCAPE = 2103;
constexpr int IDC_PORTRAIT = 2104;
constexpr int IDC_FRAME = 2105;
constexpr int IDC_VIEW = 2106;
constexpr int IDC_COPIES = 2107;
constexpr int IDC_WEIGHT = 2108;
constexpr int IDC_DATE = 2109;
constexpr int IDC_SUMMARY = 2110;
constexpr int IDC_FILL = 2111;
constexpr int IDC_PLOT = 2112;
constexpr int IDC_OUTPUT = 2113;
constexpr int IDC_HIDDEN = 2114;
constexpr int IDC_LINETYPE = 2115;
constexpr int IDC_SCALE = 2116;
constexpr int IDC_LAYERS = 2117;
constexpr int IDC_NOTES = 2118;
constexpr int IDC_PAN = 2119;
constexpr int IDC_PROGRESS = 2120;
constexpr int IDC_NOTICES = 2121;

constexpr unsigned IDS_TITLE = 101;
constexpr unsigned IDS_READY = 102;
constexpr unsigned IDS_POSITION = 103;
constexpr unsigned IDS_SIZE = 104;
constexpr unsigned IDS_POSTED = 105;
constexpr unsigned IDS_GRID = 106;
constexpr unsigned IDS_ITEMS = 107;
constexpr unsigned IDS_ZOOM = 108;
