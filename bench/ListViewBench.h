// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>
#include <string_view>
#include <unordered_set>
#include <vector>

#include <benchmark/benchmark.h>

namespace NBench {

/// The entries of a view, as pointers in view order.
template <class View>
auto ElementsOf(View&& view) {
    std::vector<decltype(&*view.Begin())> elements;
    for (auto& element : view) {
        elements.push_back(&element);
    }
    return elements;
}

/// The minimum for building list views: for every entry of every view that the passes build, one insertion of its name
/// into a set and one addition to a list, released together at the end of each view.
template <class Element>
void BenchBareLists(benchmark::State& state, std::vector<std::vector<Element*>> const& views) {
    for (auto _ : state) {
        for (std::vector<Element*> const& elements : views) {
            std::unordered_set<std::wstring_view> names;
            std::list<Element*> list;
            for (Element* const element : elements) {
                names.insert(element->GetShortName());
                list.push_back(element);
            }
            benchmark::DoNotOptimize(list.size() + names.size());
        }
    }
}

/// Building and releasing the view of `layer`.
template <class View, class Layer>
void BenchView(benchmark::State& state, Layer& layer) {
    for (auto _ : state) {
        View view(layer);
        benchmark::DoNotOptimize(view.Count());
    }
}

} // namespace NBench
