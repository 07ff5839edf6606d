#pragma once

#define IDM_MAIN 1
#define IDM_EXIT 1001
#define IDM_CLEAR 1002
#define IDM_REFRESH 1003
