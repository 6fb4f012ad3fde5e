// SPDX-License-Identifier: Apache-2.0
#include "strict/StrictModel.h"

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/memory/ProcessingInstructions.h>

#include "strict/StrictElements.h"

namespace NTest {

VStrictModel::VStrictModel(VParentRefs parentRefs, VOperations* called) : m_parentRefs(parentRefs), m_called(called) {}

VStrictModel::~VStrictModel() = default;

void VStrictModel::Call(std::string const& operation) const {
    if (m_called != nullptr) {
        m_called->insert(operation);
    }
}

NODX201::VOdxObject* VStrictModel::Of(NODX201::VOdxObject* inner) {
    if (auto* const layers = dynamic_cast<NODX201::VDiagLayerCollection*>(inner)) {
        return &Of(*layers);
    }
    return inner != nullptr ? &ElementOf(dynamic_cast<NODX201::VOdxElement&>(*inner)) : nullptr;
}

NODX201::VOdxElement& VStrictModel::ElementOf(NODX201::VOdxElement& inner) {
    std::unique_ptr<NODX201::VOdxElement>& made = m_elements[&inner];
    if (made == nullptr) {
        made = Make(inner);
    }
    return *made;
}

namespace {

/// A stand-in when the inner element is of the memory model's class; null otherwise.
template <class Contract, class Memory>
std::unique_ptr<NODX201::VOdxElement> MakeIf(VStrictModel& model, NODX201::VOdxElement& inner) {
    if constexpr (std::is_base_of_v<NODX201::VOdxElement, Contract>) {
        if (typeid(inner) == typeid(Memory)) {
            return std::make_unique<typename VStrict<Contract>::Type>(model, dynamic_cast<Contract&>(inner));
        }
    }
    return nullptr;
}

} // namespace

std::unique_ptr<NODX201::VOdxElement> VStrictModel::Make(NODX201::VOdxElement& inner) {
#define CONCRETE(contract, memory)                                                                                     \
    if (auto made = MakeIf<NODX201::contract, NMemory::memory>(*this, inner)) {                                        \
        return made;                                                                                                   \
    }
#define BASE(contract)
#include "memory/ContractClasses.def"
    return std::make_unique<VStrict<NODX201::VOdxElement>::Type>(*this, inner); // the contract has no class for it
}

VOperations AllGuardedGetters() {
    VOperations all;
    std::string name;
#define PARTS(class_name) name = #class_name "::";
#define END
#define TEXT(part)
#define OPTIONAL_TEXT(part) all.insert(name + "Get" #part);
#define PART(part)
#define CHILD(part) all.insert(name + "Get" #part);
#define LIST(part)
#define OPTIONAL_LIST(part) all.insert(name + #part);
#define LINK()
#include <contract/Parts.def>
#define LINK(link, target) all.insert(#link "::Get" #target);
#define LINK_IN_LAYER(link, target) LINK(link, target)
#include <contract/Links.def>
    all.insert("VOutParamIfLink::GetOutParamIf");
    return all;
}

} // namespace NTest
