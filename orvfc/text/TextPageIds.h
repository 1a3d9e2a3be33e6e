#pragma once

// The text property page's dialog and its controls. A template of this number among the host's own resources
// is found before the library's: it keeps the numbers of the controls, and may leave some out.

#define IDD_ORV_TEXT_PAGE 22008

#define IDC_ORV_BOLD 21114
#define IDC_ORV_ITALIC 21115
#define IDC_ORV_SAMPLE 21122
#define IDC_ORV_AUTO_BOUND 21124
#define IDC_ORV_BORDER 21125
#define IDC_ORV_CLIP 21126
#define IDC_ORV_FONT_LINE 21127
#define IDC_ORV_ROW_ALIGN 21130
#define IDC_ORV_SIZE 21131
#define IDC_ORV_SLOPE 21132
#define IDC_ORV_COLOR 21133
#define IDC_ORV_LINE_FEED 21134
#define IDC_ORV_CHAR_SPACE 21135
#define IDC_ORV_SHADE 21136
#define IDC_ORV_FACE 21137
#define IDC_ORV_COLUMN_ALIGN 21138
#define IDC_ORV_ROW_SPACE 21139
#define IDC_ORV_UNDERLINE 21261
