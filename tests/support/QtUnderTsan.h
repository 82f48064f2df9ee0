#pragma once

/// For tests of threads, once in a program: tells the thread sanitizer to look at our code only.
/// Qt's libraries are built without it, so it sees their memory come and go but not their locks.

#if defined(__has_feature)
#if __has_feature(thread_sanitizer)
extern "C" const char *__tsan_default_suppressions()
{
    return "called_from_lib:libQt5Core.so\n"
           "called_from_lib:libQt5Gui.so\n"
           "called_from_lib:libQt5Widgets.so\n"
           "called_from_lib:libQt5Test.so\n";
}
#endif
#endif
