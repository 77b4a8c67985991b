// Ids of the plug-in's controls and texts; the maps are in VxDemoPluginIDs and VxDemoPluginStrings.
#pragma once

constexpr int IDC_REPORTS = 1001;
constexpr int IDC_STATUS = 1002;
constexpr int IDC_POST = 1003;
constexpr int IDC_CLEAR = 1004;

constexpr unsigned IDS_TITLE = 101;
constexpr unsigned IDS_READY = 102;
constexpr unsigned IDS_POSITION = 103;
constexpr unsigned IDS_SIZE = 104;
constexpr unsigned IDS_POSTED = 105;
