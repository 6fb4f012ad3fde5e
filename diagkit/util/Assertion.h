// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/Export.h>

/// The library's assertions: active in every build, reported to one handler that a host can replace. The handler that
/// is installed first writes the assertion to standard error and aborts. When a handler returns, the function that
/// asserted carries on safely: it changes nothing and returns.

namespace NPavonaUtil {

/// A failed assertion. The texts are valid for the lifetime of the process.
struct VAssertion {
    wchar_t const* expression; ///< the text of the condition
    wchar_t const* source;     ///< base name of the source, without suffix
    int line;                  ///< in the source
};

/// Called when an assertion fails, in the thread that failed.
using VAssertionHandler = void (*)(VAssertion const& assertion);

/// Installs a handler and returns the previous one; null installs the initial one again. Not thread-safe: install it
/// before the library is used from several threads. A handler may throw; the function that asserted has changed nothing
/// yet.
DIAGKIT_EXPORT VAssertionHandler SetAssertionHandler(VAssertionHandler handler);

/// Reports a failed assertion to the handler.
DIAGKIT_EXPORT void ReportAssertion(VAssertion const& assertion);

/// Installs a handler for a scope, for tests and for hosts that temporarily need another one.
class VScopedAssertionHandler {
public:
    /// Installs the handler; the destructor restores the previous one.
    explicit VScopedAssertionHandler(VAssertionHandler handler) : m_before(SetAssertionHandler(handler)) {}
    ~VScopedAssertionHandler() { SetAssertionHandler(m_before); }
    VScopedAssertionHandler(VScopedAssertionHandler const&) = delete;
    VScopedAssertionHandler& operator=(VScopedAssertionHandler const&) = delete;

private:
    VAssertionHandler m_before;
};

} // namespace NPavonaUtil
