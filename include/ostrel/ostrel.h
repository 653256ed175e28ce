#pragma once
/// @file  Every public header of the library. Technical header
// SPDX-License-Identifier: Apache-2.0
//
// Include this one header, or any of those below by itself.

// What the library is called by and what it shows.
#include "ostrel/export.h"
#include "ostrel/version.h"

// Services: messages, their language, and binary streams.
#include "ostrel/error.h"
#include "ostrel/language.h"
#include "ostrel/stream.h"

// Model: the input, and the ground and the beam made of it.
#include "ostrel/calc_settings.h"
#include "ostrel/diagram.h"
#include "ostrel/embankment_surface.h"
#include "ostrel/fem_data.h"
#include "ostrel/identity.h"
#include "ostrel/restriction.h"
#include "ostrel/sheetpiling_data.h"
#include "ostrel/sheetpiling_model.h"
#include "ostrel/soil_layer.h"
#include "ostrel/soil_props.h"
#include "ostrel/tolerances.h"
#include "ostrel/wall.h"

// Loads: what acts, and which of it together.
#include "ostrel/load_combination.h"
#include "ostrel/load_condition.h"
#include "ostrel/soil_load.h"
#include "ostrel/vocabulary.h"
#include "ostrel/wall_load.h"

// Soil: pressures on the wall, springs behind it, the seismic action.
#include "ostrel/design_soil.h"
#include "ostrel/layer_pressure.h"
#include "ostrel/load_pressure.h"
#include "ostrel/seismic_action.h"
#include "ostrel/soil_spring.h"
#include "ostrel/spring_interval.h"

// Fem: the equations of the beam, their solution and the diagrams.
#include "ostrel/fem_load.h"
#include "ostrel/fem_results.h"
#include "ostrel/fem_solver.h"

// Driver: the run and its results.
#include "ostrel/results.h"
#include "ostrel/solver.h"

// Anchors: tendons, bulbs and their links to the beam.
#include "ostrel/anchor.h"
#include "ostrel/anchor_results.h"
#include "ostrel/geotechnical_anchor_check.h"
#include "ostrel/structural_anchor_check.h"

// Structural: the frame of the verifications and the reinforced concrete wall.
#include "ostrel/cap_beam.h"
#include "ostrel/check_frame.h"
#include "ostrel/check_settings.h"
#include "ostrel/concrete_section.h"
#include "ostrel/materials.h"
#include "ostrel/reinforcement.h"
#include "ostrel/reinforcement_bars.h"
#include "ostrel/reinforcement_settings.h"
#include "ostrel/section_check.h"
#include "ostrel/ultimate_limit_states.h"
#include "ostrel/wall_check.h"

// Geotech: bearing capacities and the verifications of the soil.
#include "ostrel/foundation_bearing.h"
#include "ostrel/hydraulic_check.h"
#include "ostrel/pile_bearing_check.h"
#include "ostrel/pile_bearing_settings.h"
#include "ostrel/rigid_body_check.h"
#include "ostrel/serviceability.h"

// Slope: slip circles and the search for the worst of them.
#include "ostrel/slip_circle.h"
#include "ostrel/slope_settings.h"
#include "ostrel/slope_stability.h"
