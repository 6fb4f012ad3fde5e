// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Loader.h>

#include <utility>

// Elements whose kind follows only from their contents: they are recorded until they end, and read then.

namespace NReader {
namespace {

/// In the form in which the parser passes them: alternating names and values, null at the end.
std::vector<char const*> Pointers(std::vector<std::string> const& attributes) {
    std::vector<char const*> pointers;
    pointers.reserve(attributes.size() + 1);
    for (std::string const& attribute : attributes) {
        pointers.push_back(attribute.c_str());
    }
    pointers.push_back(nullptr);
    return pointers;
}

void SetXsiType(std::vector<std::string>& attributes, std::string type) {
    for (auto name = attributes.begin(); name != attributes.end();) {
        name = LocalName(*name) == "type" ? attributes.erase(name, name + 2) : name + 2;
    }
    attributes.emplace_back("xsi:type");
    attributes.push_back(std::move(type));
}

} // namespace

void VLoader::RecordStart(std::string_view name, VAttributes const& attributes) {
    VEvent event{VEvent::VKind::Start, std::string(name), {}, {}, Position()};
    for (char const* const* attribute = attributes.Raw(); *attribute != nullptr; ++attribute) {
        event.attributes.emplace_back(*attribute);
    }
    Record(std::move(event));
}

void VLoader::Record(VEvent event) {
    m_recordedSize += sizeof event + event.name.size() + event.text.size();
    for (std::string const& text : event.attributes) {
        m_recordedSize += sizeof text + text.size();
    }
    m_parser->LimitText(m_recordedSize); // they are kept like a text
    m_recorded.push_back(std::move(event));
}

std::vector<std::string> VLoader::ChildNames(std::vector<VEvent> const& events) {
    std::vector<std::string> names;
    std::uint32_t depth = 0;
    for (VEvent const& event : events) {
        if (event.kind == VEvent::VKind::Start && depth++ == 1) {
            names.emplace_back(LocalName(event.name));
        } else if (event.kind == VEvent::VKind::End) {
            --depth;
        }
    }
    return names;
}

void VLoader::Replay() {
    std::vector<VEvent> events;
    events.swap(m_recorded);
    m_recordedSize = 0;
    VRow const& row = *m_recordedRow;
    VEvent& first = events.front();
    SetXsiType(first.attributes,
               InferType(first.name, VAttributes(Pointers(first.attributes).data()), ChildNames(events)));

    NMemory::VPosition const* const before = m_replayed;
    m_replayed = &first.position;
    // It is already noted among its siblings.
    Open(VAttributes(Pointers(first.attributes).data()), row, m_frames.back().object);
    m_frames.back().isInferred = true;
    for (std::size_t index = 1; index < events.size(); ++index) {
        m_replayed = &events[index].position;
        Replay(events[index]);
    }
    m_replayed = before;
}

void VLoader::Replay(VEvent const& event) {
    switch (event.kind) {
    case VEvent::VKind::Start:
        Start(event.name, VAttributes(Pointers(event.attributes).data()));
        break;
    case VEvent::VKind::End:
        End(event.name);
        break;
    case VEvent::VKind::Text:
        Text(event.text);
        break;
    case VEvent::VKind::Instruction:
        Instruction(event.name, event.text);
        break;
    }
}

} // namespace NReader
