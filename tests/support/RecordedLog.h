// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <diagkit/logging/SharedLogger.h>

namespace NTest {

/// While it exists, it is the shared logger's listener; afterwards the logger is as before. Each message is recorded
/// and then passed to an action, if there is one.
class VRecordedLog : public NLogging::ILogListener {
public:
    using VLine = std::pair<int, std::wstring>; ///< severity and message

    explicit VRecordedLog(std::function<void()> action = {});
    ~VRecordedLog() override;

    void Log(int severity, std::wstring const& message) override;

    std::vector<VLine> const& Lines() const { return m_lines; }

private:
    std::function<void()> m_action;
    std::vector<VLine> m_lines;
    NLogging::ILogListener* m_before;
    bool m_wasEnabled;
};

} // namespace NTest
