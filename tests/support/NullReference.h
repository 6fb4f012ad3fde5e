// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Calls as a C++ program may make by mistake, and a program in another language on purpose: with a reference behind
/// which there is nothing, or on no object. The sanitizers are not asked about them.

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
