// Ids of the templates and texts in framework_tests.rc; also read by windres.
#pragma once

#define IDD_FIELDS 100
#define IDC_FIELDS_EDIT 1001
#define IDC_FIELDS_CHECK 1002
#define IDC_FIELDS_RADIO_1 1003
#define IDC_FIELDS_RADIO_NOTE 1004
#define IDC_FIELDS_RADIO_2 1005
#define IDC_FIELDS_RADIO_3 1006
#define IDC_FIELDS_COMBO 1007
#define IDC_FIELDS_LONG_EDIT 1008

#define IDD_OUTER 101
#define IDC_OUTER_FIRST 1101
#define IDC_OUTER_LAST 1102

#define IDD_INNER 102
#define IDC_INNER_FIRST 1201
#define IDC_INNER_LAST 1202
#define IDC_INNER_BUTTON 1203
#define IDC_INNER_LINES 1204

#define IDD_SMALL 103
#define IDD_MISSING 199

#define IDS_GREETING 201
#define IDS_LONG 202
#define IDS_MISSING 299
