#pragma once

#include "tests/msabi/ForeignHost.h"

#include <gtest/gtest.h>

Lines operator+(Lines left, const Lines& right);

// Each on a line of its own, so that a failure names them all.
std::string Text(const Lines& lines);

// One host with a library's object.
class ForeignHostTest : public testing::Test
{
protected:
    template <class Expect, class Script>
    void Edit(Editor editor, Expect expectEditor, Script script)
    {
        m_host.Run(editor, [&](Operator& op) {
            auto window = expectEditor(op);
            script(window);
        });
    }

    // The host has received the calls, in this order, since it was asked last.
    void ExpectChanges(const Lines& changes) { EXPECT_EQ(Text(m_host.TakeChanges()), Text(changes)); }
    // More may come after them.
    void ExpectFirstChanges(const Lines& changes);
    // More may stand before them.
    void ExpectLastChanges(const Lines& changes);

    ForeignHost m_host;
};
