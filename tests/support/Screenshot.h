#pragma once

#include <string>

// Saves what all monitors show as a PNG file. False where that cannot be done.
bool SaveScreenshot(const std::wstring& path);
