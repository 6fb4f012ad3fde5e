// SPDX-License-Identifier: Apache-2.0
#include <diagkit/util/Assertion.h>

#include <cstdio>
#include <cstdlib>

namespace NPavonaUtil {
namespace {

void WriteAndAbort(VAssertion const& assertion) {
    std::fprintf(stderr, "Assertion failed: %ls, file %ls, line %d\n", assertion.expression, assertion.source,
                 assertion.line);
    std::fflush(stderr);
    std::abort();
}

VAssertionHandler& Handler() {
    static VAssertionHandler handler = &WriteAndAbort;
    return handler;
}

} // namespace

VAssertionHandler SetAssertionHandler(VAssertionHandler handler) {
    VAssertionHandler const before = Handler();
    Handler() = handler != nullptr ? handler : &WriteAndAbort;
    return before;
}

void ReportAssertion(VAssertion const& assertion) { Handler()(assertion); }

} // namespace NPavonaUtil
