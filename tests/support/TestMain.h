#pragma once

#include <QtTest>

#include <functional>

/// Runs a test object: offscreen unless QT_QPA_PLATFORM says otherwise, C locale, Fusion style, a
/// home that lives as long as the run. A warning that was printed and not announced with
/// QTest::ignoreMessage fails the run.
int runTest(int argc, char **argv, const std::function<QObject *()> &makeTest);

#define VANTRIX_TEST_MAIN(Test)                                                                    \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return runTest(argc, argv, [] { return new Test; });                                       \
    }
