// SPDX-License-Identifier: Apache-2.0
#include "geos_geometry.h"

#include <cstddef>
#include <utility>

namespace sorrel {

namespace {

class Context {
public:
  Context() = default;
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;
  ~Context() {
    if (handle_ != nullptr) GEOS_finish_r(handle_);
  }
  GEOSContextHandle_t handle() const { return handle_; }

private:
  GEOSContextHandle_t handle_ = GEOS_init_r();
};

struct SequenceDeleter {
  void operator()(GEOSCoordSequence* sequence) const {
    GEOSCoordSeq_destroy_r(geos_context(), sequence);
  }
};
using Sequence = std::unique_ptr<GEOSCoordSequence, SequenceDeleter>;

struct RepairDeleter {
  void operator()(GEOSMakeValidParams* repair) const {
    GEOSMakeValidParams_destroy_r(geos_context(), repair);
  }
};
using Repair = std::unique_ptr<GEOSMakeValidParams, RepairDeleter>;

/// The closed sequence of an outline; null if GEOS fails.
Sequence closed_sequence(const Outline& outline) {
  GEOSContextHandle_t geos = geos_context();
  const auto size = static_cast<unsigned int>(outline.size());
  Sequence sequence(GEOSCoordSeq_create_r(geos, size + 1, 2));
  if (!sequence) return nullptr;
  for (unsigned int i = 0; i <= size; ++i) {
    const Vertex each = outline[i < size ? i : 0];
    if (GEOSCoordSeq_setXY_r(geos, sequence.get(), i, each.x, each.y) == 0) return nullptr;
  }
  return sequence;
}

}  // namespace

GEOSContextHandle_t geos_context() {
  thread_local const Context context;
  return context.handle();
}

Geometry polygon_geometry(const Outline& outline) {
  GEOSContextHandle_t geos = geos_context();
  Sequence sequence = closed_sequence(outline);
  if (!sequence) return nullptr;
  Geometry ring(GEOSGeom_createLinearRing_r(geos, sequence.release()));
  if (!ring) return nullptr;
  return Geometry(GEOSGeom_createPolygon_r(geos, ring.release(), nullptr, 0));
}

bool is_simple(const GEOSGeometry& polygon) {
  return GEOSisValid_r(geos_context(), &polygon) == 1;
}

bool runs_counter_clockwise(const Outline& outline) {
  const Sequence sequence = closed_sequence(outline);
  char answer = 0;
  return sequence && GEOSCoordSeq_isCCW_r(geos_context(), sequence.get(), &answer) == 1
      && answer == 1;
}

Geometry covered_ground(const Outline& outline) {
  GEOSContextHandle_t geos = geos_context();
  Geometry polygon = polygon_geometry(outline);
  if (!polygon || is_simple(*polygon)) return polygon;
  // The other method of repair takes time with the fourth power of the number of crossings, and
  // makes a void of what is wound round twice.
  const Repair repair(GEOSMakeValidParams_create_r(geos));
  if (!repair) return nullptr;
  GEOSMakeValidParams_setMethod_r(geos, repair.get(), GEOS_MAKE_VALID_STRUCTURE);
  GEOSMakeValidParams_setKeepCollapsed_r(geos, repair.get(), 0);
  return Geometry(GEOSMakeValidWithParams_r(geos, polygon.get(), repair.get()));
}

Geometry covered_together(std::vector<Geometry> geometries) {
  if (geometries.empty()) return nullptr;
  if (geometries.size() == 1) return std::move(geometries.front());
  std::vector<GEOSGeometry*> parts;
  parts.reserve(geometries.size());
  for (Geometry& each : geometries) {
    parts.push_back(each.release());
  }
  GEOSContextHandle_t geos = geos_context();
  const Geometry collection(GEOSGeom_createCollection_r(geos, GEOS_GEOMETRYCOLLECTION, parts.data(),
                                                        static_cast<unsigned int>(parts.size())));
  if (!collection) return nullptr;
  return Geometry(GEOSUnaryUnion_r(geos, collection.get()));
}

Outline outline_of_ring(const GEOSGeometry& ring) {
  GEOSContextHandle_t geos = geos_context();
  Outline outline;
  const GEOSCoordSequence* sequence = GEOSGeom_getCoordSeq_r(geos, &ring);
  unsigned int size = 0;
  if (sequence == nullptr || GEOSCoordSeq_getSize_r(geos, sequence, &size) == 0) return outline;
  outline.reserve(size);
  for (unsigned int i = 0; i < size; ++i) {
    Vertex vertex;
    if (GEOSCoordSeq_getXY_r(geos, sequence, i, &vertex.x, &vertex.y) == 0) return {};
    append_distinct(outline, vertex);
  }
  drop_closing(outline);
  return outline;
}

}  // namespace sorrel
