// SPDX-License-Identifier: Apache-2.0
#include "support/RecordedLog.h"

namespace NTest {

VRecordedLog::VRecordedLog(std::function<void()> action)
    : m_action(std::move(action)), m_before(NLogging::VSharedLogger::Instance()->GetLogger()),
      m_wasEnabled(NLogging::VSharedLogger::Instance()->IsEnabled()) {
    NLogging::VSharedLogger::Instance()->SetLogger(this);
}

VRecordedLog::~VRecordedLog() {
    NLogging::VSharedLogger& logger = *NLogging::VSharedLogger::Instance();
    logger.SetLogger(m_before);
    m_wasEnabled ? logger.Enable() : logger.Disable();
}

void VRecordedLog::Log(int severity, std::wstring const& message) {
    m_lines.emplace_back(severity, message);
    if (m_action) {
        m_action();
    }
}

} // namespace NTest
