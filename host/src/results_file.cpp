// SPDX-License-Identifier: Apache-2.0
#include "results_file.h"

#include <ostrel/stream.h>
#include <tallow/memory_streams.h>

#include <cstdint>
#include <new>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace ostrel::host {

namespace {

// A conversion of line ends, as of texts, changes it.
constexpr std::string_view magic = "ostrel results\r\n";
constexpr int newest_version = 3;

// FNV-1a of 64 bits.
std::int64_t checksum_of(std::string_view bytes) {
  std::uint64_t sum = 0xcbf29ce484222325u;
  for (const char byte : bytes) {
    sum ^= static_cast<unsigned char>(byte);
    sum *= 0x100000001b3u;
  }
  return static_cast<std::int64_t>(sum);
}

// One list of fields serves for both ways: writing takes the values, reading replaces them.
class Writer {
public:
  explicit Writer(iOutStream& stream) : out_(&stream) {}

  template <class T>
  void value(T& field) {
    out_ << field;
  }
  template <class T, class Each>
  void list(std::vector<T>& entries, const Each& each) {
    ostrel::write_count(entries.size(), out_);
    for (T& entry : entries) {
      each(entry);
    }
  }
  template <class T, class Each>
  void maybe(std::optional<T>& field, const Each& each) {
    out_ << field.has_value();
    if (field) each(*field);
  }
  template <class T>
  void object(T& framed) {
    framed.pub_write(out_);
  }

private:
  outstream out_;
};

class Reader {
public:
  explicit Reader(iInStream& stream) : in_(&stream) {}

  template <class T>
  void value(T& field) {
    in_ >> field;
  }
  template <class T, class Each>
  void list(std::vector<T>& entries, const Each& each) {
    const int count = ostrel::read_count(in_);
    for (int i = 0; i < count; ++i) {
      each(entries.emplace_back());
    }
  }
  template <class T, class Each>
  void maybe(std::optional<T>& field, const Each& each) {
    bool there = false;
    in_ >> there;
    if (there) each(field.emplace());
  }
  template <class T>
  void object(T& framed) {
    framed.pub_read(in_);
  }

private:
  instream in_;
};

template <class Way>
void pass(Way& way, Extreme& extreme) {
  way.value(extreme.value);
  way.value(extreme.depth_m);
}

template <class Way>
void pass(Way& way, SpringState& spring) {
  for (double* field : {&spring.depth_m, &spring.modulus_kN_m3, &spring.limit_mm, &spring.limit_kPa,
                        &spring.displacement_mm, &spring.pressure_kPa, &spring.use}) {
    way.value(*field);
  }
  way.value(spring.yields);
}

template <class Way>
void pass(Way& way, SupportState& support) {
  way.value(support.depth_m);
  for (std::optional<double>* part :
       {&support.horizontal_kN, &support.vertical_kN, &support.moment_kNm}) {
    way.maybe(*part, [&](double& value) { way.value(value); });
  }
}

template <class Way>
void pass(Way& way, Summary& summary) {
  way.value(summary.name);
  way.value(summary.index);
  for (Extreme* extreme : {&summary.moment_kNm, &summary.shear_kN, &summary.axial_kN,
                           &summary.displacement_mm, &summary.spring_use}) {
    pass(way, *extreme);
  }
  way.value(summary.head_displacement_mm);
  way.value(summary.excavation_displacement_mm);
  way.value(summary.mobilised);
  auto yielding = static_cast<std::int64_t>(summary.yielding);
  way.value(yielding);
  summary.yielding = static_cast<std::size_t>(yielding);
  way.list(summary.springs, [&](SpringState& spring) { pass(way, spring); });
  way.list(summary.anchors, [&](AnchorState& anchor) {
    auto place = static_cast<std::int64_t>(anchor.place);
    way.value(place);
    anchor.place = static_cast<std::size_t>(place);
    for (double* field :
         {&anchor.depth_m, &anchor.force_kN, &anchor.horizontal_kN, &anchor.vertical_kN,
          &anchor.prestress_kN, &anchor.stiffness_kN_m, &anchor.share, &anchor.head_displacement_mm,
          &anchor.head_settlement_mm}) {
      way.value(*field);
    }
  });
  Residual& residual = summary.residual;
  for (double* field : {&residual.towards_retained_kN, &residual.downwards_kN, &residual.moment_kNm,
                        &residual.relative_to_loads}) {
    way.value(*field);
  }
  way.list(summary.supports, [&](SupportState& support) { pass(way, support); });
}

template <class Way>
void pass(Way& way, CombinationData& combination) {
  way.value(combination.name);
  int kind = static_cast<int>(combination.kind);
  way.value(kind);
  combination.kind = static_cast<pCombinationTypes>(kind);
  way.maybe(combination.summary, [&](Summary& summary) { pass(way, summary); });
}

template <class Way>
void pass(Way& way, SavedRun& run) {
  RunData& data = run.data;
  way.value(data.name);
  way.value(data.is_diaphragm);
  for (double* field : {&data.diameter_mm, &data.thickness_mm, &data.spacing_m, &data.length_m,
                        &data.excavation_depth_m}) {
    way.value(*field);
  }
  const auto text = [&](std::string& entry) { way.value(entry); };
  way.list(data.anchor_names, text);
  way.list(data.combinations, [&](CombinationData& combination) { pass(way, combination); });
  way.value(data.through);
  way.list(data.notes, text);
  way.list(data.remarks, text);
  way.list(data.messages, text);
  way.object(run.results);
  way.object(data.ultimate);
  way.object(data.serviceability);
}

bool at_end(iInStream& stream) {
  return stream.peek() == std::char_traits<char>::eof();
}

// The text that holds everything else. @throws std::runtime_error where it is cut or changed
std::string framed_text(iInStream& stream) {
  instream in(&stream);
  std::string text;
  std::int64_t checksum = 0;
  in >> text;
  in >> checksum;
  if (!at_end(stream) || checksum != checksum_of(text)) throw std::runtime_error("changed");
  return text;
}

SavedRun run_of(std::string text) {
  iMemoryInStream stream(std::move(text));
  Reader reader(stream);
  SavedRun run;
  pass(reader, run);
  if (!at_end(stream)) throw std::runtime_error("more than a run");
  return run;
}

}  // namespace

std::string saved_bytes(const RunData& data, const xSheetpilingRes& results) {
  iMemoryOutStream text;
  Writer writer(text);
  SavedRun run{data, results};
  pass(writer, run);
  iMemoryOutStream file;
  file.writeBytes(magic.data(), magic.size());
  outstream out(&file);
  out << newest_version;
  out << std::string(text.bytes());
  out << checksum_of(text.bytes());
  return file.takeBytes();
}

std::optional<SavedRun> read_saved(std::string bytes, Problems& problems) {
  const Texts& texts = problems.texts();
  const auto refuse = [&](const std::string& found, const std::string& allowed) {
    problems.add("", found, allowed);
    return std::nullopt;
  };
  const std::string saved(texts(Text::saved_results));
  if (!std::string_view(bytes).starts_with(magic)) {
    return refuse(std::string(texts(Text::foreign_results)), saved);
  }
  const std::string damaged(texts(Text::damaged_results));
  try {
    iMemoryInStream stream(bytes.substr(magic.size()));
    const int version = stream.readInt();
    if (version != newest_version) {
      return refuse(texts(Text::results_of_version, version),
                    texts(Text::results_of_version, newest_version));
    }
    return run_of(framed_text(stream));
  } catch (const std::exception&) {
    return refuse(damaged, saved);
  } catch (int) {  // a stored form of the library that is too old
    return refuse(damaged, saved);
  }
}

}  // namespace ostrel::host
