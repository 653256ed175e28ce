// SPDX-License-Identifier: Apache-2.0
// Writes the streams that are missing in a folder of stored forms:
//
//     ostrel_fill_streams FOLDER
//
// One file for each persisted class, CLASS.bin, whose object has a value in every field. A file that
// is there stays as it is: what was stored once must go on reading.
#include "support/filling_stream.h"
#include "support/persisted_classes.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

namespace forms = ostrel::testing;

std::string filled(const forms::PersistedClass& each, const std::vector<std::string>& names) {
  std::string bytes;
  forms::read_filled([&](instream& in) { bytes = each.read_and_store(in); }, names);
  return bytes;
}

// The reader of this class takes every unknown name for a wall that is not there.
std::string wall_to_show(const std::vector<forms::PersistedClass>& classes,
                         const std::vector<std::string>& names) {
  const std::string wall = "xPile_Sheetpiling";
  for (const auto& each : classes) {
    if (each.name != wall) continue;
    return forms::frame_bytes(
        1, forms::bytes_of([&](outstream& out) { out << wall; }) + filled(each, names));
  }
  return "";
}

}  // namespace

int main(int count, char** arguments) {
  namespace fs = std::filesystem;
  if (count != 2) {
    std::cerr << "ostrel_fill_streams FOLDER\n";
    return 2;
  }
  try {
    const auto classes = forms::persisted_classes();
    std::vector<std::string> names;
    for (const auto& each : classes)
      names.push_back(each.io_class);
    for (const auto& each : classes) {
      const fs::path file = fs::path(arguments[1]) / (each.name + ".bin");
      if (fs::exists(file)) continue;
      const std::string bytes =
          each.name == "DispData" ? wall_to_show(classes, names) : filled(each, names);
      std::ofstream(file, std::ios::binary) << bytes;
      std::cout << file.string() << ": " << bytes.size() << " bytes\n";
    }
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
  return 0;
}
