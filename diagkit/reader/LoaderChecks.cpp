// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Loader.h>

#include <cstring>

#include <diagkit/reader/Utf8.h>
#include <diagkit/reader/Values.h>

namespace NReader {

std::string Quoted(std::string_view text) {
    std::string quoted = "'";
    quoted += text;
    return quoted += '\'';
}

/// Reports a child that is repeated or comes after one that it should precede.
void VLoader::ReportRow(VFrame const& frame, VRow const& row, bool isRepeated, bool isSecondAlternative) {
    std::string const stands = Quoted(row.name) + " stands in " + Quoted(frame.name);
    if (isRepeated) {
        Report(NCode::RepeatedChild, stands + " more than once" + (row.isFirstKept ? "; the first one counts" : ""));
        return;
    }
    if (isSecondAlternative) {
        Report(NCode::SecondAlternative, stands + " beside an alternative; the first one counts");
        return;
    }
    VRow const& last = frame.type->rows[static_cast<std::size_t>(frame.lastRow)];
    if (m_isVersion20 && !(row.occurs == Many && last.occurs == Many)) {
        Report(NCode::MisplacedChild,
               Quoted(row.name) + " belongs before " + Quoted(last.name) + " in " + Quoted(frame.name));
    }
}

/// Checks the value just read, of an attribute of the element or of its text, against its required form.
void VLoader::CheckValue(VContent content, wchar_t const* const* literals, VFrame const& frame, char const* attribute) {
    bool const isValue = IsValue(content, m_value);
    if (isValue && (literals == nullptr || !m_isVersion20 || IsLiteral(literals, m_value))) {
        return;
    }
    std::string const what = attribute != nullptr ? attribute + (" of " + Quoted(frame.name)) : Quoted(frame.name);
    std::string const is = what + " is " + Quoted(ToUtf8(m_value));
    if (!isValue) {
        m_reading.findings.Add(frame.position, NCode::NotAValue, is + ", which is no " + ValueText(content));
    } else {
        m_reading.findings.Add(frame.position, NCode::UnknownLiteral,
                               is + ", which is not one of " + LiteralsText(literals));
    }
}

void VLoader::CheckComplete(VFrame const& frame) {
    std::uint64_t reportedChoices = 0;
    for (std::size_t index = 0; index < frame.type->rows.size(); ++index) {
        VRow const& row = frame.type->rows[index];
        if (row.occurs != Required || ((frame.seen | frame.implied) & (std::uint64_t{1} << index)) != 0) {
            continue;
        }
        // Later versions require other elements, and without xsi:type an element may be of the general kind, which has
        // little but names: these are common to all.
        if ((frame.isInferred || !m_isVersion20) && std::strcmp(row.name, "SHORT-NAME") != 0) {
            continue;
        }
        std::uint64_t const choiceBit = row.choice != 0 ? std::uint64_t{1} << row.choice : 0;
        if (((frame.choices | reportedChoices) & choiceBit) != 0) {
            continue;
        }
        reportedChoices |= choiceBit;
        m_reading.findings.Add(frame.position, NCode::MissingChild,
                               Quoted(frame.name) + " has no " + Quoted(row.name) +
                                   (row.choice != 0 ? " nor an alternative to it" : ""));
    }
    CheckKind(frame);
}

/// Checks the contents against the xsi:type.
void VLoader::CheckKind(VFrame const& frame) {
    if (frame.kind == nullptr || frame.isInferred || !m_isVersion20) {
        return;
    }
    std::string const& xsiType = frame.kind->xsiType;
    for (VKind const& kind : frame.type->kinds) {
        int const index = frame.type->FindRow(kind.child);
        bool const isSeen = index >= 0 && (frame.seen & (std::uint64_t{1} << index)) != 0;
        bool const isShownByChild = kind.choose == nullptr;
        if (kind.xsiType == xsiType && isShownByChild && !isSeen) {
            m_reading.findings.Add(frame.position, NCode::MissingChild,
                                   Quoted(frame.name) + " of the type " + xsiType + " has no " + Quoted(kind.child));
        } else if (kind.xsiType != xsiType && isSeen) {
            m_reading.findings.Add(frame.position, NCode::ContradictingType,
                                   Quoted(frame.name) + " is of the type " + xsiType + " and holds " +
                                       Quoted(kind.child) + ", as one of the type " + kind.xsiType + " does");
        }
    }
}

} // namespace NReader
