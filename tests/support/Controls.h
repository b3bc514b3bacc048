#pragma once

#include "tests/support/Window.h"

#include <string>
#include <vector>

using Texts = std::vector<std::wstring>;

// A row that nothing stands in, or no row.
constexpr int kNone = -1;

class ListBox : public Window
{
public:
    using Window::Window;

    int RowCount() const;
    std::wstring Row(int row) const;
    Texts Rows() const;
    int Selected() const;

    void ClickRow(int row) const;
    void DoubleClickRow(int row) const;
    void ClickRowAgain(int row) const;
    void RightClickRow(int row) const;

private:
    POINT PointIn(int row) const;
};

class ComboBox : public Window
{
public:
    using Window::Window;

    int RowCount() const;
    Texts Rows() const;
    int Selected() const;
    // What stands in the closed box.
    std::wstring SelectedText() const;
    bool IsDropped() const;
    // kNone where no row has the data.
    int RowWithData(int data) const;

    // Opens the list by the mouse and clicks the row.
    void Pick(int row) const;
    // The list in place, hidden while it is closed.
    ListBox List() const;
};

class EditField : public Window
{
public:
    using Window::Window;

    // Whole text marked, as a refused one is.
    bool IsAllSelected() const;

    // Clicks into the field and replaces its text. The field keeps the focus.
    void Type(const std::wstring& text) const;
};

class CheckBox : public Window
{
public:
    using Window::Window;
    bool IsChecked() const;
};

class Trackbar : public Window
{
public:
    using Window::Window;

    int Position() const;
    int Lowest() const;
    int Highest() const;

    // Focuses it and presses the key.
    void Press(int virtualKey) const;
    // What a drag of the thumb by the mouse tells the dialog: it follows the mouse, then it is let go.
    void Track(int position) const;
    void LetGo(int position) const;

private:
    void MoveThumb(int position, int scrollCode) const;
};

class TabStrip : public Window
{
public:
    using Window::Window;

    Texts Labels() const;
    int Selected() const;
    void ClickTab(int tab) const;
    // The page that is to be seen.
    Window VisiblePage() const;

private:
    POINT PointIn(int tab) const;
};

// A grid of names and values. Its rows are painted, not windows: what a row holds shows when its list is opened.
class PropertyGrid : public Window
{
public:
    using Window::Window;

    Texts ColumnTitles() const;
    int RowCount() const;
    Texts Options(int row) const;
    std::wstring Value(int row) const;
    Texts Values() const;
    void Choose(int row, const std::wstring& option) const;

    // The list in place, hidden while it is closed.
    ListBox List() const;
    // By the keyboard: selects the row and opens its list. The script fails where none opens.
    ListBox OpenRow(int row) const;

private:
    ListBox OpenList(int row) const;
};
