#pragma once

#include "tests/kit/Options.h"
#include "tests/kit/Results.h"
#include "tests/kit/SkipList.h"
#include "tests/kit/TestOutput.h"
#include "tests/kit/WorkFolder.h"

// Runs test programs, one after the other.
class TestPrograms
{
public:
    TestPrograms(const Options& options, const SkipList& skips);

    std::vector<TestResult> Run(const std::wstring& program);

private:
    TestOutput OutputOf(const std::wstring& program) const;
    std::vector<TestResult> SkippedTests(const std::wstring& program) const;
    void TakePictures(std::vector<TestResult>& tests);

    const Options m_options;
    const SkipList m_skips;
    const WorkFolder m_work;
    int m_picturesLeft = 50;
};
