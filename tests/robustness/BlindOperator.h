#pragma once

#include "tests/support/Chance.h"
#include "tests/support/Operator.h"

// Acts at random on whatever is to be seen, as somebody does who understands nothing of it: on the innermost dialog,
// on controls that are visible and enabled only.
class BlindOperator
{
public:
    BlindOperator(Operator& op, unsigned seed) : m_operator(op), m_chance(seed) {}

    // Some gestures; fewer where the editor ends before. How many of them found what they were for.
    int Act(int gestures);
    // Leaves every dialog until the editor has ended. Throws where one cannot be left.
    void Leave();

private:
    void Gesture();
    void ActOn(const Window& dialog);
    void ActOnControl(const Window& control);
    void ActOnList(const Window& list);
    void ActOnTrackbar(const Window& trackbar);
    void TypeInto(const Window& edit);
    void ChooseFrom(const Window& combo);
    void PressSomeKey();
    void TurnWheel();
    void LeaveOnce(bool byForce);
    void PressButtonOf(const Window& box);

    POINT PointIn(const Window& window);
    void PressKey(int virtualKey);

    Operator& m_operator;
    Chance m_chance;
};
