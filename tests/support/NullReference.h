// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Calls that a C++ program may make by mistake, and a program in another language on purpose: with a reference to
/// null, or on no object. The sanitizers do not check them.

#if defined(__GNUC__)
#define DIAGKIT_TEST_NULLS __attribute__((no_sanitize("undefined"))) __attribute__((noinline))
#else
#define DIAGKIT_TEST_NULLS
#endif

namespace NTest {

/// `(object.*operation)(*nothing)`
template <class Class, class Argument>
DIAGKIT_TEST_NULLS void CallWithNull(Class& object, void (Class::*operation)(Argument&)) {
    Argument* const volatile nothing = nullptr;
    (object.*operation)(*nothing);
}

} // namespace NTest
