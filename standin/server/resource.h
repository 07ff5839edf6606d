#pragma once

#define IDM_MAIN 1
#define IDM_EXIT 1001
#define IDM_CLEAR 1002
#define IDM_REFRESH 1003

#define IDD_LOGON 2
#define IDC_USER 201
#define IDC_PASSWORD 202
#define IDC_MESSAGE 203

#define IDD_EMAIL 3
#define IDC_SERVER_LABEL 204
#define IDC_SERVER 205
