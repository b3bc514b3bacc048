#pragma once

// For a catch (...) block that ends an exception: tells a debugger what was caught, and where. The number says which
// of those it was, such as the message of a window procedure.
void AfxTraceCaught(const char* where, unsigned number) noexcept;
