#include "vars/ordering.hpp"

#include <algorithm>
#include <boost/graph/adjacency_list.hpp>
#include <boost/graph/depth_first_search.hpp>
#include <boost/graph/topological_sort.hpp>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include "cmd/messages/raise.hpp"
#include "options/ZexOpt.hpp"
#include "vars/references.hpp"

namespace zex_cmd {

namespace {

using Graph = boost::adjacency_list<boost::vecS, boost::vecS, boost::directedS>;

/// From a value to one that it refers to, by their indices.
using Edge = std::pair<std::size_t, std::size_t>;

/// Indices of the paths that share a short name, ascending.
using PathsByName = std::map<ustring, std::vector<std::size_t>, std::less<>>;

PathsByName pathsByName(const std::vector<ustring>& paths) {
  PathsByName result;
  for (std::size_t index = 0; index < paths.size(); ++index) result[shortName(paths[index])].push_back(index);
  return result;
}

/// The first value of that name other than the one that refers to it. Names count, not elements: an attribute of
/// `env` can hide a variable.
std::optional<std::size_t> referredTo(const PathsByName& byName, ustring_view name, std::size_t from) {
  const auto entry = byName.find(name);
  if (entry == byName.end()) return std::nullopt;
  const std::vector<std::size_t>& indices = entry->second;
  const auto other =
      std::find_if(indices.begin(), indices.end(), [&](std::size_t index) { return index != from; });
  if (other == indices.end()) return std::nullopt;
  return *other;
}

std::vector<Edge> dependencies(const ZexOpt& opt, const std::vector<ustring>& paths) {
  const PathsByName byName = pathsByName(paths);
  std::vector<Edge> edges;
  for (std::size_t index = 0; index < paths.size(); ++index) {
    const ustring value = opt.requiredValue(paths[index]);
    for (const ReferenceRange& reference : collectReferences(value, plainOnly)) {
      if (const auto target = referredTo(byName, referenceName(value, reference), index)) {
        edges.emplace_back(index, *target);
      }
    }
  }
  std::sort(edges.begin(), edges.end());
  edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
  return edges;
}

class BackEdgeDetector : public boost::dfs_visitor<> {
 public:
  explicit BackEdgeDetector(bool& seen) : seen_(&seen) {}
  void back_edge(const Graph::edge_descriptor&, const Graph&) const { *seen_ = true; }

 private:
  bool* seen_;
};

bool hasCircle(const Graph& graph) {
  bool seen = false;
  boost::depth_first_search(graph, boost::visitor(BackEdgeDetector(seen)));
  return seen;
}

/// The first edge, in order, that closes a circle. One search for each edge: only for a graph that has a circle.
Edge closingEdge(const std::vector<Edge>& edges, std::size_t vertices) {
  Graph graph(vertices);
  for (const Edge& edge : edges) {
    boost::add_edge(edge.first, edge.second, graph);
    if (hasCircle(graph)) return edge;
  }
  return edges.back();
}

/// A safety step that finds nothing to do while every path has a vertex.
void putMissingFirst(std::vector<std::size_t>& order, std::size_t count) {
  std::vector<bool> present(count);
  for (const std::size_t index : order) present[index] = true;
  for (std::size_t index = 0; index < count; ++index) {
    if (!present[index]) order.insert(order.begin(), index);
  }
}

}  // namespace

std::vector<std::size_t> orderVariables(const ZexOpt& opt, const std::vector<ustring>& paths) {
  const std::vector<Edge> edges = dependencies(opt, paths);
  const Graph graph(edges.begin(), edges.end(), paths.size());
  if (hasCircle(graph)) {
    const auto [from, to] = closingEdge(edges, paths.size());
    raiseTyped(msg::CircRef(paths[from], paths[to]));
  }

  std::vector<std::size_t> order;
  order.reserve(paths.size());
  boost::topological_sort(graph, std::back_inserter(order));
  putMissingFirst(order, paths.size());
  return order;
}

}  // namespace zex_cmd
