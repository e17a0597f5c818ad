// Messages that a grid sends to the cell controls of kinds that it doesn't make yet: lists, combos and buttons.
// They move to widgets.h with the controls that answer them.
#pragma once

#include <windows.h>

constexpr UINT HBM_GETVALUE = 1080;    // lParam: out; the size, or 0 for the null value
constexpr UINT HBM_SETVALUE = 1081;    // lParam: value, or null
constexpr UINT HLM_GETDATA = 1186;     // wParam: index, lParam: out
constexpr UINT HLM_GETCODE = 1187;     // wParam: index, lParam: out
constexpr UINT HLM_FINDDATA = 1201;    // wParam: start, lParam: data; the index, or -1
constexpr UINT HLM_SELECTDATA = 1202;  // wParam: mode, lParam: data
constexpr UINT HLM_GETCURDATA = 1203;  // wParam: size, lParam: out
constexpr UINT HLM_FINDCODE = 1209;    // wParam: start, lParam: code; the index, or -1
constexpr UINT HLM_SELECTCODE = 1210;  // wParam: mode, lParam: code
constexpr UINT HLM_GETCURCODE = 1211;  // wParam: size, lParam: out
constexpr UINT HCM_SETDROP = 1298;     // wParam: height of the drop part

// Bytes that an item's data needs at the most where its size isn't known.
constexpr int itemBufferSize = 256;
