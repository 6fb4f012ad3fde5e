// SPDX-License-Identifier: Apache-2.0
#include "support/RecordedLog.h"

namespace NTest {

VRecordedLog::VRecordedLog()
    : m_before(NLogging::VSharedLogger::Instance()->GetLogger()),
      m_wasEnabled(NLogging::VSharedLogger::Instance()->IsEnabled()) {
    NLogging::VSharedLogger::Instance()->SetLogger(this);
}

VRecordedLog::~VRecordedLog() {
    NLogging::VSharedLogger& logger = *NLogging::VSharedLogger::Instance();
    logger.SetLogger(m_before);
    m_wasEnabled ? logger.Enable() : logger.Disable();
}

void VRecordedLog::Log(int severity, std::wstring const& message) { m_lines.emplace_back(severity, message); }

} // namespace NTest
