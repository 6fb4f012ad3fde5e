// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

/// Parts of data dictionaries and messages, for tests of what stands in them.

namespace NTest {

constexpr char kIdentical[] = "<CATEGORY>IDENTICAL</CATEGORY>"; ///< of a COMPU-METHOD

inline std::string Coded(std::string const& baseType, std::string const& bitLength,
                         std::string const& attributes = "") {
    return "<DIAG-CODED-TYPE xsi:type=\"STANDARD-LENGTH-TYPE\" BASE-DATA-TYPE=\"" + baseType + "\" " + attributes +
           "><BIT-LENGTH>" + bitLength + "</BIT-LENGTH></DIAG-CODED-TYPE>";
}

inline std::string ToTheEnd(std::string const& limits) {
    return "<DIAG-CODED-TYPE xsi:type=\"MIN-MAX-LENGTH-TYPE\" BASE-DATA-TYPE=\"A_BYTEFIELD\" "
           "TERMINATION=\"END-OF-PDU\">" +
           limits + "</DIAG-CODED-TYPE>";
}

inline std::string Dop(std::string const& name, std::string const& method, std::string const& coded,
                       std::string const& physical, std::string const& rest = "") {
    return "<DATA-OBJECT-PROP ID=\"" + name + "\"><SHORT-NAME>" + name + "</SHORT-NAME>\n<COMPU-METHOD>" + method +
           "</COMPU-METHOD>" + coded + "<PHYSICAL-TYPE BASE-DATA-TYPE=\"" + physical + "\"/>" + rest +
           "</DATA-OBJECT-PROP>";
}

/// A DOP of whole numbers that are written as they are.
inline std::string Plain(std::string const& name, std::string const& bitLength) {
    return Dop(name, "<CATEGORY>IDENTICAL</CATEGORY>", Coded("A_UINT32", bitLength), "A_UINT32");
}

inline std::string DopList(std::string const& dops) { return "<DATA-OBJECT-PROPS>" + dops + "</DATA-OBJECT-PROPS>"; }

inline std::string Limits(std::string const& lower, std::string const& upper) {
    return "<LOWER-LIMIT>" + lower + "</LOWER-LIMIT><UPPER-LIMIT>" + upper + "</UPPER-LIMIT>";
}

inline std::string Scale(std::string const& limits, std::string const& content) {
    return "\n<COMPU-SCALE>" + limits + content + "</COMPU-SCALE>";
}

inline std::string Scales(std::string const& category, std::string const& scales, std::string const& rest = "") {
    return "<CATEGORY>" + category + "</CATEGORY><COMPU-INTERNAL-TO-PHYS><COMPU-SCALES>" + scales + "</COMPU-SCALES>" +
           rest + "</COMPU-INTERNAL-TO-PHYS>";
}

/// A parameter in a line of its own, without a BYTE-POSITION where that is "".
inline std::string Param(std::string const& type, std::string const& name, std::string const& position,
                         std::string const& content) {
    std::string const place = position.empty() ? "" : "<BYTE-POSITION>" + position + "</BYTE-POSITION>";
    return "\n<PARAM xsi:type=\"" + type + "\" ID=\"" + name + "\"><SHORT-NAME>" + name + "</SHORT-NAME>" + place +
           content + "</PARAM>";
}

inline std::string Const(std::string const& name, std::string const& position, std::string const& value,
                         std::string const& coded) {
    return Param("CODED-CONST", name, position, "<CODED-VALUE>" + value + "</CODED-VALUE>" + coded);
}
inline std::string Const(std::string const& name, std::string const& position, std::string const& value) {
    return Const(name, position, value, Coded("A_UINT32", "8"));
}
inline std::string ValueAt(std::string const& name, std::string const& position, std::string const& dop) {
    return Param("VALUE", name, position, "<DOP-REF ID-REF=\"" + dop + "\"/>");
}

/// A REQUEST, POS-RESPONSE or STRUCTURE.
inline std::string MessageXml(std::string const& tag, std::string const& name, std::string const& params,
                              std::string const& head = "") {
    return "<" + tag + " ID=\"" + name + "\"><SHORT-NAME>" + name + "</SHORT-NAME>" + head + "<PARAMS>" + params +
           "</PARAMS></" + tag + ">";
}

} // namespace NTest
