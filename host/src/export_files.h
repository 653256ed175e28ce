#pragma once
/// @file  Workbook, tables and printed report of a run, as files. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "project.h"
#include "project_loading.h"
#include "result_tables.h"
#include "texts.h"

#include <iosfwd>
#include <string>
#include <system_error>
#include <vector>

namespace ostrel::host {

/// Where to write; an empty name asks for no such file.
struct ExportFiles {
  std::string workbook_file;  ///< XLSX
  std::string tables_file;    ///< JSON
  std::string print_file;     ///< PDF

  bool any() const { return !(workbook_file.empty() && tables_file.empty() && print_file.empty()); }
};

class Exports {
public:
  /// @param out  gets the names of the files that were written
  /// @param err  gets what keeps a file from being written
  Exports(const ExportFiles& files, const Texts& texts, std::ostream& out, std::ostream& err)
      : files_(files), texts_(texts), out_(out), err_(err) {}

  /// Whether every file can be written, tried before the analysis; tells where not.
  bool ready() const;
  /// Writes the files, each whole or not at all. @return false where one could not be written
  bool write(const Project& project, const Job& job, const Outcome& outcome) const;

private:
  bool write_workbook(const Project& project, const std::vector<ResultTable>& tables) const;
  bool print(const Project& project, const Job& job, const Outcome& outcome) const;
  bool fine(const std::string& file, const std::error_code& error) const;
  bool written(const std::string& file, const std::string& contents) const;

  const ExportFiles& files_;
  const Texts& texts_;
  std::ostream& out_;
  std::ostream& err_;
};

/// A file that a command reads or writes, and how its arguments name it.
struct NamedFile {
  std::string argument;
  std::string file;  ///< empty for none
};

/// Whether no output has the same file as another or as what is read; tells where one has. Links
/// count as the file that they lead to, and what is no regular file, as a terminal, may stand twice.
/// @param outputs  besides those of `exports`
bool outputs_differ(const ProjectSource& inputs, const ExportFiles& exports,
                    std::vector<NamedFile> outputs, const Texts& texts, std::ostream& err);

}  // namespace ostrel::host
