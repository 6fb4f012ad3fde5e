// SPDX-License-Identifier: Apache-2.0

// References to an ID that many elements have: each finds the one given by the order of places, and the time for each
// does not grow with their number.

#include <random>

#include <gtest/gtest.h>

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Layers.h>

namespace NTest {
namespace {

using NMemory::VReference;

constexpr wchar_t const* kNames[] = {L"A", L"B", L"C"};

/// A random database in which elements of several classes have the ID "X", and a search that follows the rule directly.
class VRandomIds {
public:
    explicit VRandomIds(std::uint32_t seed) : m_random(seed) {
        for (int number = 0; number < 3; ++number) {
            m_specs.push_back(&m_database.AddMultipleEcuJobSpec(Name()));
            NMemory::VMemDiagLayerContainer& container = m_database.AddDiagLayerContainer(Name());
            for (std::uint32_t count = 1 + Below(3); count > 0; --count) {
                m_layers.push_back({&container.AddBaseVariant(Name()), &container});
                m_layers.back().layer->MakeDiagDataDictionarySpec();
            }
        }
        for (std::uint32_t count = Below(60); count > 0; --count) {
            AddX();
        }
        for (VLayer const& from : m_layers) {
            for (std::uint32_t count = Below(3); count > 0; --count) {
                from.layer->AddImportRef(*Any(m_layers).layer);
            }
        }
    }

    struct VLayer {
        NMemory::VMemBaseVariant* layer;
        NMemory::VMemDiagLayerContainer* container;
    };

    std::vector<VLayer> const& Layers() const { return m_layers; }

    NODX201::VReferencable* Found(VLayer const& from, NMemory::VExpect expect, std::wstring const& docref,
                                  std::wstring const& doctype) {
        NMemory::VPart texts(m_database);
        NMemory::VMemOdxLink const link(
            NMemory::StoredIn(texts, VReference::ById(L"X", docref.c_str(), doctype.c_str())));
        return NMemory::ResolveId(m_database, link, *from.layer, expect);
    }

    NODX201::VReferencable* Expected(VLayer const& from, NMemory::VExpect expect, std::wstring const& docref,
                                     std::wstring const& doctype) {
        NODX201::VReferencable* found = nullptr;
        auto const then = [&](auto isThere) {
            for (VX const& x : m_all) {
                if (found == nullptr && expect(*x.element) && isThere(x)) {
                    found = x.element;
                }
            }
        };
        auto const isNamed = [&docref](NODX201::VOdxElement const* place) {
            return place != nullptr && place->GetShortName() == docref;
        };
        if (docref.empty()) {
            then([&](VX const& x) { return x.layer == from.layer; });
            then([&](VX const& x) { return x.document == from.container; });
            for (NMemory::VMemImportRef& import : from.layer->ImportRefCollection()) {
                then([&](VX const& x) { return import.HasDiagLayer() && x.layer == &import.GetDiagLayer(); });
            }
        } else {
            then([&](VX const& x) { return doctype == L"LAYER" && isNamed(x.layer); });
            then([&](VX const& x) { return doctype == L"CONTAINER" && x.layer != nullptr && isNamed(x.document); });
            then([&](VX const& x) {
                return doctype == L"MULTIPLE-ECU-JOB-SPEC" && x.layer == nullptr && isNamed(x.document);
            });
            then([&](VX const& x) { return isNamed(x.layer) || isNamed(x.document); });
        }
        then([](VX const&) { return true; });
        return found;
    }

private:
    struct VX {
        NODX201::VReferencable* element;
        NODX201::VOdxElement const* layer;
        NODX201::VOdxElement const* document;
    };

    std::uint32_t Below(std::size_t limit) { return static_cast<std::uint32_t>(m_random() % limit); }
    wchar_t const* Name() { return kNames[Below(3)]; }

    template <class Element>
    Element const& Any(std::vector<Element> const& elements) {
        return elements[Below(elements.size())];
    }

    template <class Element>
    void Take(Element& element, NODX201::VOdxElement const* layer, NODX201::VOdxElement const* document) {
        element.SetId(L"X");
        m_all.push_back({&element, layer, document});
    }

    void AddX() {
        VLayer const& place = Any(m_layers);
        switch (Below(4)) {
        case 0: {
            NMemory::VMemMultipleEcuJobSpec& spec = *Any(m_specs);
            return Take(spec.AddMultipleEcuJob(L"Job"), nullptr, &spec);
        }
        case 1:
            return Take(place.layer->GetDiagDataDictionarySpec().AddDataObjectProp(L"Dop"), place.layer,
                        place.container);
        case 2:
            return Take(place.layer->AddSingleEcuJob(L"SingleJob"), place.layer, place.container);
        default:
            return Take(place.layer->AddDiagService(L"Service"), place.layer, place.container);
        }
    }

    std::mt19937 m_random;
    NMemory::VDatabase m_database;
    std::vector<VLayer> m_layers;
    std::vector<NMemory::VMemMultipleEcuJobSpec*> m_specs;
    std::vector<VX> m_all; // in the order in which they got the ID
};

TEST(RepeatedIdsTest, EveryReferenceFindsTheElementThatTheOrderOfPlacesGives) {
    static constexpr NMemory::VExpect kClasses[] = {
        &NMemory::IsOfClass<NODX201::VDiagService>, &NMemory::IsOfClass<NODX201::VMultipleEcuJob>,
        &NMemory::IsOfClass<NODX201::VDopBase>, &NMemory::IsOfClass<NODX201::VDiagComm>,
        &NMemory::IsOfClass<NODX201::VComparam>};
    int found = 0;
    for (std::uint32_t seed = 1; seed <= 60; ++seed) {
        VRandomIds ids(seed);
        for (VRandomIds::VLayer const& from : ids.Layers()) {
            for (std::size_t number = 0; number < std::size(kClasses); ++number) {
                for (wchar_t const* const docref : {L"", L"A", L"B", L"C", L"Gone"}) {
                    for (wchar_t const* const doctype :
                         {L"", L"LAYER", L"CONTAINER", L"MULTIPLE-ECU-JOB-SPEC", L"FLASH", L"Gone"}) {
                        NODX201::VReferencable* const expected = ids.Expected(from, kClasses[number], docref, doctype);
                        ASSERT_EQ(ids.Found(from, kClasses[number], docref, doctype), expected)
                            << "seed " << seed << ", class " << number << ", DOCREF " << std::wstring(docref)
                            << ", DOCTYPE " << std::wstring(doctype);
                        found += expected != nullptr ? 1 : 0;
                    }
                }
            }
        }
    }
    EXPECT_GT(found, 10000);
}

int s_asked = 0;

template <class Target>
bool CountedIsOfClass(NODX201::VReferencable& element) {
    ++s_asked;
    return NMemory::IsOfClass<Target>(element);
}

constexpr int kMany = 2000;

/// Resolves a reference to "X" from every layer; returns how often the class of an element was checked.
int AskedFrom(NMemory::VDatabase& database, NMemory::VExpect expect,
              std::vector<NMemory::VMemBaseVariant*> const& layers, bool isThere) {
    s_asked = 0;
    for (NMemory::VMemBaseVariant* const layer : layers) {
        NMemory::VPart texts(database);
        NMemory::VMemOdxLink const link(NMemory::StoredIn(texts, VReference::ById(L"X")));
        EXPECT_EQ(NMemory::ResolveId(database, link, *layer, expect) != nullptr, isThere);
    }
    return s_asked;
}

TEST(RepeatedIdsTest, ManyReferencesToAnIdThatEachLayerHasAreLinear) {
    NMemory::VDatabase database;
    NMemory::VMemDiagLayerContainer& container = database.AddDiagLayerContainer(L"Container");
    std::vector<NMemory::VMemBaseVariant*> layers;
    for (int number = 0; number < kMany; ++number) {
        layers.push_back(&container.AddBaseVariant(L"Layer"));
        layers.back()->AddDiagService(L"Service").SetId(L"X");
    }
    EXPECT_LE(AskedFrom(database, &CountedIsOfClass<NODX201::VDiagService>, layers, true), 2 * kMany);
    EXPECT_LE(AskedFrom(database, &CountedIsOfClass<NODX201::VDopBase>, layers, false), 4 * kMany);
}

TEST(RepeatedIdsTest, ManyReferencesToAnIdThatOneLayerHasAreLinear) {
    NMemory::VDatabase database;
    NMemory::VMemDiagLayerContainer& container = database.AddDiagLayerContainer(L"Container");
    NMemory::VMemBaseVariant& holder = container.AddBaseVariant(L"Holder");
    std::vector<NMemory::VMemBaseVariant*> layers;
    for (int number = 0; number < kMany; ++number) {
        layers.push_back(&container.AddBaseVariant(L"Layer"));
        holder.AddDiagService(L"Service").SetId(L"X");
    }
    EXPECT_LE(AskedFrom(database, &CountedIsOfClass<NODX201::VDiagService>, layers, true), 4 * kMany);
    EXPECT_LE(AskedFrom(database, &CountedIsOfClass<NODX201::VDopBase>, layers, false), 4 * kMany);
}

TEST(RepeatedIdsTest, AnswersFollowWhatIsAddedRenamedAndRemovedAmongMany) {
    NMemory::VDatabase database;
    NMemory::VMemDiagLayerContainer& container = database.AddDiagLayerContainer(L"Container");
    NMemory::VMemBaseVariant& from = container.AddBaseVariant(L"From");
    NMemory::VMemBaseVariant& other = container.AddBaseVariant(L"Other");
    std::vector<NMemory::VMemDiagService*> services;
    for (int number = 0; number < 20; ++number) {
        services.push_back(&other.AddDiagService(L"Service"));
        services.back()->SetId(L"X");
    }
    auto const resolved = [&](wchar_t const* docref) {
        NMemory::VPart texts(database);
        NMemory::VMemOdxLink const link(NMemory::StoredIn(texts, VReference::ById(L"X", docref)));
        return NMemory::ResolveId(database, link, from, &NMemory::IsOfClass<NODX201::VDiagService>);
    };
    EXPECT_EQ(resolved(L""), services[0]);
    NMemory::VMemDiagService& own = from.AddDiagService(L"Own");
    own.SetId(L"X");
    EXPECT_EQ(resolved(L""), &own);
    EXPECT_EQ(resolved(L"Renamed"), services[0]) << "nothing bears the name, so the first of all";
    from.SetShortName(L"Renamed");
    EXPECT_EQ(resolved(L"Renamed"), &own);
    delete &own;
    delete services[0];
    EXPECT_EQ(resolved(L""), services[1]);
}

} // namespace
} // namespace NTest
