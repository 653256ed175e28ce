// SPDX-License-Identifier: Apache-2.0
#include "verification_checks.h"

#include "json_text.h"

#include <algorithm>
#include <cstddef>

namespace ostrel::host {

namespace {

class VerificationChecks {
public:
  VerificationChecks(const Project& project, const CombinationInput& combination,
                     const std::string& path, Problems& problems)
      : project_(project),
        combination_(combination),
        path_(path),
        problems_(problems),
        texts_(problems.texts()) {}

  void run() {
    if (wants(checkGlobalStability)) check_global_stability();
    if (wants(checkPiping)) check_seepage("piping");
    if (wants(checkUplift)) check_seepage("uplift");
    if (wants(checkVerticalLimitLoad) && !project_.wall.bearing) {
      refuse("vertical_bearing", Text::needs_bearing);
    }
    if (wants(checkCapBeamStructure) && !(project_.wall.cap_beam_height_m > 0.0)) {
      miss("wall.cap_beam", "cap_beam_strength");
    }
    if (wants(checkDisplacements) && !(project_.wall.head_limit_mm > 0.0)) {
      problems_.remark(child_path(path_, "checks"), std::string(texts_(Text::limits_not_given)));
    }
    for (std::size_t i = 0; i < project_.anchors.size(); ++i) {
      check_anchor(project_.anchors[i], child_path("anchors", i));
    }
    if (wants(checkAnchorPullout) && !project_.anchors.empty()) {
      want_factor(factorAnchors, "anchors", "anchor_pull_out");
    }
  }

private:
  bool wants(pCheckTypes check) const {
    const auto& checks = combination_.checks;
    return std::find(checks.begin(), checks.end(), check) != checks.end();
  }
  void refuse(const char* check, Text needed) {
    problems_.add(child_path(path_, "checks"), fmt::format("\"{}\"", check),
                  std::string(texts_(needed)));
  }
  // A number that was wrong has been told already: it is not 0 then, but NaN.
  void miss(const std::string& path, const char* check) {
    const auto& told = problems_.errors();
    const bool known = std::any_of(told.begin(), told.end(),
                                   [&](const Problem& problem) { return problem.path == path; });
    if (known) return;
    problems_.add(path, std::string(texts_(Text::missing)), texts_(Text::needed_by_check, check));
  }
  void want_factor(checkUlsFactors key, const char* name, const char* check) {
    if (combination_.resistance_factors.contains(key)) return;
    miss(child_path(child_path(path_, "resistance_factors"), name), check);
  }

  void check_global_stability() {
    if (!project_.slope) refuse("global_stability", Text::needs_slope);
    want_factor(factorGlobalStability, "global_stability", "global_stability");
    const bool no_centres = project_.slope && project_.slope->centres.empty();
    if (no_centres && problems_.empty()) {
      problems_.add(project_.ground.by_levels ? "ground.retained_width_m" : "ground",
                    std::string(texts_(Text::no_room_for_circles)),
                    std::string(texts_(Text::wider_ground)));
    }
  }

  // Without a permeability the head at the foot has no value.
  void check_seepage(const char* check) {
    if (!project_.water) refuse(check, Text::needs_water);
    for (const LayerInput& layer : project_.ground.layers) {
      if (layer.soil >= project_.soils.size()) continue;
      if (project_.soils[layer.soil].permeability_m_s > 0.0) continue;
      miss(child_path(child_path("soils", layer.soil), "permeability_m_s"), check);
    }
  }

  void check_anchor(const AnchorInput& anchor, const std::string& path) {
    const auto want = [&](double number, const char* name, const char* check) {
      if (number <= 0.0) miss(child_path(path, name), check);
    };
    if (wants(checkAnchorStructure)) {
      want(anchor.yield_strength_MPa, "yield_strength_MPa", "anchor_strength");
    }
    if (!wants(checkAnchorPullout)) return;
    want(anchor.bond_length_m, "bond_length_m", "anchor_pull_out");
    want(anchor.bond_diameter_mm, "bond_diameter_mm", "anchor_pull_out");
    if (anchor.minimum_values) {
      want(anchor.xi_4, "xi_4", "anchor_pull_out");
    } else {
      want(anchor.xi_3, "xi_3", "anchor_pull_out");
    }
  }

  const Project& project_;
  const CombinationInput& combination_;
  const std::string& path_;
  Problems& problems_;
  const Texts& texts_;
};

}  // namespace

void check_verifications(const Project& project, const CombinationInput& combination,
                         const std::string& path, Problems& problems) {
  VerificationChecks(project, combination, path, problems).run();
}

}  // namespace ostrel::host
