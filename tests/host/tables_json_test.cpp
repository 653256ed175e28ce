// SPDX-License-Identifier: Apache-2.0
#include "tables_json.h"

#include "host_testing.h"
#include "project_conversion.h"

#include <gmock/gmock.h>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

namespace ostrel::host {
namespace {

using Json = nlohmann::json;
using Adapter = valijson::adapters::NlohmannJsonAdapter;

// What the schema says against a value; empty for nothing.
std::string refusal(const Json& value) {
  const Json text = Json::parse(results_schema());
  valijson::Schema schema;
  valijson::SchemaParser().populateSchema(Adapter(text), schema);
  valijson::ValidationResults results;
  std::string all;
  valijson::Validator().validate(schema, Adapter(value), &results);
  for (valijson::ValidationResults::Error error; results.popError(error);)
    all += error.description + "\n";
  return all;
}

Json tables_of(const Json& json) {
  const Project project = project_of(json);
  const Job job = to_job(project);
  const Outcome outcome = analyse(job);
  return Json::parse(tables_json(head_of(project, job, outcome, Texts(Language::english)),
                                 result_tables(project, job, outcome, Texts(Language::english))));
}

TEST(TablesJson, HasThePublishedForm) {
  const Json tables = tables_of(sound_project());
  EXPECT_EQ(refusal(tables), "");
  EXPECT_EQ(tables["project"], "wall");
  ASSERT_EQ(tables["combinations"].size(), 1u);
  EXPECT_EQ(tables["combinations"][0]["name"], "C");
  EXPECT_FALSE(tables["combinations"][0]["springs"].empty());
}

TEST(TablesJson, HasThePublishedFormForADiaphragm) {
  EXPECT_EQ(refusal(tables_of(sound_diaphragm())), "");
}

// Its earth pressure is 80 times as much: the wall has no equilibrium.
TEST(TablesJson, HasThePublishedFormWhereTheRunDidNotGoThrough) {
  Json project = sound_project();
  project["combinations"][0]["actions"] = {{"earth_pressure", 80}};
  const Json tables = tables_of(project);
  EXPECT_EQ(refusal(tables), "");
  EXPECT_EQ(tables["through"], false);
  EXPECT_FALSE(tables["messages"].empty());
}

TEST(TablesJson, IsRefusedByItsSchemaWithAFieldMoreOrLess) {
  const Json tables = tables_of(sound_project());
  Json more = tables;
  more["combinations"][0]["wall"][0]["unknown"] = 1;
  EXPECT_NE(refusal(more), "");
  Json fewer = tables;
  fewer["equilibrium"][0].erase("part");
  EXPECT_NE(refusal(fewer), "");
}

TEST(TablesJson, WritesANumberThatIsNotFiniteAsNull) {
  const std::vector<ResultTable> tables{
      {.subject = "s", .columns = {"a"}, .rows = {{std::monostate{}}}}};
  EXPECT_TRUE(Json::parse(tables_json({.project = "p"}, tables))["s"][0]["a"].is_null());
}

}  // namespace
}  // namespace ostrel::host
