// SPDX-License-Identifier: Apache-2.0

// Every promise about collections, broken on purpose.

#include "BrokenModel.h"

namespace NTest {
namespace {

using NOwnModel::Tag;
using NOwnModel::VOwning;

class VBrokenCollections : public VBrokenModel {
protected:
    /// Adds a layer of a class that breaks the promise.
    template <class Layer>
    Layer& AddLayer() {
        NOwnModel::VOrigin origin = Origin(Tag::EcuSharedData);
        origin.owner = &Container().DiagLayerCollection();
        return Container().DiagLayerCollection().Add(std::make_unique<Layer>(origin));
    }
};

struct VMakingLayer : NOwnModel::VEcuSharedDataLayer {
    using VEcuSharedDataLayer::VEcuSharedDataLayer;
    VOwning<NODX201::VRequestCollection>& RequestCollection() override { return m_made.emplace_back(); }
    std::deque<VOwning<NODX201::VRequestCollection>> m_made;
};
TEST_F(VBrokenCollections, CollectionIsOneObject) {
    AddLayer<VMakingLayer>();
    EXPECT_EQ(Lines(Check()), "collection-is-one-object: C/X RequestCollection: expected one object, found two\n");
}

struct VGrowingLayer : NOwnModel::VEcuSharedDataLayer {
    explicit VGrowingLayer(NOwnModel::VOrigin const& origin) : VEcuSharedDataLayer(origin) { m_row.tag = Tag::Request; }
    VOwning<NODX201::VRequestCollection>& RequestCollection() override {
        auto& requests = VEcuSharedDataLayer::RequestCollection();
        requests.Add(std::make_unique<NOwnModel::VMessage<NODX201::VRequest>>(Inside(m_row)));
        return requests;
    }
    NOwnModel::VRow m_row;
};
TEST_F(VBrokenCollections, CollectionKeepsEntries) {
    AddLayer<VGrowingLayer>();
    EXPECT_EQ(Found(), "collection-keeps-entries");
}

struct VReversingLayer : NOwnModel::VEcuSharedDataLayer {
    using VEcuSharedDataLayer::VEcuSharedDataLayer;
    struct VRequests : VOwning<NODX201::VRequestCollection> {
        void Reverse() { m_elements.reverse(); }
    };
    VOwning<NODX201::VRequestCollection>& RequestCollection() override {
        m_requests.Reverse();
        return m_requests;
    }
    VRequests m_requests;
};
TEST_F(VBrokenCollections, CollectionKeepsOrder) {
    auto& layer = AddLayer<VReversingLayer>();
    for (wchar_t const* const name : {L"A", L"B"}) {
        NOwnModel::VOrigin origin = Origin(Tag::Request, name);
        origin.owner = &layer;
        layer.m_requests.Add(std::make_unique<NOwnModel::VMessage<NODX201::VRequest>>(origin));
    }
    EXPECT_EQ(Found(), "collection-keeps-entries");
}

struct VNullLayer : NOwnModel::VEcuSharedDataLayer {
    using VEcuSharedDataLayer::VEcuSharedDataLayer;
    struct VRequests : VOwning<NODX201::VRequestCollection> {
        VRequests() { m_elements.push_back(nullptr); }
    };
    VOwning<NODX201::VRequestCollection>& RequestCollection() override { return m_requests; }
    VRequests m_requests;
};
TEST_F(VBrokenCollections, CollectionHasNoNull) {
    AddLayer<VNullLayer>();
    EXPECT_EQ(Found(), "collection-has-no-null");
}

struct VDenyingLayer : NOwnModel::VEcuSharedDataLayer {
    using VEcuSharedDataLayer::VEcuSharedDataLayer;
    bool HasDiagCommProxyCollection() const override { return false; }
};
TEST_F(VBrokenCollections, AbsentCollectionIsEmpty) {
    auto& layer = AddLayer<VDenyingLayer>();
    EXPECT_EQ(Found(), "");
    NOwnModel::VOrigin origin = Origin(Tag::DiagService);
    origin.owner = &layer;
    layer.DiagCommProxyCollection().Add(std::make_unique<NOwnModel::VService>(origin));
    EXPECT_EQ(Found(), "absent-collection-is-empty");
}

struct VNoElement : NODX201::IDiagCommProxy {
    virtual ~VNoElement() = default;
    bool IsDiagService() const override { return false; }
    bool IsSingleEcuJob() const override { return true; }
    bool IsDiagCommLink() const override { return false; }
};
struct VProxyLayer : NOwnModel::VEcuSharedDataLayer {
    using VEcuSharedDataLayer::VEcuSharedDataLayer;
    struct VProxies : VOwning<NODX201::VDiagCommProxyCollection> {
        VProxies() { m_elements.push_back(&m_proxy); }
        VNoElement m_proxy;
    };
    bool HasDiagCommProxyCollection() const override { return true; }
    VOwning<NODX201::VDiagCommProxyCollection>& DiagCommProxyCollection() override { return m_proxies; }
    VProxies m_proxies;
};
TEST_F(VBrokenCollections, EntryThatIsNoElementIsNoAlternative) {
    AddLayer<VProxyLayer>();
    EXPECT_EQ(
        Lines(Check()),
        "alternative-is-castable: C/X DiagCommProxyCollection 1: expected what IsSingleEcuJob says, found no such "
        "class\n"
        "alternative-is-castable: C/X DiagCommProxyCollection 1: expected an element, found something else\n");
}

} // namespace
} // namespace NTest
