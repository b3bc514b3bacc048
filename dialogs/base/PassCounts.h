#pragma once

#include <windows.h>

// The pass counts that the operator can choose from, in the order of their rows.
constexpr LPCTSTR PASS_COUNTS[] = {L"1", L"2", L"3", L"4", L"6", L"8", L"12", L"16"};
