// SPDX-License-Identifier: Apache-2.0

// The searches of the parameter views compared with a search that follows the rules directly, on random parameters.

#include <random>

#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/OpResolveSnref.h>
#include <diagkit/tools/OutParamIfView.h>

#include "tools/ParamTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VInParamIfView;
using NDIAGKIT::VOutParamIfView;
using NMemory::VReference;

/// The target of a reference of the plan: the object of that number, a missing target, or no reference at all.
constexpr int kGone = -1;
constexpr int kAbsent = -2;

struct VParamPlan {
    enum class VForm { Value, Constant, TableStructOfTable, TableStructOfRow };

    VForm form = VForm::Value;
    std::wstring name;
    std::wstring id;
    int target = kAbsent; ///< a DOP, a table, or a row by number
};

using VParamPlans = std::vector<VParamPlan>;

struct VDopPlan {
    enum class VForm { Simple, Structure, EnvDataDesc, FieldOfStructure, FieldOfDesc, Mux };

    VForm form = VForm::Simple;
    VParamPlans params{};                ///< of a structure
    std::vector<VParamPlans> envDatas{}; ///< of an ENV-DATA-DESC; the odd ones are in the dictionary
    int defaultCase = kAbsent;           ///< of a MUX: a structure
    std::vector<int> targets{};          ///< of a field: one DOP; of a MUX: the structures of its cases
};

struct VRowPlan {
    int structure = kAbsent;
};

/// All DOPs lead only to DOPs of higher numbers, so that nothing contains itself.
struct VServicePlan {
    std::vector<VDopPlan> dops;
    std::vector<VRowPlan> rows;           ///< all are in one table
    std::vector<std::vector<int>> tables; ///< the numbers of the rows they refer to
    std::vector<VParamPlans> requests;    ///< none or one
    std::vector<VParamPlans> positives;
    std::vector<VParamPlans> negatives;
};

class VGenerator {
public:
    explicit VGenerator(std::uint32_t seed) : m_random(seed) {}

    VServicePlan Make() {
        VServicePlan plan;
        plan.dops.resize(kDops);
        for (int dop = 0; dop < kDops; ++dop) {
            plan.dops[static_cast<std::size_t>(dop)].form = static_cast<VDopPlan::VForm>(Below(6));
        }
        plan.dops.back().form = VDopPlan::VForm::Structure;
        for (int dop = 0; dop < kDops; ++dop) {
            Fill(plan, dop);
        }
        for (int row = 0; row < 4; ++row) {
            plan.rows.push_back({Of(plan, VDopPlan::VForm::Structure, kTableDops)});
        }
        for (int table = 0; table < kTables; ++table) {
            plan.tables.emplace_back();
            for (int count = Below(4); count > 0; --count) {
                plan.tables.back().push_back(OneIn(6) ? kGone : Below(4));
            }
        }
        if (!OneIn(5)) {
            plan.requests.push_back(Params(0));
        }
        for (int count = Below(3); count > 0; --count) {
            plan.positives.push_back(Params(0));
        }
        for (int count = Below(3); count > 0; --count) {
            plan.negatives.push_back(Params(0));
        }
        return plan;
    }

private:
    static constexpr int kDops = 12;
    static constexpr int kTableDops = 7; ///< tables lead to DOPs from here on, DOPs before lead to tables
    static constexpr int kTables = 2;

    // Not a distribution of the standard library: those give different numbers on different platforms.
    int Below(int limit) { return static_cast<int>(m_random() % static_cast<std::uint32_t>(limit)); }
    bool OneIn(int count) { return Below(count) == 0; }

    /// A DOP of the form with at least that number, sometimes none.
    int Of(VServicePlan const& plan, VDopPlan::VForm form, int from) {
        std::vector<int> candidates{kGone, kAbsent};
        for (int dop = from; dop < kDops; ++dop) {
            if (plan.dops[static_cast<std::size_t>(dop)].form == form) {
                candidates.insert(candidates.end(), 3, dop);
            }
        }
        return candidates[static_cast<std::size_t>(Below(static_cast<int>(candidates.size())))];
    }

    /// Parameters that lead to DOPs from that number on.
    VParamPlans Params(int from) {
        static constexpr wchar_t const* kNames[] = {L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"A", L""};
        VParamPlans params;
        for (int count = Below(4); count > 0; --count) {
            VParamPlan param;
            param.name = kNames[Below(9)];
            param.id = L"Param." + std::to_wstring(++m_params);
            param.form = OneIn(6) ? VParamPlan::VForm::Constant : VParamPlan::VForm::Value;
            if (param.form == VParamPlan::VForm::Value && from < kDops && !OneIn(4)) {
                param.target = OneIn(8) ? kGone : from + Below(kDops - from);
            }
            if (from < kTableDops && OneIn(6)) {
                param.form = OneIn(2) ? VParamPlan::VForm::TableStructOfTable : VParamPlan::VForm::TableStructOfRow;
                param.target = OneIn(5) ? kGone : OneIn(6) ? kAbsent : Below(2);
            }
            params.push_back(param);
        }
        return params;
    }

    void Fill(VServicePlan& plan, int number) {
        VDopPlan& dop = plan.dops[static_cast<std::size_t>(number)];
        switch (dop.form) {
        case VDopPlan::VForm::Simple:
            return;
        case VDopPlan::VForm::Structure:
            dop.params = Params(number + 1);
            return;
        case VDopPlan::VForm::EnvDataDesc:
            for (int count = Below(4); count > 0; --count) {
                dop.envDatas.push_back(Params(number + 1));
            }
            return;
        case VDopPlan::VForm::FieldOfStructure:
            dop.targets = {Of(plan, VDopPlan::VForm::Structure, number + 1)};
            return;
        case VDopPlan::VForm::FieldOfDesc:
            dop.targets = {Of(plan, VDopPlan::VForm::EnvDataDesc, number + 1)};
            return;
        case VDopPlan::VForm::Mux:
            dop.defaultCase = Of(plan, VDopPlan::VForm::Structure, number + 1);
            for (int count = Below(4); count > 0; --count) {
                dop.targets.push_back(Of(plan, VDopPlan::VForm::Structure, number + 1));
            }
        }
    }

    std::mt19937 m_random;
    int m_params = 0;
};

/// The search as defined by the rules, on the plan alone. Returns IDs; "" when there is none.
class VNaiveSearch {
public:
    VNaiveSearch(VServicePlan const& plan, std::wstring const& name) : m_plan(plan), m_name(name) {}

    std::wstring Below(VParamPlan const& param) {
        switch (param.form) {
        case VParamPlan::VForm::Value:
            return param.name == m_name ? param.id : BelowDop(param.target);
        case VParamPlan::VForm::Constant:
            return L"";
        case VParamPlan::VForm::TableStructOfTable:
            if (param.target >= 0) {
                for (int const row : m_plan.tables[static_cast<std::size_t>(param.target)]) {
                    if (std::wstring const found = BelowRow(row); !found.empty()) {
                        return found;
                    }
                }
            }
            return L"";
        case VParamPlan::VForm::TableStructOfRow:
            return BelowRow(param.target);
        }
        return L"";
    }

private:
    std::wstring BelowRow(int row) {
        return row < 0 ? L"" : BelowDop(m_plan.rows[static_cast<std::size_t>(row)].structure);
    }

    std::wstring BelowAll(VParamPlans const& params) {
        for (VParamPlan const& param : params) {
            if (std::wstring const found = Below(param); !found.empty()) {
                return found;
            }
        }
        return L"";
    }

    std::wstring BelowDop(int number) {
        if (number < 0) {
            return L"";
        }
        VDopPlan const& dop = m_plan.dops[static_cast<std::size_t>(number)];
        std::wstring found = BelowAll(dop.params);
        for (std::size_t envData = 0; found.empty() && envData < dop.envDatas.size(); ++envData) {
            found = BelowAll(dop.envDatas[envData]);
        }
        if (found.empty()) {
            found = BelowDop(dop.defaultCase);
        }
        for (std::size_t target = 0; found.empty() && target < dop.targets.size(); ++target) {
            found = BelowDop(dop.targets[target]);
        }
        return found;
    }

    VServicePlan const& m_plan;
    std::wstring m_name;
};

/// The plan as a database.
class VBuiltService {
public:
    explicit VBuiltService(VServicePlan const& plan) : m_plan(plan) {
        for (std::size_t dop = 0; dop < plan.dops.size(); ++dop) {
            AddDop(dop);
        }
        NMemory::VMemTable& rows = m_dictionary.AddTable(L"Rows");
        for (std::size_t row = 0; row < plan.rows.size(); ++row) {
            NMemory::VMemTableRow& tableRow = rows.AddTableRow(L"Row");
            tableRow.SetId((L"Row." + std::to_wstring(row)).c_str());
            SetStructure(tableRow, plan.rows[row].structure);
        }
        for (std::size_t table = 0; table < plan.tables.size(); ++table) {
            NMemory::VMemTable& made = m_dictionary.AddTable(L"Table");
            made.SetId((L"Table." + std::to_wstring(table)).c_str());
            for (int const row : plan.tables[table]) {
                made.AddTableRowRef(VReference::ById(Id(L"Row.", row).c_str()));
            }
        }
        for (VParamPlans const& params : plan.requests) {
            NMemory::VMemRequest& request = m_layer.AddRequest(L"Request");
            AddParams(request, params);
            m_service.SetRequestRef(request);
        }
        for (VParamPlans const& params : plan.positives) {
            NMemory::VMemPosResponse& response = m_layer.AddPosResponse(L"PosResponse");
            AddParams(response, params);
            m_service.AddPosResponseRef(response);
        }
        for (VParamPlans const& params : plan.negatives) {
            NMemory::VMemNegResponse& response = m_layer.AddNegResponse(L"NegResponse");
            AddParams(response, params);
            m_service.AddNegResponseRef(response);
        }
    }

    NODX201::VDiagLayer& Layer() { return m_layer; }
    NODX201::VDiagService& Service() { return m_service; }

private:
    static std::wstring Id(wchar_t const* prefix, int number) { return prefix + std::to_wstring(number); }
    static std::wstring DopId(int number) { return Id(L"Dop.", number); }

    template <class Element>
    static void SetStructure(Element& element, int target) {
        if (target != kAbsent) {
            element.SetStructureRef(VReference::ById(DopId(target).c_str()));
        }
    }

    template <class Owner>
    void AddParams(Owner& owner, VParamPlans const& params) {
        for (VParamPlan const& param : params) {
            switch (param.form) {
            case VParamPlan::VForm::Value: {
                NMemory::VMemValue& value = owner.AddValue(param.name.c_str());
                value.SetId(param.id.c_str());
                if (param.target != kAbsent) {
                    value.SetDopBaseLink(VReference::ById(DopId(param.target).c_str()));
                }
                break;
            }
            case VParamPlan::VForm::Constant:
                owner.AddCodedConst(param.name.c_str()).SetId(param.id.c_str());
                break;
            case VParamPlan::VForm::TableStructOfTable:
            case VParamPlan::VForm::TableStructOfRow:
                owner.AddTableStruct(param.name.c_str()).SetTableKeyRef(Key(owner, param));
                break;
            }
        }
    }

    template <class Owner>
    NMemory::VMemTableKey& Key(Owner& owner, VParamPlan const& param) {
        NMemory::VMemTableKey& key = owner.AddTableKey(param.name.c_str());
        if (param.target != kAbsent && param.form == VParamPlan::VForm::TableStructOfTable) {
            key.SetTableRef(VReference::ById(Id(L"Table.", param.target).c_str()));
        } else if (param.target != kAbsent) {
            key.SetTableRowRef(VReference::ById(Id(L"Row.", param.target).c_str()));
        }
        return key;
    }

    template <class Field>
    static void SetTarget(Field& field, VDopPlan const& plan) {
        int const target = plan.targets[0];
        if (target != kAbsent && plan.form == VDopPlan::VForm::FieldOfStructure) {
            field.SetBasicStructureRef(VReference::ById(DopId(target).c_str()));
        } else if (target != kAbsent) {
            field.SetEnvDataDescRef(VReference::ById(DopId(target).c_str()));
        }
    }

    template <class Field>
    void AddField(Field& field, std::wstring const& id, VDopPlan const& plan) {
        field.SetId(id.c_str());
        SetTarget(field, plan);
    }

    void AddDop(std::size_t number) {
        VDopPlan const& plan = m_plan.dops[number];
        std::wstring const id = DopId(static_cast<int>(number));
        switch (plan.form) {
        case VDopPlan::VForm::Simple:
            m_dictionary.AddDataObjectProp(L"a").SetId(id.c_str());
            return;
        case VDopPlan::VForm::Structure: {
            NMemory::VMemStructure& structure = m_dictionary.AddStructure(L"a");
            structure.SetId(id.c_str());
            return AddParams(structure, plan.params);
        }
        case VDopPlan::VForm::EnvDataDesc: {
            NMemory::VMemEnvDataDesc& desc = m_dictionary.AddEnvDataDesc(L"a");
            desc.SetId(id.c_str());
            for (std::size_t envData = 0; envData < plan.envDatas.size(); ++envData) {
                bool const isReferenced = envData % 2 == 1;
                NMemory::VMemEnvData& made = isReferenced ? m_dictionary.AddEnvData(L"a") : desc.AddEnvData(L"a");
                AddParams(made, plan.envDatas[envData]);
                if (isReferenced) {
                    desc.AddEnvDataRef(made);
                }
            }
            return;
        }
        case VDopPlan::VForm::FieldOfStructure:
        case VDopPlan::VForm::FieldOfDesc:
            switch (number % 4) {
            case 0:
                return AddField(m_dictionary.AddStaticField(L"a"), id, plan);
            case 1:
                return AddField(m_dictionary.AddDynamicLengthField(L"a"), id, plan);
            case 2:
                return AddField(m_dictionary.AddDynamicEndmarkerField(L"a"), id, plan);
            default:
                return AddField(m_dictionary.AddEndOfPduField(L"a"), id, plan);
            }
        case VDopPlan::VForm::Mux: {
            NMemory::VMemMux& mux = m_dictionary.AddMux(L"a");
            mux.SetId(id.c_str());
            if (plan.defaultCase != kAbsent) {
                SetStructure(mux.MakeDefaultCase(L"a"), plan.defaultCase);
            }
            for (int const target : plan.targets) {
                SetStructure(mux.AddCase(L"a"), target);
            }
            return;
        }
        }
    }

    VServicePlan const& m_plan;
    NMemory::VDatabase m_database;
    NMemory::VMemEcuVariant& m_layer = m_database.AddDiagLayerContainer(L"Container").AddEcuVariant(L"Layer");
    NMemory::VMemDiagDataDictionarySpec& m_dictionary = m_layer.MakeDiagDataDictionarySpec();
    NMemory::VMemDiagService& m_service = m_layer.AddDiagService(L"Service");
};

constexpr wchar_t const* kSearchedParams[] = {L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"A", L"", L"absent"};

std::vector<VParamPlan> SourcesOf(VServicePlan const& plan, bool request, bool positives, bool negatives) {
    std::vector<VParamPlan> roots;
    auto const take = [&](std::vector<VParamPlans> const& sources) {
        for (VParamPlans const& params : sources) {
            for (VParamPlan const& param : params) {
                roots.push_back(param);
            }
        }
    };
    if (request) {
        take(plan.requests);
    }
    if (positives) {
        take(plan.positives);
    }
    if (negatives) {
        take(plan.negatives);
    }
    return roots;
}

template <class Param>
std::wstring IdOf(Param* param) {
    auto* const value = dynamic_cast<NODX201::VReferencable*>(param);
    return value != nullptr ? value->GetId() : L"";
}

template <class View>
std::vector<std::wstring> IdsOf(View& view) {
    std::vector<std::wstring> ids;
    for (auto& param : view) {
        ids.push_back(IdOf(&param));
    }
    return ids;
}

TEST(RandomParamsTest, OutParamSearchesAgreeWithASearchWrittenFromTheRules) {
    struct VRange {
        int value;
        bool request, positives, negatives;
    };
    static constexpr VRange kRanges[] = {{0, false, true, true},  {1, true, false, true},  {2, false, false, false},
                                         {3, true, false, false}, {4, false, true, false}, {5, true, true, true},
                                         {6, false, false, false}};
    int nested = 0;
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        VServicePlan const plan = VGenerator(seed).Make();
        VBuiltService built(plan);
        for (VRange const& range : kRanges) {
            std::vector<VParamPlan> const roots = SourcesOf(plan, range.request, range.positives, range.negatives);
            std::vector<VParamPlan> entries;
            for (VParamPlan const& root : roots) {
                if (root.form == VParamPlan::VForm::Value) {
                    entries.push_back(root);
                }
            }
            VOutParamIfView view(built.Service(), static_cast<NODX201::VSearchRange>(range.value));
            std::vector<std::wstring> ids;
            for (VParamPlan const& entry : entries) {
                ids.push_back(entry.id);
            }
            ASSERT_EQ(IdsOf(view), ids) << "seed " << seed << ", range " << range.value;
            for (wchar_t const* const name : kSearchedParams) {
                std::wstring expected;
                for (VParamPlan const& entry : entries) {
                    if (expected.empty() && entry.name == name) {
                        expected = entry.id;
                    }
                }
                bool const isEntry = !expected.empty();
                for (VParamPlan const& root : roots) {
                    if (expected.empty()) {
                        expected = VNaiveSearch(plan, name).Below(root);
                    }
                }
                if (!isEntry && !expected.empty()) {
                    ids.push_back(expected);
                    ++nested;
                }
                for (int time = 0; time < 2; ++time) {
                    ASSERT_EQ(IdOf(view.FindParam(name, built.Layer())), expected)
                        << "seed " << seed << ", range " << range.value << ", name " << name;
                    ASSERT_EQ(IdsOf(view), ids) << "seed " << seed << ", range " << range.value << ", name " << name;
                }
            }
        }
    }
    EXPECT_GT(nested, 1000) << "the plans lead to what they are meant to compare";
}

TEST(RandomParamsTest, TheResolverAgreesWithTheViews) {
    for (std::uint32_t seed = 1; seed <= 100; ++seed) {
        VServicePlan const plan = VGenerator(seed).Make();
        VBuiltService built(plan);
        NDIAGKIT::VOpResolveSnref resolver;
        for (wchar_t const* const name : kSearchedParams) {
            for (int range = 0; range < 7; ++range) {
                auto const searchRange = static_cast<NODX201::VSearchRange>(range);
                ASSERT_EQ(resolver.ResolveOutParamIfSnref(name, built.Service(), built.Layer(), searchRange),
                          VOutParamIfView(built.Service(), searchRange).FindParam(name, built.Layer()))
                    << "seed " << seed << ", range " << range << ", name " << name;
            }
            NODX201::IInParamIf* expected = nullptr;
            VInParamIfView view(built.Service());
            for (NODX201::IInParamIf& param : view) {
                if (expected == nullptr && dynamic_cast<NODX201::VValue&>(param).GetShortName() == std::wstring(name)) {
                    expected = &param;
                }
            }
            ASSERT_EQ(resolver.ResolveInParamIfSnref(name, built.Service()), expected)
                << "seed " << seed << ", name " << name;
        }
    }
}

TEST(RandomParamsTest, InParamFindsAgreeWithALinearSearch) {
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        VServicePlan const plan = VGenerator(seed).Make();
        VBuiltService built(plan);
        VInParamIfView view(built.Service());
        std::vector<VParamPlan> const params = SourcesOf(plan, false, true, true);
        std::vector<std::wstring> ids;
        for (VParamPlan const& param : params) {
            if (param.form == VParamPlan::VForm::Value) {
                ids.push_back(param.id);
            }
        }
        ASSERT_EQ(IdsOf(view), ids) << "seed " << seed;
        for (wchar_t const* const name : kSearchedParams) {
            std::wstring expected;
            for (VParamPlan const& param : params) {
                if (expected.empty() && param.form == VParamPlan::VForm::Value && param.name == name) {
                    expected = param.id;
                }
            }
            auto found = view.Find(name);
            ASSERT_EQ(found != view.End() ? IdOf(&*found) : L"", expected) << "seed " << seed << ", name " << name;
        }
    }
}

} // namespace
} // namespace NTest
