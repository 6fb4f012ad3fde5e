// SPDX-License-Identifier: Apache-2.0
#include <diagkit/conformance/Walk.h>

#include <algorithm>
#include <exception>
#include <utility>

#include <diagkit/conformance/Kinds.h>
#include <diagkit/conformance/Links.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>

namespace NConformance {
namespace {

using namespace NODX201;

/// Longer than any chain of owners, to end one that forms a cycle.
constexpr int kLongestChain = 10000;

/// Layers and containers are shown by name; for all others the path shows what they are.
std::wstring Shortened(VOdxElement& element, std::wstring const& component) {
    bool const isKnown =
        dynamic_cast<VDiagLayer*>(&element) != nullptr || dynamic_cast<VDiagLayerContainer*>(&element) != nullptr;
    std::size_t const space = component.find(L' ');
    return isKnown && space != std::wstring::npos ? component.substr(space + 1) : component;
}

std::wstring Quoted(wchar_t const* text) { return L"'" + std::wstring(text) + L"'"; }

/// The last of an object's owners: the root, unless the chain forms a cycle.
VOdxObject const& TopOf(VOdxObject const& object) {
    VOdxObject const* top = &object;
    for (int length = 0; length < kLongestChain && top->GetOwner() != nullptr; ++length) {
        top = top->GetOwner();
    }
    return *top;
}

} // namespace

void VWalk::WalkModel(VModel const& model) {
    Ask(L"GetOwner", [&] {
        m_tops.push_back(&model.odx);
        if (model.odx.GetOwner() != nullptr) {
            Report(VCheckId::RootHasNoOwner, L"GetOwner", L"null", L"an owner");
        }
    });
    Enter(model.odx, nullptr, L"");
    for (VFlash* const flash : model.flashes) {
        EnterDocument(*flash);
    }
    for (VMultipleEcuJob* const job : model.multipleEcuJobs) {
        EnterDocument(*job);
    }
    for (VReference const& reference : m_references) {
        Resolve(reference);
    }
    CheckTexts();
}

/// Its owner is up to the model, but targets may be in it as well.
void VWalk::EnterDocument(VOdxElement& document) {
    VOdxObject* owner = nullptr;
    Ask(L"GetOwner", [&] {
        owner = document.GetOwner();
        m_tops.push_back(&TopOf(document));
    });
    Enter(document, owner, ComponentOf(document, 0));
}

std::wstring VWalk::ComponentOf(VOdxElement& element, std::size_t number) {
    std::wstring component;
    std::wstring shortName;
    Ask(L"GetOdxTag", [&] { component = OdxTagText(element.GetOdxTag()); });
    Ask(L"GetShortName", [&] {
        wchar_t const* const text = element.GetShortName();
        shortName = text != nullptr ? text : L"";
    });
    if (shortName.empty()) {
        return number == 0 ? component : component + L" " + std::to_wstring(number);
    }
    return component + L" " + shortName;
}

std::wstring VWalk::PathOf(VOdxElement const& element) const {
    auto const found = m_paths.find(&element);
    return found != m_paths.end() ? found->second : L"an element that no collection holds";
}

void VWalk::Enter(VOdxElement& element, VOdxObject* owner, std::wstring const& component) {
    std::wstring const name = Shortened(element, component);
    std::wstring const path = m_path.empty() ? name : m_path + L"/" + name;
    // A DIAG-COMM that a layer lists twice is met twice; an element that contains itself must not be followed.
    if (!m_paths.emplace(&element, path).second) {
        return;
    }
    std::wstring const pathBefore = std::exchange(m_path, path);
    VOdxElement* const elementBefore = std::exchange(m_element, &element);
    VDiagLayer* const layerBefore = m_layer;
    if (auto* const layer = dynamic_cast<VDiagLayer*>(&element); layer != nullptr) {
        m_layer = layer;
        m_layers.push_back(layer);
    }
    if (elementBefore != nullptr) {
        CheckOwner(element, owner, L"GetOwner");
    }
    CheckKind(element);
    CheckAccept(element);
    WalkParts(*this, element);
    m_layer = layerBefore;
    m_element = elementBefore;
    m_path = pathBefore;
}

void VWalk::CheckOwner(VOdxObject& object, VOdxObject* owner, wchar_t const* operation) {
    Ask(operation, [&] {
        VOdxObject* const told = object.GetOwner();
        auto* const wrapper = dynamic_cast<VOdxElement*>(told);
        bool const isWrapped = wrapper != nullptr && wrapper->GetOdxTag() == VOdxTagEnum::CompuScales;
        if (told != owner && !(isWrapped && told->GetOwner() == owner)) {
            Report(VCheckId::OwnerContainsElement, operation, L"what contains it",
                   told == nullptr ? L"null" : L"another");
        }
    });
}

void VWalk::CheckKind(VOdxElement& element) {
    std::vector<VKind const*> const kinds = KindsOf(element);
    if (kinds.size() != 1) {
        Report(VCheckId::ElementHasOneKind, L"", L"one class of the contract", NamesOf(kinds));
        return;
    }
    VOdxTagEnum tag = VOdxTagEnum::None;
    auto const& tags = kinds.front()->tags;
    if (Ask(L"GetOdxTag", [&] { tag = element.GetOdxTag(); }) &&
        std::find(tags.begin(), tags.end(), tag) == tags.end()) {
        Report(VCheckId::TagFitsKind, L"GetOdxTag", L"one of " + NamesOf(kinds), TextOf(tag));
    }
}

void VWalk::CheckAccept(VOdxElement& element) {
    VVisit visit;
    wchar_t const* const where = L"Accept";
    if (!Ask(where, [&] { visit = VisitOf(element); })) {
        return;
    }
    int const expected = visit.isToCall ? 1 : 0;
    if (visit.calls != expected) {
        Report(VCheckId::AcceptCallsOnce, where, std::to_wstring(expected) + L" calls",
               std::to_wstring(visit.calls) + L" calls");
    }
    if (!visit.isItself) {
        Report(VCheckId::AcceptHandsOverItself, where, L"the element itself", L"another");
    }
}

void VWalk::CheckAlternatives(VChild const& child, wchar_t const* operation) {
    std::wstring said;
    int count = 0;
    for (VAlternative const& alternative : child.alternatives) {
        if (!alternative.isSaid) {
            continue;
        }
        said += (count++ == 0 ? L"" : L", ") + std::wstring(alternative.test);
        if (!alternative.isCastable) {
            Report(VCheckId::AlternativeIsCastable, operation, L"what " + std::wstring(alternative.test) + L" says",
                   L"no such class");
        }
    }
    if (!child.alternatives.empty() && count != 1) {
        Report(VCheckId::AlternativeIsExactlyOne, operation, L"one test that is true", count == 0 ? L"none" : said);
    }
    if (child.element == nullptr) {
        Report(VCheckId::AlternativeIsCastable, operation, L"an element", L"something else");
    }
}

bool VWalk::IsPresent(wchar_t const* operation, VHas const& has) {
    bool first = true;
    bool second = true;
    if (has && !Ask(operation, [&] {
            first = has();
            second = has();
        })) {
        return false;
    }
    if (first != second) {
        Report(VCheckId::PresenceIsStable, operation, L"one answer", L"two");
    }
    return first && second;
}

void VWalk::Name(wchar_t const* operation, VGetText const& get) { KeepText(operation, get); }

void VWalk::Text(wchar_t const* operation, VHas const& has, VGetText const& get) {
    if (!IsPresent(operation, has)) {
        return;
    }
    std::wstring const text = KeepText(operation, get);
    if (!text.empty()) {
        Answer(operation, text);
    } else if (has) {
        Report(VCheckId::PresentOidIsNotEmpty, operation, L"a text that is not empty", L"''");
    }
}

std::wstring VWalk::KeepText(wchar_t const* operation, VGetText const& get) {
    wchar_t const* text = nullptr;
    std::wstring content;
    Ask(operation, [&] {
        text = get();
        content = text != nullptr ? text : L"";
        wchar_t const* const again = get();
        if (text == nullptr || again == nullptr) {
            Report(VCheckId::TextIsNeverNull, operation, L"a text", L"null");
        } else if (content != again) {
            Report(VCheckId::TextStaysValid, operation, Quoted(content.c_str()), Quoted(again));
        } else {
            m_texts.push_back({Where(operation), text, content});
        }
    });
    return content;
}

void VWalk::CheckTexts() {
    for (VKeptText const& kept : m_texts) {
        if (kept.content != kept.text) {
            Report(VCheckId::TextStaysValid, kept.where.c_str(), Quoted(kept.content.c_str()), Quoted(kept.text));
        }
    }
}

void VWalk::Child(wchar_t const* operation, VHas const& has, VGetChild const& get) {
    VChild child;
    VChild again;
    if (!IsPresent(operation, has) || !Ask(operation, [&] {
            child = get();
            again = get();
        })) {
        return;
    }
    if (child.address != again.address) {
        Report(VCheckId::ChildIsOneObject, operation, L"one object", L"two");
    }
    CheckAlternatives(child, operation);
    if (child.element == nullptr) {
        return;
    }
    std::wstring const component = ComponentOf(*child.element, 0);
    Answer(operation, component);
    Enter(*child.element, m_element, component);
}

void VWalk::List(wchar_t const* operation, VHas const& has, VGetList const& get) {
    bool const isPresent = IsPresent(operation, has);
    VList list;
    VList again;
    if (!Ask(operation, [&] {
            list = get();
            again = get();
        })) {
        return;
    }
    if (list.collection != again.collection) {
        Report(VCheckId::CollectionIsOneObject, operation, L"one object", L"two");
    }
    if (list.entries != again.entries) {
        Report(VCheckId::CollectionKeepsEntries, operation, L"the same entries twice", L"others");
    }
    if (!isPresent && !list.entries.empty()) {
        Report(VCheckId::AbsentCollectionIsEmpty, operation, L"no entries", std::to_wstring(list.entries.size()));
    }
    if (list.object != nullptr) {
        CheckOwner(*list.object, m_element, (std::wstring(operation) + L" GetOwner").c_str());
    }
    CheckEntries(list, operation);
    std::wstring entries;
    for (std::size_t index = 0; index < list.entries.size(); ++index) {
        entries += (index == 0 ? L"" : L", ") + NameOf(list.entries[index], index + 1);
    }
    if (has && isPresent && entries.empty()) {
        entries = L"nothing";
    }
    if (!entries.empty()) {
        Answer(operation, entries);
    }
    EnterEntries(list);
}

std::wstring VWalk::NameOf(VEntry const& entry, std::size_t number) {
    if (entry.child.element != nullptr) {
        return ComponentOf(*entry.child.element, number);
    }
    return entry.text != nullptr ? Quoted(entry.text->c_str()) : std::to_wstring(number);
}

void VWalk::CheckEntries(VList const& list, wchar_t const* operation) {
    for (std::size_t index = 0; index < list.entries.size(); ++index) {
        VEntry const& entry = list.entries[index];
        std::wstring const at = operation + (L" " + std::to_wstring(index + 1));
        if (entry.address == nullptr) {
            Report(VCheckId::CollectionHasNoNull, at.c_str(), L"an entry", L"null");
        } else if (entry.text == nullptr && entry.instruction == nullptr) {
            CheckAlternatives(entry.child, at.c_str());
        }
    }
}

void VWalk::EnterEntries(VList const& list) {
    for (std::size_t index = 0; index < list.entries.size(); ++index) {
        VEntry const& entry = list.entries[index];
        if (VOdxElement* const element = entry.child.element; element != nullptr) {
            Enter(*element, list.object != nullptr ? list.object : m_element, ComponentOf(*element, index + 1));
        }
        if (entry.instruction != nullptr) {
            InstructionTexts(*entry.instruction, index + 1);
        }
    }
}

void VWalk::InstructionTexts(VProcessingInstruction& instruction, std::size_t number) {
    std::wstring const operation = L"processing instruction " + std::to_wstring(number);
    Text((operation + L" GetName").c_str(), {}, [&] { return instruction.GetName(); });
    Text((operation + L" GetContent").c_str(), {}, [&] { return instruction.GetContent(); });
}

void VWalk::Link(VLink& link) {
    ILink* form = nullptr;
    ILink* again = nullptr;
    if (!Ask(L"GetLink", [&] {
            form = &link.GetLink();
            again = &link.GetLink();
        })) {
        return;
    }
    if (form != again) {
        Report(VCheckId::ChildIsOneObject, L"GetLink", L"one object", L"two");
    }
    VReference reference{&link, m_layer, m_path, L"", L""};
    auto const keep = [](wchar_t const* text) { return text != nullptr ? text : L""; };
    if (auto const* const byId = dynamic_cast<VOdxLink const*>(form); byId != nullptr) {
        Text(L"GetIdRef", {}, [&] { return byId->GetIdRef(); });
        Text(L"GetDocref", {}, [&] { return byId->GetDocref(); });
        Text(L"GetDoctype", {}, [&] { return byId->GetDoctype(); });
        Text(L"GetRevision", {}, [&] { return byId->GetRevision(); });
        Ask(L"GetIdRef", [&] { reference.id = keep(byId->GetIdRef()); });
    } else if (auto const* const byName = dynamic_cast<VSnref const*>(form); byName != nullptr) {
        Text(L"GetLink GetShortName", {}, [&] { return byName->GetShortName(); });
        Ask(L"GetLink GetShortName", [&] { reference.shortName = keep(byName->GetShortName()); });
    } else {
        Report(VCheckId::LinkIsByNameOrById, L"GetLink", L"a VSnref or a VOdxLink", L"neither");
    }
    m_references.push_back(reference);
}

void VWalk::Resolve(VReference const& reference) {
    m_path = reference.path;
    std::vector<VQuestion> questions;
    Ask(L"", [&] { questions = QuestionsFor(*reference.link, reference.layer); });
    for (VQuestion const& question : questions) {
        VChild target;
        VChild again;
        bool isFound = false;
        if (!Ask(L"", [&] {
                isFound = question.has();
                target = isFound ? question.get() : VChild();
                again = question.has() ? question.get() : VChild();
            })) {
            continue;
        }
        if (target.address != again.address) {
            Report(VCheckId::LinkLeadsToOneTarget, L"", L"one answer", L"two");
        }
        if (isFound) {
            CheckAlternatives(target, L"");
        }
        if (target.element != nullptr) {
            Ask(L"", [&] { CheckTarget(reference, *target.element); });
        }
        Answer(L"leads to", target.element != nullptr ? PathOf(*target.element) : L"nothing");
        AnswerOtherLayers(reference, target.element);
    }
    m_path.clear();
}

void VWalk::AnswerOtherLayers(VReference const& reference, VOdxElement const* here) {
    if (m_answers == nullptr || !IsAskedForLayer(*reference.link)) {
        return;
    }
    for (VDiagLayer* const layer : m_layers) {
        if (VOdxElement const* const there = Find(reference, *layer); there != here) {
            Answer((L"leads, in " + PathOf(*layer) + L", to").c_str(), there != nullptr ? PathOf(*there) : L"nothing");
        }
    }
}

VOdxElement* VWalk::Find(VReference const& reference, VDiagLayer& layer) {
    VOdxElement* target = nullptr;
    Ask(L"", [&] {
        for (VQuestion const& question : QuestionsFor(*reference.link, &layer)) {
            target = question.has() ? question.get().element : nullptr;
        }
    });
    return target;
}

void VWalk::CheckTarget(VReference const& reference, VOdxElement& target) {
    auto* const withId = dynamic_cast<VReferencable*>(&target);
    if (!reference.id.empty() && (withId == nullptr || withId->GetId() != reference.id)) {
        Report(VCheckId::TargetBearsId, L"", Quoted(reference.id.c_str()),
               withId == nullptr ? L"no ID" : Quoted(withId->GetId()));
    }
    if (!reference.shortName.empty() && target.GetShortName() != reference.shortName) {
        Report(VCheckId::TargetBearsName, L"", Quoted(reference.shortName.c_str()), Quoted(target.GetShortName()));
    }
    if (std::find(m_tops.begin(), m_tops.end(), &TopOf(target)) == m_tops.end()) {
        Report(VCheckId::TargetIsInDatabase, L"", L"owners that lead to a root", L"others");
    }
    if (m_paths.count(&target) == 0 && IsInLayer(target)) {
        Report(VCheckId::TargetIsTheElement, L"", L"an element of the layer's collections", L"another object");
    }
}

bool VWalk::IsInLayer(VOdxElement const& element) const {
    VOdxObject const* owner = element.GetOwner();
    for (int length = 0; length < kLongestChain && owner != nullptr; ++length) {
        if (std::find(m_layers.begin(), m_layers.end(), owner) != m_layers.end()) {
            return true;
        }
        owner = owner->GetOwner();
    }
    return false;
}

bool VWalk::Ask(wchar_t const* operation, std::function<void()> const& call) {
    try {
        call();
        return true;
    } catch (std::exception const& exception) {
        std::string const what = exception.what();
        Report(VCheckId::CallsThrowNothing, operation, L"no exception", std::wstring(what.begin(), what.end()));
    } catch (...) {
        Report(VCheckId::CallsThrowNothing, operation, L"no exception", L"one of no standard class");
    }
    return false;
}

std::wstring VWalk::Where(wchar_t const* operation) const {
    return m_path.empty() || *operation == 0 ? m_path + operation : m_path + L" " + operation;
}

void VWalk::Report(VCheckId check, wchar_t const* operation, std::wstring expected, std::wstring found) {
    m_violations.Add(check, Where(operation), std::move(expected), std::move(found));
}

void VWalk::Answer(wchar_t const* operation, std::wstring const& answer) {
    if (m_answers != nullptr) {
        m_answers->push_back(Where(operation) + L": " + answer);
    }
}

} // namespace NConformance
