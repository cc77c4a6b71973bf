// The tests of a folder are one program, and each of its files is a group of them, run in a process of its own.
//
// The program is told the group by its first argument, which is the file's name without "tst_" or "Test"; what
// follows goes to Qt Test: `tst_utility call_costs -v2 aResetThatFailsIsTold`. Without arguments it lists its groups.
#pragma once

#include <QtTest/QTest>

// What is waited for comes at once, or on a busy machine much later. Qt waits five seconds.
#undef QTRY_VERIFY
#undef QTRY_COMPARE
#define QTRY_VERIFY(expression) QTRY_VERIFY_WITH_TIMEOUT(expression, 60'000)
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, 60'000)

/// Says that the test class TEST is the group of this file, and under which application object it runs:
/// QCoreApplication, QGuiApplication, QApplication, NoApplication, or a class of the test's own that is made from
/// argc and argv and lives until the group has ended.
#define KAV_TEST_GROUP(TEST, APPLICATION)                                                                         \
    static const TestGroup::Registration groupOf##TEST(__FILE__, TestGroup::run<TEST, APPLICATION>)

/// For tests of values and functions, which need none.
struct NoApplication {
    NoApplication(int &, char **) {}
};

namespace TestGroup {

using Run = int (*)(int argc, char *argv[]);

struct Registration {
    Registration(const char *file, Run run);
};

template <typename Test, typename Application>
int run(int argc, char *argv[])
{
    [[maybe_unused]] Application application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace TestGroup
