// SPDX-License-Identifier: Apache-2.0
#include <diagkit/logging/SharedLogger.h>

namespace NLogging {

ILogListener::~ILogListener() = default;

VSharedLogger* VSharedLogger::Instance() {
    static VSharedLogger logger;
    return &logger;
}

bool VSharedLogger::IsEnabled() const { return m_isEnabled; }
void VSharedLogger::Enable() { m_isEnabled = true; }
void VSharedLogger::Disable() { m_isEnabled = false; }

ILogListener* VSharedLogger::GetLogger() const { return m_listener; }
void VSharedLogger::SetLogger(ILogListener* listener) { m_listener = listener; }

} // namespace NLogging
