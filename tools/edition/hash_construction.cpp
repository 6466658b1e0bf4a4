#include "hash_construction.h"

#include <algorithm>
#include <random>
#include <utility>

namespace tivex_edition {

namespace {

// A hypergraph of three vertices an edge can be peeled with near certainty once
// it has 1.23 vertices for each edge.
constexpr std::size_t vertices_per_hundred_keys = 123;
constexpr int most_attempts = 10000;
constexpr std::uint64_t seed = 20250303;

// An edge is a key; its number is the key's index.
using edge_list = std::vector<tivex::hash_vertices>;

void draw_weights(std::mt19937_64& random, std::uint32_t vertex_count, constructed_hash& hash) {
  for (tivex::hash_weights& table : hash.weights) {
    for (auto& position : table) {
      for (std::uint32_t& weight : position) {
        weight = static_cast<std::uint32_t>(random() % vertex_count);
      }
    }
  }
}

// False when a key meets a vertex twice: its value could not be chosen freely.
bool find_edges(const std::vector<std::string>& keys, const tivex::hash_tables& tables,
                edge_list& edges) {
  edges.clear();
  for (const std::string& key : keys) {
    tivex::hash_vertices edge = {};
    if (!tivex::find_vertices(tables, key.c_str(), edge)) return false;
    const auto& [a, b, c] = edge.vertex;
    if (a == b || b == c || a == c) return false;
    edges.push_back(edge);
  }
  return true;
}

// An edge taken off the graph, with the vertex that no other edge had then.
struct peeled_edge {
  std::size_t edge;
  std::uint32_t free_vertex;
};

// Takes edges off that have a vertex to themselves until none is left; fewer
// than all come back when the graph holds a circle.
std::vector<peeled_edge> peel(const edge_list& edges, std::size_t vertex_count) {
  // The exclusive or of a vertex's edges is its last edge once it has one only.
  std::vector<std::size_t> degree(vertex_count);
  std::vector<std::size_t> edges_of(vertex_count);
  for (std::size_t edge = 0; edge < edges.size(); ++edge) {
    for (const std::uint32_t vertex : edges[edge].vertex) {
      ++degree[vertex];
      edges_of[vertex] ^= edge;
    }
  }
  std::vector<peeled_edge> order;
  const auto take_off_at = [&](std::uint32_t vertex) {
    if (degree[vertex] != 1) return;
    const std::size_t edge = edges_of[vertex];
    order.push_back({edge, vertex});
    for (const std::uint32_t touched : edges[edge].vertex) {
      --degree[touched];
      edges_of[touched] ^= edge;
    }
  };
  for (std::uint32_t vertex = 0; vertex < vertex_count; ++vertex) take_off_at(vertex);
  // The list grows while it is walked.
  for (std::size_t next = 0; next < order.size(); ++next) {  // NOLINT(modernize-loop-convert)
    for (const std::uint32_t vertex : edges[order[next].edge].vertex) take_off_at(vertex);
  }
  return order;
}

// Chooses the values from the last edge taken off to the first, so that each
// free vertex is still open and makes its edge's sum right.
void assign_values(const edge_list& edges, std::vector<peeled_edge> order, constructed_hash& hash) {
  std::reverse(order.begin(), order.end());
  for (const peeled_edge& next : order) {
    std::int64_t others = 0;
    for (const std::uint32_t vertex : edges[next.edge].vertex) {
      std::int32_t& value = hash.vertex_values[vertex];
      if (value < 0) value = 0;
      if (vertex != next.free_vertex) others += value;
    }
    const std::int64_t count = hash.key_count;
    const auto index = static_cast<std::int64_t>(next.edge);
    hash.vertex_values[next.free_vertex] =
        static_cast<std::int32_t>(((index - others) % count + count) % count);
  }
}

}  // namespace

std::unique_ptr<constructed_hash> construct_hash(const std::vector<std::string>& keys) {
  auto hash = std::make_unique<constructed_hash>();
  hash->key_count = static_cast<std::int32_t>(keys.size());
  hash->vertex_values.assign((keys.size() * vertices_per_hundred_keys + 99) / 100, -1);
  // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): the same keys make the same tables
  std::mt19937_64 random(seed);
  edge_list edges;
  for (int attempt = 0; attempt < most_attempts; ++attempt) {
    draw_weights(random, static_cast<std::uint32_t>(hash->vertex_values.size()), *hash);
    if (!find_edges(keys, hash->tables(), edges)) continue;
    std::vector<peeled_edge> order = peel(edges, hash->vertex_values.size());
    if (order.size() < edges.size()) continue;
    assign_values(edges, std::move(order), *hash);
    return hash;
  }
  return nullptr;
}

}  // namespace tivex_edition
