// SPDX-License-Identifier: Apache-2.0
#include "command_batch.h"

#include "analysis.h"
#include "batch_progress.h"
#include "batch_result.h"
#include "command_line.h"
#include "interrupt.h"
#include "job_pool.h"
#include "label_tables.h"
#include "project_conversion.h"
#include "project_loading.h"
#include "result_folder.h"
#include "run_data.h"
#include "system_reason.h"
#include "terminal.h"
#include "text_table.h"
#include "verification.h"
#include "verification_table.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <deque>
#include <exception>
#include <filesystem>
#include <mutex>
#include <ostream>
#include <set>
#include <sstream>
#include <system_error>
#include <thread>

namespace ostrel::host {

namespace {

namespace fs = std::filesystem;

ProgressForm form_of(const std::string& name, const std::ostream& err) {
  if (name == "none") return ProgressForm::none;
  if (name == "json") return ProgressForm::json;
  if (name == "plain") return ProgressForm::plain;
  return is_terminal(err) ? ProgressForm::bar : ProgressForm::plain;
}

std::string lower(std::string name) {
  for (char& letter : name) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return name;
}

// What stands before the last point; never a way out of the folder.
std::string stem_of(const std::string& file) {
  const std::string stem = fs::path(file).stem().string();
  return stem.empty() || stem == "." || stem == ".." ? "project" : stem;
}

// Every line with the name of the file before it, and no character that moves the cursor.
std::string with_name(const std::string& file, const std::string& lines) {
  std::istringstream stream(lines);
  std::string text;
  for (std::string line; std::getline(stream, line);) {
    line = file + ": " + line;
    text += fitted(line, columns_of(line)) + "\n";
  }
  return text;
}

// Every verification that was made, worst first by its factor.
void judge(const RunData& data, const Texts& texts, BatchResult& result) {
  const Verification* worst = nullptr;
  const auto verifications = verifications_of(data.ultimate, data.serviceability, texts);
  for (const Verification& verification : verifications) {
    if (!verification.made) continue;
    if (worst == nullptr || is_worse(verification.factor, worst->factor)) worst = &verification;
  }
  result.verdict = BatchVerdict::nothing_verified;
  if (worst == nullptr) return;
  result.factor = factor_text(worst->factor);
  result.governs = std::string(name_of(worst->check, texts));
  result.verdict = worst->factor >= 1.0      ? BatchVerdict::satisfied
                 : std::isnan(worst->factor) ? BatchVerdict::not_determined
                                             : BatchVerdict::not_satisfied;
}

// One project, from its file to its results.
class BatchJob {
public:
  BatchJob(const BatchOptions& options, std::string folder)
      : options_(options), folder_(std::move(folder)) {}

  BatchResult run(const std::string& file) {
    const auto start = std::chrono::steady_clock::now();
    result_.file = file;
    try {
      analyse_file(file);
    } catch (const std::exception& error) {
      result_.verdict = BatchVerdict::analysis_failed;
      result_.messages += with_name(file, error.what());
    }
    result_.seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return std::move(result_);
  }

private:
  void analyse_file(const std::string& file) {
    std::ostringstream messages;
    const auto project =
        load_project({file, options_.presets_file}, options_.texts, messages).project;
    result_.messages = messages.str();  // each of its lines begins with the file
    if (!project) {
      result_.verdict = BatchVerdict::wrong_file;
      return;
    }
    const Job job = to_job(*project);
    const Outcome outcome = analyse(job);
    const RunData data = run_data_of(*project, job, outcome, options_.texts);
    judge(data, options_.texts, result_);
    for (const std::string& message : data.messages) {
      result_.messages += with_name(file, message);
    }
    if (options_.fail_below) {
      const std::string below = lines_below(data, *options_.fail_below, options_.texts);
      if (!below.empty()) result_.verdict = BatchVerdict::below_limit;
      result_.messages += with_name(file, below);
    }
    if (!data.through) result_.verdict = BatchVerdict::analysis_failed;
    write(*project, job, outcome);
  }

  void write(const Project& project, const Job& job, const Outcome& outcome) {
    if (folder_.empty()) return;
    const WrittenFolder written =
        write_results(folder_, project, job, outcome, options_.texts.language());
    result_.messages +=
        with_name(result_.file, strangers_warning(folder_, written.strangers, options_.texts));
    if (!written.failure) {
      result_.folder = folder_;
      return;
    }
    result_.verdict = BatchVerdict::not_written;
    result_.messages += options_.texts(Text::cannot_write, written.failure->file,
                                       reason_of(written.failure->error, options_.texts))
                      + "\n";
  }

  const BatchOptions& options_;
  std::string folder_;
  BatchResult result_;
};

// The results in the order of the files, and those that are still to be told in the order of time.
class Batch {
public:
  Batch(const BatchOptions& options, std::ostream& err)
      : options_(options),
        progress_(form_of(options.progress, err), options.texts, err),
        folders_(folder_names(options.project_files)) {
    for (const std::string& file : options.project_files) {
      results_.emplace_back().file = file;
    }
  }

  void run() {
    const InterruptWatch watch;
    const std::size_t threads = thread_count();
    progress_.begin(results_.size(), threads);
    run_jobs({.count = results_.size(),
              .threads = threads,
              .job = [this](std::size_t number) { run_job(number); },
              .stop = InterruptWatch::interrupted,
              .watch = [this] { tell_ended(); }});
    interrupted_ = InterruptWatch::interrupted();
    progress_.end(interrupted_);
  }

  const std::vector<BatchResult>& results() const { return results_; }
  bool interrupted() const { return interrupted_; }

private:
  std::size_t thread_count() const {
    const std::size_t wanted =
        options_.threads > 0 ? options_.threads : std::thread::hardware_concurrency();
    return std::clamp<std::size_t>(wanted, 1, std::max<std::size_t>(results_.size(), 1));
  }

  void run_job(std::size_t number) {
    const std::string folder =
        options_.folder.empty() ? "" : (fs::path(options_.folder) / folders_[number]).string();
    BatchResult result = BatchJob(options_, folder).run(results_[number].file);
    const std::lock_guard lock(mutex_);
    results_[number] = std::move(result);
    ended_.push_back(number);
  }

  void tell_ended() {
    for (;;) {
      std::unique_lock lock(mutex_);
      if (ended_.empty()) break;
      const BatchResult result = results_[ended_.front()];
      ended_.pop_front();
      lock.unlock();
      progress_.tell(result);
    }
    progress_.refresh();
  }

  const BatchOptions& options_;
  BatchProgress progress_;
  std::vector<std::string> folders_;
  std::mutex mutex_;
  std::vector<BatchResult> results_;
  std::deque<std::size_t> ended_;
  bool interrupted_ = false;
};

}  // namespace

std::vector<std::string> folder_names(const std::vector<std::string>& project_files) {
  std::vector<std::string> names;
  std::set<std::string> stems;
  for (const std::string& file : project_files) {
    stems.insert(lower(stem_of(file)));
  }
  std::set<std::string> taken;
  for (const std::string& file : project_files) {
    const std::string stem = stem_of(file);
    std::string name = stem;
    // A number must not make the name of another file.
    for (int number = 2;
         taken.contains(lower(name)) || (name != stem && stems.contains(lower(name))); ++number) {
      name = fmt::format("{}-{}", stem, number);
    }
    taken.insert(lower(name));
    names.push_back(name);
  }
  return names;
}

int run_batch(const BatchOptions& options, std::ostream& out, std::ostream& err) {
  if (!options.folder.empty()) {
    std::error_code error;
    fs::create_directories(options.folder, error);
    if (error) {
      err << options.texts(Text::cannot_write, options.folder, reason_of(error, options.texts))
          << "\n";
      return exit_bad_input;
    }
  }
  fill_label_tables();
  Batch batch(options, err);
  batch.run();
  const std::vector<BatchResult>& results = batch.results();
  out << batch_table(results, options.texts, wants_colour(out));
  if (!options.folder.empty()) {
    out << "\n" << options.texts(Text::written_to, options.folder) << "\n";
  }
  if (batch.interrupted()) return exit_interrupted;
  const bool failed = std::any_of(results.begin(), results.end(), [](const BatchResult& result) {
    return has_failed(result.verdict);
  });
  return failed ? exit_analysis_failed : exit_fine;
}

}  // namespace ostrel::host
