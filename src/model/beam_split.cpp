// SPDX-License-Identifier: Apache-2.0
#include "model/beam_split.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace ostrel::model {

namespace {

bool has_node(const xFemData& beam, std::int32_t node) {
  return node >= 0 && static_cast<std::size_t>(node) < beam.nodes.size();
}

double depth_of(const xFemData& beam, std::int32_t node) {
  return beam.nodes[static_cast<std::size_t>(node)].y;
}

// Raises every key from `first` on by one.
void shift_keys(std::int32_t first, std::map<std::int32_t, double>& entries) {
  std::map<std::int32_t, double> shifted;
  for (const auto& [key, value] : entries) {
    shifted.emplace_hint(shifted.end(), key < first ? key : key + 1, value);
  }
  entries.swap(shifted);
}

void insert_level(double depth, std::vector<xSoilLayer>& layers) {
  for (xSoilLayer& layer : layers) {
    const auto below = std::find_if(layer.levels.begin(), layer.levels.end(),
                                    [depth](double level) { return level >= depth; });
    if (below == layer.levels.end()) continue;
    layer.levels.insert(below, depth);
    return;
  }
}

}  // namespace

BeamPlace find_place(const xFemData& beam, double depth, double tolerance) {
  BeamPlace place;
  for (std::size_t e = 0; e < beam.elements.size(); ++e) {
    const std::int32_t start = beam.elements[e].getStartNode();
    const std::int32_t end = beam.elements[e].getEndNode();
    if (!has_node(beam, start) || !has_node(beam, end)) continue;
    const double top = depth_of(beam, start);
    const double bottom = depth_of(beam, end);
    if (!(depth >= top - tolerance && bottom + tolerance >= depth)) continue;
    place.element = static_cast<std::int32_t>(e);
    if (std::abs(top - depth) <= tolerance) place.node = start;
    if (std::abs(bottom - depth) <= tolerance) place.node = end;
    return place;
  }
  return place;
}

void split_element(std::int32_t element, double depth, xFemData& beam,
                   std::vector<xSoilLayer>& layers) {
  if (element < 0 || static_cast<std::size_t>(element) >= beam.elements.size()) return;
  const auto first = beam.elements.begin() + element;
  const std::int32_t start = first->getStartNode();
  if (!has_node(beam, start)) return;

  beam.nodes.insert(beam.nodes.begin() + start + 1, xPoint2d(0.0, depth));
  const xElemData half = *first;  // with the length of the whole
  beam.elements.insert(first + 1, half);
  insert_level(depth, layers);

  std::int32_t node = start;
  for (auto below = beam.elements.begin() + element; below != beam.elements.end(); ++below) {
    below->setStartNode(node);
    below->setEndNode(++node);
  }
  for (auto* entries : {&beam.constrDof0, &beam.constrDof1, &beam.constrDof2, &beam.springDof0,
                        &beam.springDof1, &beam.springDof2}) {
    shift_keys(start + 1, *entries);
  }
}

std::int32_t find_or_make_node(double depth, double tolerance, xFemData& beam,
                               std::vector<xSoilLayer>& layers) {
  const BeamPlace place = find_place(beam, depth, tolerance);
  if (place.node != -1 || place.element == -1) return place.node;
  split_element(place.element, depth, beam, layers);
  return beam.elements[static_cast<std::size_t>(place.element)].getEndNode();
}

}  // namespace ostrel::model
