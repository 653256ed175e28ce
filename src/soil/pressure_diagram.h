#pragma once
/// @file  What the diagrams of soil, water and loads are made of. Room: soil
// SPDX-License-Identifier: Apache-2.0
//
// Notation. A layer is a stack of steps, each between two neighbouring levels a and b (depths).
//
//     theta  inclination of the wall's back to the vertical [rad]
//     angle  slope of the ground over the layer [rad]
//     gamma  partial factor on the pressure [-]
//     K      earth pressure coefficient [-]

#include <ostrel/layer_pressure.h>
#include <ostrel/soil_layer.h>

#include <vector>

namespace ostrel::soil {

/// True where the layer begins above `depth` [mm], by 1e-6 mm at least.
bool begins_above(const xSoilLayer& layer, double depth);

/// True where the layer ends below `depth` [mm], by 1e-6 mm at least.
bool ends_below(const xSoilLayer& layer, double depth);

/// How a sloping ground carries what lies on it down to the wall [-]; 1 for a level one.
///
///     sin(a) / sin(a + angle),  a = pi/2 - theta
double slope_ratio(double theta, double angle);

/// A diagram without points that spans the layer.
xLayerPress empty_diagram(const xSoilLayer& layer);

/// The sum of the forces of a diagram and where it acts.
struct Resultant {
  double force = 0.0;     ///< [N]
  double position = 0.0;  ///< along the diagram [mm]
};

/// The resultant of values that run straight between the points; one that is exactly 0 stands in
/// the middle between the first and the last point, and at 0 where there is none.
Resultant resultant_of(const std::vector<diag_Point>& points);

/// A quantity at the two ends of a step.
struct StepEnds {
  double top = 0.0;
  double bottom = 0.0;
};

/// The vertical effective stress along the wall, step by step from the top down.
///
/// The soil above a step is commonly written as an equivalent height of the step's own soil,
///
///     P = ratio G / g H,   bottom = (t + P) g
///
/// with H and G the height (its own P included) and the weight of the step above. H G is the stress
/// at the bottom of that step, so that
///
///     top = stress above,   bottom = t g + ratio top
///
/// This form is the same number, and holds for a weightless soil too: with kv = 1 no soil weighs
/// anything and the stress is 0, and a layer without weight hands on what lies on it.
class Overburden {
public:
  /// The stresses at the ends of the next step [N/mm²].
  ///
  /// @param thickness    t, length of the step [mm]
  /// @param unit_weight  g, effective unit weight in the step [N/mm³]
  /// @param ratio        slope ratio in the step [-]
  StepEnds add_step(double thickness, double unit_weight, double ratio);

private:
  double stress_ = 0.0;  ///< at the bottom of the last step [N/mm²]
};

/// Effective unit weight of the soil in a layer, lightened by (1 - kv) [N/mm³].
double effective_weight(const xSoilProps& soil, bool under_water, double kv);

/// Pressure of the soil on the wall, by any formula but Wood's [N/mm²].
///
///     max(0, K stress - cohesion_term) gamma
///
/// What is not a number counts as 0.
///
/// @param stress         vertical effective stress [N/mm²]
/// @param cohesion_term  2 c sqrt(K), negative for the passive side [N/mm²]
StepEnds earth_pressure(const StepEnds& stress, double K, double cohesion_term, double gamma);

/// Pressure of a soil at rest in an earthquake [N/mm²].
///
///     top     (stress gamma K + seismic) gamma
///     bottom   stress gamma K gamma + seismic
///
/// @param stress   vertical effective stress [N/mm²]
/// @param seismic  unit weight times kh times the length of the step [N/mm²]
/// @source Wood (1973), step by step along the wall
/// @oddity gamma multiplies the part at rest twice, and the seismic part once at the top and not at
/// all at the bottom. Stored results depend on it.
StepEnds wood_pressure(const StepEnds& stress, double K, double seismic, double gamma);

}  // namespace ostrel::soil
