#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kestrin/tech/tech_model.h"
#include "kestrin/tech/tech_reader.h"
#include "support/described.h"
#include "tests/support/feed.h"
#include "tests/support/lists.h"

namespace kestrin {
namespace {

using test::Described;
using test::Feed;
using test::Strings;

TEST(TechReader, MakesARecordOfEveryLine) {
  struct Case {
    const char* line;
    const char* model;
  };
  const Case cases[] = {
      {R"($$define_physical_layer(1, "TOP", "SIGNAL_1", "PAD_1");)",
       "stackup{logicalLayerNames=[SIGNAL_1|PAD_1] physicalLayerName=TOP physicalLayerNumber=1}"},
      {"$$define_physical_layer(2,,INNER1)", "stackup{physicalLayerName=INNER1 physicalLayerNumber=2}"},
      {"$$define_physical_layer(2, ,INNER1)", "stackup{logicalLayerNames=[INNER1] physicalLayerNumber=2}"},
      {R"($$define_physical_layer(2,"",INNER1))", "stackup{physicalLayerName=INNER1 physicalLayerNumber=2}"},
      {R"($$define_physical_layer(3, "A,B"))",
       "stackup{logicalLayerNames=[B] physicalLayerName=A physicalLayerNumber=3}"},
      {R"($$define_physical_layer( "4" , " T O P " ,	"x"	))",
       "stackup{logicalLayerNames=[x] physicalLayerName=[T O P] physicalLayerNumber=4}"},
      {"$$define_physical_layer(x9, A)", "stackup{physicalLayerName=A}"},
      {"$$define_physical_layer(-7up)", "stackup{physicalLayerNumber=-7}"},
      {"$$define_physical_layer()", "stackup{}"},
      {"$$define_physical_layer", "stackup{}"},
      {"$$define_physical_layer(1, TOP", "stackup{}"},
      {"$$define_physical_layer 1, TOP)", "stackup{physicalLayerName=TOP}"},
      {"1, T $$define_physical_layer)",
       "stackup{physicalLayerName=[T $$define_physical_layer] physicalLayerNumber=1}"},
      {") $$define_physical_layer(", "stackup{}"},
      {"$$define_physical_layer((1), (TOP)) x)", "stackup{physicalLayerName=[(TOP)) x]}"},
      {R"($$define_rule_via("V1", "P1", "L1", "L4"))", "via{2=P1 argLast=L4 V1}"},
      {"$$define_rule_via(V1)", "via{V1}"},
      {"# as in $$define_rule_via(V2, P2) of old", "via{2=P2 V2}"},
      {"$$define_rule_via(1, $$define_physical_layer)",
       "stackup{physicalLayerName=$$define_physical_layer physicalLayerNumber=1}"},
      {"$$DEFINE_RULE_VIA(V1)", ""},
      {"$$define_rule(V1)", ""},
  };
  for (const Case& c : cases) {
    CMTech tech;
    TechReader(tech).ReadLine(c.line);
    EXPECT_EQ(Described(tech), c.model) << c.line;
  }
}

TEST(TechReader, KeepsOrderAndReportsTheOutcomeOfALine) {
  CMTech tech;
  TechReader reader(tech);
  const auto outcomes = Feed(reader,
                             "$$define_rule_via(V2)\n"
                             "\n"
                             " \t\n"
                             "# comment\n"
                             "$$define_something(1)\n"
                             "$$define_rule_via(V1)\n");
  const auto unknown = LineOutcome::Skipped(SkipCode::kUnknownRecord);
  EXPECT_EQ(outcomes,
            (std::vector<LineOutcome>{LineOutcome::Imported(), LineOutcome::Ignored(), LineOutcome::Ignored(),
                                      LineOutcome::Ignored(), unknown, LineOutcome::Imported()}));
  EXPECT_EQ(Described(tech), "via{V2} via{V1}");
}

TEST(TechModel, FindsTheFirstLayerWithExactlyThisName) {
  CMTech tech;
  TechReader reader(tech);
  Feed(reader,
       "$$define_physical_layer(5, TOP, A, B)\n"
       "$$define_physical_layer(6, TOP, C)\n"
       "$$define_physical_layer(7, BARE)\n");
  EXPECT_EQ(tech.GetPhysicalLayerNumber("TOP"), 5);
  EXPECT_EQ(tech.GetPhysicalLayerNumber("Top"), 0);
  EXPECT_EQ(tech.GetPhysicalLayerNumber(""), 0);
  CStringArray names;
  tech.GetLogicalLayerNamesForPhysicalLayerName("TOP", names);
  EXPECT_EQ(Strings(names), (std::vector<std::string>{"A", "B"}));
  tech.GetLogicalLayerNamesForPhysicalLayerName("NONE", names);
  EXPECT_EQ(names.GetSize(), 2);
  tech.GetLogicalLayerNamesForPhysicalLayerName("BARE", names);
  EXPECT_EQ(names.GetSize(), 0);
}

}  // namespace
}  // namespace kestrin
