#pragma once

#include <cstddef>
#include <string>
#include <vector>

// What the operator has done so far, for whoever has to find out why a run failed.
class Diary
{
public:
    void Write(const std::string& action) { m_actions.push_back(action); }

    std::size_t Count() const { return m_actions.size(); }

    std::string Text() const
    {
        std::string text;
        for (std::size_t i = 0; i < m_actions.size(); ++i)
            text += "  " + std::to_string(i + 1) + ". " + m_actions[i] + "\n";
        return text;
    }

private:
    std::vector<std::string> m_actions;
};
