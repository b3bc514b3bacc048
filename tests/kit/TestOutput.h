#pragma once

#include "tests/kit/Results.h"

// What a test program has left when it ended.
struct TestOutput
{
    std::string log;
    std::string json; // empty where it broke off
    unsigned long exitCode = 0;
    bool hung = false;
};

// A test in which the program broke off has failed. A program that broke off between tests, or that ended badly though
// its tests passed, counts as one more.
std::vector<TestResult> TestsOf(const TestOutput& output);

// The names in what a program prints for --gtest_list_tests.
std::vector<std::string> ListedTests(const std::string& list);
