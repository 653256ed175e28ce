// SPDX-License-Identifier: Apache-2.0
#include "core_case.h"
#include "fuzz/promise_testing.h"
#include "fuzz/targets_testing.h"
#include "project_conversion.h"
#include "project_file.h"
#include "results_file.h"
#include "run_report.h"
#include "support/persisted_classes.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace ostrel::fuzz {

namespace {

namespace host = ostrel::host;

std::string stored_again(const testing::PersistedClass& each, std::string_view bytes) {
  iMemoryInStream stream(bytes.data(), bytes.size());
  instream in(&stream);
  return each.read_and_store(in);
}

// The text as a file of saved results holds it, its checksum (FNV-1a) made right.
std::string framed(std::string_view text) {
  std::uint64_t sum = 0xcbf29ce484222325U;
  for (const char byte : text) {
    sum ^= static_cast<unsigned char>(byte);
    sum *= 0x100000001b3U;
  }
  return "ostrel results\r\n" + testing::bytes_of([&](outstream& out) {
           out << 1 << std::string(text) << static_cast<std::int64_t>(sum);
         });
}

}  // namespace

void try_stream(std::string_view bytes) {
  static const auto classes = testing::persisted_classes();
  if (bytes.empty()) return;
  const auto& each = classes[static_cast<unsigned char>(bytes[0]) % classes.size()];
  std::string stored;
  try {
    stored = stored_again(each, bytes.substr(1));
  } catch (const std::runtime_error&) {
    return;  // a damaged stream
  } catch (int) {
    return;  // a version that is not read any more
  }
  promise(stored_again(each, stored) == stored, "what is stored reads as itself");
}

void try_project(std::string_view text) {
  host::Problems problems{host::Texts{host::Language::english}};
  const auto project = host::read_project(text, problems);
  const std::string report = problems.report("project.json", text);
  promise(project.has_value() == problems.empty(), "a project is read or refused");
  promise(problems.empty() || !report.empty(), "a refusal has a text");
  if (project) host::to_job(*project);
}

void try_core_case(std::string_view text) {
  host::Problems problems{host::Texts{host::Language::english}};
  const auto job = host::read_core_case(text, problems);
  const std::string report = problems.report("case.json", text);
  promise(job.has_value() == problems.empty(), "a case is read or refused");
  promise(problems.empty() || !report.empty(), "a refusal has a text");
}

void try_results(std::string_view bytes) {
  if (bytes.empty()) return;
  const bool whole_file = (static_cast<unsigned char>(bytes[0]) & 1U) != 0;
  bytes.remove_prefix(1);
  host::Problems problems{host::Texts{host::Language::english}};
  const auto run = host::read_saved(whole_file ? std::string(bytes) : framed(bytes), problems);
  promise(run.has_value() == problems.empty(), "results are read or refused");
  if (!run) return;
  promise(!host::run_report(run->data, problems.texts()).empty(), "a report has a text");
  const std::string saved = host::saved_bytes(run->data, run->results);
  const auto again = host::read_saved(saved, problems);
  promise(again && host::saved_bytes(again->data, again->results) == saved,
          "saved results are saved again as themselves");
}

}  // namespace ostrel::fuzz
