// SPDX-License-Identifier: Apache-2.0
#include "reader/LayerXml.h"

#include "reader/ReaderTest.h"

namespace NTest {

std::string Xml(std::string const& tag, std::string const& id, std::string const& content) {
    return "<" + tag + " ID=\"" + id + "\"><SHORT-NAME>" + id + "</SHORT-NAME>" + content + "</" + tag + ">";
}

std::string LayerXml(std::string const& kind, std::string const& id, std::string const& content) {
    return "<" + kind + "S>" + Xml(kind, id, "\n" + content) + "</" + kind + "S>\n";
}

std::string Service(std::string const& id, std::string const& content) { return Xml("DIAG-SERVICE", id, content); }

std::string DiagComms(std::string const& content) { return "<DIAG-COMMS>" + content + "</DIAG-COMMS>"; }

std::string Dops(std::string const& names) {
    static int count = 0;
    std::string dops;
    for (char const name : names) {
        dops += "<DATA-OBJECT-PROP ID=\"DOP." + std::to_string(++count) + "\"><SHORT-NAME>" + name +
                "</SHORT-NAME></DATA-OBJECT-PROP>";
    }
    return "<DATA-OBJECT-PROPS>" + dops + "</DATA-OBJECT-PROPS>";
}

std::string DopRefTo(std::string const& id) { return "<DOP-REF ID-REF=\"" + id + "\"/>"; }

std::string DopSnrefTo(std::string const& shortName) { return "<DOP-SNREF SHORT-NAME=\"" + shortName + "\"/>"; }

std::string Value(std::string const& name, std::string const& reference) {
    return "<PARAM xsi:type=\"VALUE\"><SHORT-NAME>" + name + "</SHORT-NAME>" + reference + "</PARAM>";
}

std::string Structure(std::string const& id, std::string const& params) {
    return "<STRUCTURES>" + Xml("STRUCTURE", id, "<PARAMS>" + params + "</PARAMS>") + "</STRUCTURES>";
}

std::string Request(std::string const& id, std::string const& params) {
    return "<REQUESTS>" + Xml("REQUEST", id, "<PARAMS>" + params + "</PARAMS>") + "</REQUESTS>";
}

std::string InDictionary(std::string const& content) {
    return "<DIAG-DATA-DICTIONARY-SPEC>" + content + "</DIAG-DATA-DICTIONARY-SPEC>";
}

std::string ParentRefs(std::vector<VParentXml> const& parents) {
    std::string refs;
    for (VParentXml const& parent : parents) {
        refs += "\n<PARENT-REF xsi:type=\"" + parent.kind + "-REF\" ID-REF=\"" + parent.id + "\">" + parent.content +
                "</PARENT-REF>";
    }
    return "<PARENT-REFS>" + refs + "</PARENT-REFS>";
}

std::string Excluded(std::string const& diagComm) {
    return "<NOT-INHERITED-DIAG-COMMS><NOT-INHERITED-DIAG-COMM>\n<DIAG-COMM-SNREF SHORT-NAME=\"" + diagComm +
           "\"/></NOT-INHERITED-DIAG-COMM></NOT-INHERITED-DIAG-COMMS>";
}

std::string ContainerOfLayers(std::string layers) {
    for (std::string const kind : {"PROTOCOL", "FUNCTIONAL-GROUP", "ECU-SHARED-DATA", "BASE-VARIANT", "ECU-VARIANT"}) {
        std::string const seam = "</" + kind + "S>\n<" + kind + "S>";
        for (std::size_t at = layers.find(seam); at != std::string::npos; at = layers.find(seam)) {
            layers.replace(at, seam.size(), "\n");
        }
    }
    return Container(layers, "2.2.0");
}

} // namespace NTest
