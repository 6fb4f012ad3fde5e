// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/Export.h>

namespace NLogging {

/// What a host implements to receive the log messages of the library.
class DIAGKIT_EXPORT ILogListener {
public:
    /// One message. Severity 0 is the only one that the library uses. The text is valid during the call.
    virtual void Log(int severity, std::wstring const& message) = 0;

    ILogListener(ILogListener const&) = delete;
    ILogListener& operator=(ILogListener const&) = delete;

protected:
    ILogListener() = default;
    virtual ~ILogListener();
};

/// The logger shared by the library and its host, one per process. Initially it is enabled and has no listener;
/// messages without a listener are discarded.
///
/// Not thread-safe: set the listener before the library is used from several threads. The library keeps no listener
/// beyond the call in which it logs, so a host may remove and destroy its listener at any other time.
class DIAGKIT_EXPORT VSharedLogger {
public:
    static VSharedLogger* Instance(); ///< never null

    bool IsEnabled() const; ///< whether messages are passed on
    void Enable();          ///< messages go to the listener again
    void Disable();         ///< messages are discarded until `Enable`

    ILogListener* GetLogger() const;        ///< null when no listener is set
    void SetLogger(ILogListener* listener); ///< not owned; null removes it

    VSharedLogger(VSharedLogger const&) = delete;
    VSharedLogger& operator=(VSharedLogger const&) = delete;

private:
    VSharedLogger() = default;

    ILogListener* m_listener = nullptr;
    bool m_isEnabled = true;
};

} // namespace NLogging
