// SPDX-License-Identifier: Apache-2.0
#include "table_labels.h"

#include <algorithm>
#include <array>

namespace ostrel::host {

namespace {

struct Label {
  std::string_view name;
  std::string_view italian;
  std::string_view english;
};

constexpr std::array<Label, 59> columns{{
    {"combination", "Combinazione", "Combination"},
    {"quantity", "Grandezza", "Quantity"},
    {"value", "Valore", "Value"},
    {"depth_m", "Profondità [m]", "Depth [m]"},
    {"verification", "Verifica", "Verification"},
    {"made", "Eseguita", "Made"},
    {"factor", "Fattore", "Factor"},
    {"satisfied", "Soddisfatta", "Satisfied"},
    {"place", "Dove", "Place"},
    {"axial_kN", "N [kN]", "N [kN]"},
    {"moment_kNm", "M [kNm]", "M [kNm]"},
    {"resisting_moment_kNm", "MRd [kNm]", "MRd [kNm]"},
    {"shear_kN", "V [kN]", "V [kN]"},
    {"resisting_shear_kN", "VRd [kN]", "VRd [kN]"},
    {"ring_bars", "Barre ad anello", "Bars of the ring"},
    {"ring_diameter_mm", "Ø anello [mm]", "Ø ring [mm]"},
    {"corner_bars", "Barre ai vertici", "Corner bars"},
    {"corner_diameter_mm", "Ø vertici [mm]", "Ø corners [mm]"},
    {"excavation_bars", "Barre lato scavo", "Bars, excavation side"},
    {"excavation_diameter_mm", "Ø lato scavo [mm]", "Ø excavation side [mm]"},
    {"retained_bars", "Barre lato terra", "Bars, retained side"},
    {"retained_diameter_mm", "Ø lato terra [mm]", "Ø retained side [mm]"},
    {"stirrup_diameter_mm", "Ø staffe [mm]", "Ø stirrups [mm]"},
    {"stirrup_legs", "Bracci", "Legs"},
    {"stirrup_spacing_mm", "Passo staffe [mm]", "Stirrup spacing [mm]"},
    {"anchor", "Ancoraggio", "Anchor"},
    {"name", "Nome", "Name"},
    {"force_kN", "Forza [kN]", "Force [kN]"},
    {"horizontal_kN", "Orizzontale, verso terra [kN]", "Horizontal, towards ground [kN]"},
    {"vertical_kN", "Verticale, verso il basso [kN]", "Vertical, downwards [kN]"},
    {"prestress_kN", "Pretensione [kN]", "Prestress [kN]"},
    {"stiffness_kN_m", "Rigidezza su un palo o pannello [kN/m]",
     "Stiffness on one pile or panel [kN/m]"},
    {"share", "Quota di uno [-]", "Share of one [-]"},
    {"head_displacement_mm", "Spostamento della testa verso lo scavo [mm]",
     "Displacement of head towards excavation [mm]"},
    {"head_settlement_mm", "Abbassamento della testa [mm]", "Settlement of head [mm]"},
    {"tendon_force_kN", "Trefoli: Fd [kN]", "Tendon: Fd [kN]"},
    {"tendon_resistance_kN", "Trefoli: Rd [kN]", "Tendon: Rd [kN]"},
    {"tendon_factor", "Trefoli: fattore", "Tendon: factor"},
    {"pullout_force_kN", "Sfilamento: Fd [kN]", "Pull-out: Fd [kN]"},
    {"pullout_resistance_kN", "Sfilamento: Rd [kN]", "Pull-out: Rd [kN]"},
    {"pullout_factor", "Sfilamento: fattore", "Pull-out: factor"},
    {"part", "Parte", "Part"},
    {"towards_retained_kN", "Verso terra [kN]", "Towards retained side [kN]"},
    {"downwards_kN", "Verso il basso [kN]", "Downwards [kN]"},
    {"moment_about_head_kNm", "Momento alla testa [kNm]", "Moment about head [kNm]"},
    {"relative_to_loads", "Rispetto ai carichi [-]", "Relative to the loads [-]"},
    {"displacement_mm", "Spostamento [mm]", "Displacement [mm]"},
    {"settlement_mm", "Abbassamento [mm]", "Settlement [mm]"},
    {"rotation_mrad", "Rotazione [mrad]", "Rotation [mrad]"},
    {"node", "Nodo", "Node"},
    {"soil", "Terreno", "Soil"},
    {"modulus_kN_m3", "Modulo [kN/m³]", "Modulus [kN/m³]"},
    {"limit_mm", "Limite [mm]", "Limit [mm]"},
    {"limit_kPa", "Limite [kPa]", "Limit [kPa]"},
    {"pressure_kPa", "Pressione [kPa]", "Pressure [kPa]"},
    {"use", "Impegno", "Use"},
    {"yields", "Snervata", "Yields"},
    {"action", "Azione", "Action"},
    {"pressure_kN_m", "Pressione [kN/m]", "Pressure [kN/m]"},
}};

constexpr std::array<Label, 9> subjects{{
    {"summary", "Riepilogo", "Summary"},
    {"verifications", "Verifiche", "Verifications"},
    {"sections", "Sezioni", "Sections"},
    {"reinforcement", "Armature", "Reinforcement"},
    {"anchors", "Ancoraggi", "Anchors"},
    {"equilibrium", "Equilibrio", "Equilibrium"},
    {"wall", "Paratia", "Wall"},
    {"springs", "Molle", "Springs"},
    {"pressures", "Pressioni", "Pressures"},
}};

template <class Labels>
std::string_view found_in(const Labels& labels, std::string_view name, const Texts& texts) {
  const auto* found = std::find_if(labels.begin(), labels.end(),
                                   [name](const Label& label) { return label.name == name; });
  if (found == labels.end()) return {};
  return texts.language() == Language::italian ? found->italian : found->english;
}

}  // namespace

std::string_view column_label(std::string_view column, const Texts& texts) {
  return found_in(columns, column, texts);
}

std::string_view subject_label(std::string_view subject, const Texts& texts) {
  return found_in(subjects, subject, texts);
}

}  // namespace ostrel::host
