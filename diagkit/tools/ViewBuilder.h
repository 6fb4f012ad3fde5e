// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/logging/SharedLogger.h>
#include <diagkit/model/Layers.h>
#include <diagkit/tools/InheritedView.h>

namespace NDIAGKIT {

/// Reports to the listener, if there is one, that no view was made.
inline void LogNoView(VBuilderSite const& site) {
    NLogging::VSharedLogger const& logger = *NLogging::VSharedLogger::Instance();
    if (NLogging::ILogListener* const listener = logger.GetLogger(); listener != nullptr && logger.IsEnabled()) {
        listener->Log(0, std::wstring(site.logged) + L".");
    }
}

/// Destroys the view that the builder remembers, lets `make` put a new one into `view`, returns it.
template <class View, class Make>
View* CreateViewSilently(View*& view, Make make) {
    // Deliberate: the pointer stays while `make` runs; a layer that calls back no Visit operation leaves it unchanged
    // (AcceptThatVisitsNothingLogsAndAssertsOnAFreshBuilder). Only an exception, which the caller sees, clears it.
    delete view;
    try {
        make();
    } catch (...) {
        view = nullptr;
        throw;
    }
    return view;
}

/// The same; logs, then asserts, when there is no view.
template <class View, class Make>
View* CreateView(View*& view, VBuilderSite const& site, Make make) {
    CreateViewSilently(view, make);
    if (view == nullptr) {
        LogNoView(site);
    }
    if (view == nullptr) { // still null: a listener may have let this builder make one
        NPavonaUtil::ReportAssertion(site.assertion);
    }
    return view;
}

} // namespace NDIAGKIT
