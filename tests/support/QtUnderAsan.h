#pragma once

#include <QApplication>

#include <memory>

// g++ has the macro, clang the feature; for g++ Qt defines a feature test that always says no.
#if defined(__SANITIZE_ADDRESS__)
#define VANTRIX_LEAKS_ARE_FOUND
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VANTRIX_LEAKS_ARE_FOUND
#endif
#endif

#ifdef VANTRIX_LEAKS_ARE_FOUND
#include <sanitizer/lsan_interface.h>
#endif

/// Makes the application without a look at what the offscreen platform forgets to free: its
/// screen, seven small objects. What the test itself leaks is still found.
inline std::unique_ptr<QApplication> makeApplication(int &argc, char **argv)
{
#ifdef VANTRIX_LEAKS_ARE_FOUND
    const __lsan::ScopedDisabler disabler;
#endif
    return std::make_unique<QApplication>(argc, argv);
}
