// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/Diff.h>

#include <algorithm>
#include <cwchar>
#include <deque>
#include <map>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <diagkit/model/Odx.h>
#include <diagkit/query/ContentDifferences.h>
#include <diagkit/query/DiffViews.h>

namespace NQuery {
namespace {

using Tag = NODX201::VOdxTagEnum;

using VLayers = std::vector<NODX201::VDiagLayer*>;

VLayers LayersIn(NMemory::VDatabase& database) {
    VLayers layers;
    for (NODX201::VDiagLayerContainer& container : database.GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            layers.push_back(&layer);
        }
    }
    return layers;
}

/// A layer of each database that are compared with each other; one of them may be null.
struct VLayerPair {
    NODX201::VDiagLayer* old = nullptr;
    NODX201::VDiagLayer* now = nullptr;
};

/// The n-th layer of a short name and kind is compared with the n-th in the other database.
std::vector<VLayerPair> Paired(VLayers const& old, VLayers const& now) {
    using VKey = std::pair<std::wstring_view, NODX201::VOdxTagEnum>;
    std::map<VKey, std::deque<NODX201::VDiagLayer*>> waiting;
    for (NODX201::VDiagLayer* const layer : old) {
        waiting[{layer->GetShortName(), layer->GetOdxTag()}].push_back(layer);
    }
    std::vector<VLayerPair> pairs;
    for (NODX201::VDiagLayer* const layer : now) {
        auto& of = waiting[{layer->GetShortName(), layer->GetOdxTag()}];
        pairs.push_back({of.empty() ? nullptr : of.front(), layer});
        if (!of.empty()) {
            of.pop_front();
        }
    }
    std::unordered_set<NODX201::VDiagLayer*> gone;
    for (auto const& [key, layers] : waiting) {
        gone.insert(layers.begin(), layers.end());
    }
    for (NODX201::VDiagLayer* const layer : old) {
        if (gone.count(layer) != 0) {
            pairs.push_back({layer, nullptr});
        }
    }
    return pairs;
}

/// One side of a comparison.
struct VSide {
    VDiffViewMaker maker;
    std::unordered_set<NODX201::VOdxElement const*> missing; ///< references without a target
};

/// A layer with its visible elements, while it is being examined.
struct VSeenLayer {
    VSeenLayer(NODX201::VDiagLayer& seen, VSide& of) : layer(seen), side(of), views(of.maker.ViewsOf(seen)) {}
    VSeenLayer(VSeenLayer const&) = delete;
    VSeenLayer& operator=(VSeenLayer const&) = delete;

    NODX201::VDiagLayer& layer;
    VSide& side;
    VLayerViews views;
    VSeenFrom from{layer, views.dops};
};

class VComparison {
public:
    explicit VComparison(VDiffOptions const& options) : m_options(options) {}

    void Match(std::vector<VLayerPair> pairs) {
        m_pairs = std::move(pairs);
        for (VLayerPair const& pair : m_pairs) {
            NoteMatch(pair);
        }
    }

    /// Finds equal elements with other names. Parents first, since the owner of an entry counts in the views of layers
    /// that inherit from them.
    void MatchRenamed();

    VDiff Compare();

private:
    using VEntries = std::vector<VDiffEntry>;
    struct VMatch {
        VDiffEntry const* old;
        VDiffEntry const* now;
    };

    void NoteMatch(VLayerPair const& pair);
    void MatchRenamed(NODX201::VOdxTagEnum kind);
    bool IsWanted(VLayerPair const& pair) const;
    VHash SignatureOf(NODX201::VDiagLayer& layer, VSide& side);
    NODX201::VDiagLayer const* NowOf(NODX201::VDiagLayer const* layer) const;
    VHash OwnerOf(NODX201::VDiagLayer const* owner, NODX201::VDiagLayer const& seenFrom) const;
    VContentHashes::VKnown ContentOf(VDiffEntry const& entry, VSeenLayer& seen);

    VLayerChange ComparePair(VLayerPair const& pair);
    std::vector<VChange> CompareViews(VDiffView view, VSeenLayer& old, VSeenLayer& now);
    std::vector<VMatch> MatchNames(VEntries const& old, VEntries const& now) const;
    void MatchContents(std::vector<VMatch>& matches, VSeenLayer& old, VSeenLayer& now);
    std::optional<VChange> CompareEntries(VDiffView view, VMatch const& match, VSeenLayer& old, VSeenLayer& now);

    VDiffOptions const& m_options;
    VFacets m_facets{m_options};
    VContentHashes m_hashes{m_facets, m_options};
    VContentDifferences m_differences{m_facets, m_hashes, m_options};
    VSide m_old;
    VSide m_new;
    std::vector<VLayerPair> m_pairs;
    std::unordered_map<NODX201::VDiagLayer const*, NODX201::VDiagLayer const*> m_newOf; // by old layer
    std::unordered_set<NODX201::VDiagLayer const*> m_renamed;                           // old ones
};

void VComparison::NoteMatch(VLayerPair const& pair) {
    if (pair.old != nullptr && pair.now != nullptr) {
        m_newOf.insert_or_assign(pair.old, pair.now);
    }
}

bool VComparison::IsWanted(VLayerPair const& pair) const {
    auto const& layers = m_options.layers;
    return layers.empty() || std::find(layers.begin(), layers.end(), pair.old) != layers.end() ||
           std::find(layers.begin(), layers.end(), pair.now) != layers.end();
}

/// The new layer of a pair.
NODX201::VDiagLayer const* VComparison::NowOf(NODX201::VDiagLayer const* layer) const {
    auto const found = m_newOf.find(layer);
    return found != m_newOf.end() ? found->second : layer;
}

/// The owner of an entry, equal for both databases.
VHash VComparison::OwnerOf(NODX201::VDiagLayer const* owner, NODX201::VDiagLayer const& seenFrom) const {
    NODX201::VDiagLayer const* const known = NowOf(owner);
    return known == NowOf(&seenFrom) ? HashOf(L"itself") : HashOf(reinterpret_cast<std::uintptr_t>(known));
}

VContentHashes::VKnown VComparison::ContentOf(VDiffEntry const& entry, VSeenLayer& seen) {
    m_hashes.SetMissing(&seen.side.missing);
    VContentHashes::VKnown const known = m_hashes.Of(*entry.element, seen.from);
    m_hashes.SetMissing(nullptr);
    return known;
}

/// Equal for layers that do not differ in any view.
VHash VComparison::SignatureOf(NODX201::VDiagLayer& layer, VSide& side) {
    VSeenLayer seen(layer, side);
    VHash signature;
    for (VDiffView const view : kDiffViews) {
        std::unordered_map<VHash, std::uint64_t, VHashOfHash> counts;
        for (VDiffEntry const& entry : seen.views.views[static_cast<std::size_t>(view)]) {
            VHash hash = Mixed(HashOf(static_cast<std::uint64_t>(view)), HashOf(entry.shortName));
            hash = Mixed(hash, HashOf(entry.protocol));
            hash = Mixed(hash, HashOf(++counts[hash]));
            if (view != VDiffView::Protocols) {
                VContentHashes::VKnown const known = ContentOf(entry, seen);
                hash = Mixed(Mixed(hash, known.hash), OwnerOf(known.owner, layer));
            }
            signature.Add(hash);
        }
    }
    return signature;
}

void VComparison::MatchRenamed() {
    for (Tag const kind :
         {Tag::EcuSharedData, Tag::Protocol, Tag::FunctionalGroup, Tag::BaseVariant, Tag::EcuVariant}) {
        MatchRenamed(kind);
    }
    auto const isTaken = [this](VLayerPair const& pair) {
        return pair.now == nullptr && m_renamed.count(pair.old) != 0;
    };
    m_pairs.erase(std::remove_if(m_pairs.begin(), m_pairs.end(), isTaken), m_pairs.end());
}

void VComparison::MatchRenamed(NODX201::VOdxTagEnum kind) {
    VLayers gone;
    std::vector<VLayerPair*> added;
    for (VLayerPair& pair : m_pairs) {
        if (pair.now == nullptr && pair.old->GetOdxTag() == kind) {
            gone.push_back(pair.old);
        } else if (pair.old == nullptr && pair.now->GetOdxTag() == kind) {
            added.push_back(&pair);
        }
    }
    if (gone.empty() || added.empty()) {
        return;
    }
    std::unordered_map<VHash, std::deque<NODX201::VDiagLayer*>, VHashOfHash> bySignature;
    for (NODX201::VDiagLayer* const layer : gone) {
        bySignature[SignatureOf(*layer, m_old)].push_back(layer);
    }
    for (VLayerPair* const pair : added) {
        auto& candidates = bySignature[SignatureOf(*pair->now, m_new)];
        if (!candidates.empty()) {
            pair->old = candidates.front();
            candidates.pop_front();
            m_renamed.insert(pair->old);
            NoteMatch(*pair);
        }
    }
}

VDiff VComparison::Compare() {
    VDiff diff;
    std::uint64_t done = 0;
    for (VLayerPair const& pair : m_pairs) {
        if (IsWanted(pair)) {
            VLayerChange change = ComparePair(pair);
            if (change.kind != VChangeKind::Changed || !change.views.empty()) {
                diff.layers.push_back(std::move(change));
            }
        }
        ++done;
        if (m_options.progress) {
            m_options.progress(done, m_pairs.size());
        }
    }
    diff.unresolvedOld = m_old.missing.size();
    diff.unresolvedNew = m_new.missing.size();
    diff.tooDeep = m_hashes.TooDeep();
    diff.cutDetails = m_differences.CutDetails();
    return diff;
}

VLayerChange VComparison::ComparePair(VLayerPair const& pair) {
    if (pair.old == nullptr || pair.now == nullptr) {
        return {pair.old == nullptr ? VChangeKind::Added : VChangeKind::Removed, pair.old, pair.now, {}};
    }
    VLayerChange change{VChangeKind::Changed, pair.old, pair.now, {}};
    if (m_renamed.count(pair.old) != 0) {
        change.kind = VChangeKind::Renamed;
        return change;
    }
    VSeenLayer old(*pair.old, m_old);
    VSeenLayer now(*pair.now, m_new);
    for (VDiffView const view : kDiffViews) {
        if (std::vector<VChange> changes = CompareViews(view, old, now); !changes.empty()) {
            change.views.push_back({view, std::move(changes)});
        }
    }
    return change;
}

std::vector<VChange> VComparison::CompareViews(VDiffView view, VSeenLayer& old, VSeenLayer& now) {
    auto const index = static_cast<std::size_t>(view);
    std::vector<VMatch> matches = MatchNames(old.views.views[index], now.views.views[index]);
    if (view != VDiffView::Protocols && view != VDiffView::Comparams) {
        MatchContents(matches, old, now);
    }
    std::vector<VChange> changes;
    for (VMatch const& match : matches) {
        if (std::optional<VChange> change = CompareEntries(view, match, old, now); change.has_value()) {
            changes.push_back(std::move(*change));
        }
    }
    return changes;
}

/// The n-th entry of a name is compared with the n-th in the other view: first those of the new view, then removed
/// ones.
std::vector<VComparison::VMatch> VComparison::MatchNames(VEntries const& old, VEntries const& now) const {
    std::vector<VMatch> matches;
    matches.reserve(now.size());
    bool const areAlike = std::equal(old.begin(), old.end(), now.begin(), now.end(),
                                     [](VDiffEntry const& a, VDiffEntry const& b) { return a.IsNamedAs(b); });
    if (areAlike) {
        for (std::size_t i = 0; i < now.size(); ++i) {
            matches.push_back({&old[i], &now[i]});
        }
        return matches;
    }
    using VKey = std::pair<std::wstring_view, std::wstring_view>;
    struct VHashOfKey {
        std::size_t operator()(VKey const& key) const {
            std::hash<std::wstring_view> const hash;
            return hash(key.first) * 31 + hash(key.second);
        }
    };
    struct VOfName {
        std::vector<std::size_t> places;
        std::size_t next = 0;
    };
    std::unordered_map<VKey, VOfName, VHashOfKey> byName;
    for (std::size_t i = 0; i < old.size(); ++i) {
        byName[{old[i].shortName, old[i].protocol}].places.push_back(i);
    }
    std::vector<bool> isMatched(old.size());
    for (VDiffEntry const& entry : now) {
        auto const found = byName.find({entry.shortName, entry.protocol});
        if (found == byName.end() || found->second.next == found->second.places.size()) {
            matches.push_back({nullptr, &entry});
            continue;
        }
        std::size_t const place = found->second.places[found->second.next++];
        isMatched[place] = true;
        matches.push_back({&old[place], &entry});
    }
    for (std::size_t i = 0; i < old.size(); ++i) {
        if (!isMatched[i]) {
            matches.push_back({&old[i], nullptr});
        }
    }
    return matches;
}

/// An added and a removed entry of equal content are one that was renamed.
void VComparison::MatchContents(std::vector<VMatch>& matches, VSeenLayer& old, VSeenLayer& now) {
    std::unordered_map<VHash, std::deque<VMatch*>, VHashOfHash> gone;
    for (VMatch& match : matches) {
        if (match.now == nullptr) {
            gone[ContentOf(*match.old, old).hash].push_back(&match);
        }
    }
    if (gone.empty()) {
        return;
    }
    for (VMatch& match : matches) {
        if (match.old != nullptr || match.now == nullptr) {
            continue;
        }
        auto const found = gone.find(ContentOf(*match.now, now).hash);
        if (found != gone.end() && !found->second.empty()) {
            std::swap(match.old, found->second.front()->old);
            found->second.pop_front();
        }
    }
}

std::optional<VChange> VComparison::CompareEntries(VDiffView view, VMatch const& match, VSeenLayer& old,
                                                   VSeenLayer& now) {
    if (match.old == nullptr && match.now == nullptr) {
        return std::nullopt; // renamed, and already reported
    }
    if (match.old == nullptr) {
        return VChange{VChangeKind::Added, nullptr, match.now->element, match.now->shortName, nullptr, nullptr};
    }
    if (match.now == nullptr) {
        return VChange{VChangeKind::Removed, match.old->element, nullptr, match.old->shortName, nullptr, nullptr};
    }
    VChange change{
        VChangeKind::Changed, match.old->element, match.now->element, match.now->shortName, nullptr, nullptr};
    if (!match.old->IsNamedAs(*match.now)) {
        change.kind = VChangeKind::Renamed;
        change.was = match.old->shortName;
        return change;
    }
    if (view == VDiffView::Protocols) {
        return std::nullopt; // these are layers, which are compared as such
    }
    VContentHashes::VKnown const oldContent = ContentOf(*match.old, old);
    VContentHashes::VKnown const newContent = ContentOf(*match.now, now);
    if (oldContent.hash != newContent.hash) {
        change.details = m_differences.Between({match.old->element, &old.from}, {match.now->element, &now.from});
    }
    if (change.details != nullptr) {
        return change;
    }
    change.kind = VChangeKind::Moved;
    bool const isAtHome = OwnerOf(oldContent.owner, old.layer) == OwnerOf(newContent.owner, now.layer);
    return isAtHome ? std::nullopt : std::optional<VChange>(change);
}

} // namespace

char const* NameOf(VDiffView view) {
    static constexpr std::array kNames = {"diag-comms", "diag-variables", "global-neg-responses",
                                          "dops",       "protocols",      "comparams"};
    return kNames[static_cast<std::size_t>(view)];
}

VDiff DiffDatabases(NMemory::VDatabase& oldDatabase, NMemory::VDatabase& newDatabase, VDiffOptions const& options) {
    VComparison comparison(options);
    comparison.Match(Paired(LayersIn(oldDatabase), LayersIn(newDatabase)));
    comparison.MatchRenamed();
    return comparison.Compare();
}

VDiff DiffLayers(NODX201::VDiagLayer& oldLayer, NODX201::VDiagLayer& newLayer, VDiffOptions const& options) {
    VComparison comparison(options);
    comparison.Match({{&oldLayer, &newLayer}});
    return comparison.Compare();
}

} // namespace NQuery
