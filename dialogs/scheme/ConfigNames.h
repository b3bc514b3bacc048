#pragma once

#include <afxwin.h>

// One row for every configuration, its object as item data: the name or, where it has none, its values. A null
// configuration keeps its row: a row's number is the host's index.
void FillConfigNames(CListBox& list);
