// SPDX-License-Identifier: Apache-2.0

// Reads a database and reports problems, in each of the ways in which the library reports them:
//
//     report_problems FILE...

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include <diagkit/Reader.h>
#include <diagkit/Toolkit.h>

/// Receives what the toolkit logs.
class VListener : public NLogging::ILogListener {
public:
    ~VListener() override { NLogging::VSharedLogger::Instance()->SetLogger(nullptr); }
    void Log(int, std::wstring const& message) override { std::cerr << "log: " << NReader::ToUtf8(message) << '\n'; }
};

/// Prints what a caller did wrong and lets the library continue; the initial handler ends the process instead.
void OnAssertion(NPavonaUtil::VAssertion const& assertion) {
    std::cout << "assertion in " << NReader::ToUtf8(assertion.source) << '\n';
}

int main(int count, char** words) try {
    VListener listener;
    NLogging::VSharedLogger::Instance()->SetLogger(&listener);
    NPavonaUtil::VScopedAssertionHandler const handler(&OnAssertion);

    NReader::VReadOptions options;
    options.maxFileSize = 64 << 20; // programs that take files from others should limit their size
    NReader::VReadResult const result = NReader::ReadOdx(std::vector<std::string>(words + 1, words + count), options);
    for (NReader::VDiagnostic const& diagnostic : result.diagnostics) {
        std::cout << FormatDiagnostic(diagnostic) << '\n';
    }
    if (result.database == nullptr) {
        return 1; // a named file could not be read; a diagnostic above says why
    }

    NDIAGKIT::VStringContainer texts;
    texts.Remove(L"what it does not hold"); // a mistake of the caller: asserts, and changes nothing
    std::cout << "documents: " << result.documents.size() << ", diagnostics: " << result.diagnostics.size() << '\n';
    return 0;
} catch (std::exception const& problem) {
    std::cerr << "report_problems: " << problem.what() << '\n'; // std::bad_alloc, mostly
    return 1;
}
