#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <rapidjson/schema.h>

#include <string>

#include "kestrin/board/findings.h"
#include "support/temporary_folder.h"
#include "tests/support/content_of.h"
#include "tests/support/process.h"

namespace kestrin {
namespace {

using test::ContentOf;
using test::RunTool;
using test::TemporaryFolder;

const std::string kBoard = KESTRIN_EXAMPLES "/board";

rapidjson::Document Parsed(const std::string& json) {
  rapidjson::Document document;
  EXPECT_FALSE(document.Parse<rapidjson::kParseValidateEncodingFlag>(json.c_str()).HasParseError()) << json;
  return document;
}

/// The sample board with a text of a file replaced, in a folder.
class Edited {
 public:
  Edited(const std::string& kind, const std::string& text, const std::string& replacement) {
    for (const char* file : {"tech", "neutral", "geometry", "traces"}) {
      std::string content = ContentOf(kBoard + "/board." + file);
      if (file == kind) {
        const auto place = content.find(text);
        EXPECT_NE(place, std::string::npos) << text;
        if (place != std::string::npos) content.replace(place, text.size(), replacement);
      }
      static_cast<void>(folder_.File(std::string("board.") + file, content));
    }
  }
  [[nodiscard]] std::string Path() const { return folder_.Path(); }
  [[nodiscard]] std::string Path(const std::string& kind) const { return folder_.Path("board." + kind); }

 private:
  TemporaryFolder folder_;
};

TEST(ToolCheck, FindsNothingWrongWithTheSampleBoard) {
  const auto check = RunTool("check --strict " + kBoard);
  EXPECT_EQ(check.status, 0) << check.out;
  EXPECT_EQ(check.out.find("error:"), std::string::npos) << check.out;
  EXPECT_EQ(check.out.find("warning:"), std::string::npos) << check.out;
}

TEST(ToolCheck, SaysWhatIsWrongWhereAndEndsWithAVerdict) {
  const Edited set("neutral", "NET 'SDA'", "NET 'GND'");
  const auto check = RunTool("check " + set.Path());
  EXPECT_EQ(check.status, 1);
  EXPECT_NE(check.out.find(set.Path("neutral") + ":"), std::string::npos) << check.out;
  EXPECT_NE(check.out.find(": warning: net \"GND\" is there more than once (also line 24) [duplicate-net]\n"),
            std::string::npos)
      << check.out;
  EXPECT_TRUE(check.out.ends_with(": nets and tracks do not agree\n")) << check.out;
}

TEST(ToolCheck, EndsWithTheStatusThatWasAskedFor) {
  const TemporaryFolder folder;
  const std::string skipped = "check --tech " + folder.File("skipped.tech", "$$define_rule_via(V)\nwhat\n");
  const std::string note = "check --tech " + folder.File("note.tech", "$$define_rule_via(V)");
  const std::string error =
      "check --tech " +
      folder.File("error.tech", "$$define_physical_layer(1, A, B)\n$$define_physical_layer(1, C, D)\n");
  const std::string stopped = "check --traces " + folder.File("a.traces", "UNITS MM\nXRF 1\n");
  struct Case {
    std::string arguments;
    int status;
  };
  const Case cases[] = {
      {skipped, 1},
      {skipped + " --fail-on error", 0},
      {skipped + " --fail-on note", 1},
      {skipped + " --allow unknown-record", 0},
      {note, 0},
      {note + " --fail-on note", 1},
      {note + " --fail-on note --allow no-final-newline", 0},
      {error + " --fail-on error", 1},
      {error + " --fail-on never", 0},
      {error + " --allow duplicate-layer", 0},
      {error + " --format json --allow duplicate-layer", 0},
      {stopped + " --fail-on error", 1},
      {stopped + " --fail-on never", 0},
      {error + " --allow no-such-code", 2},
  };
  for (const Case& c : cases) EXPECT_EQ(RunTool(c.arguments).status, c.status) << c.arguments;
  EXPECT_EQ(RunTool(error + " --quiet").out, "");
  EXPECT_EQ(RunTool(error + " --quiet").status, 1);
}

TEST(ToolCheck, ListsWhatWasReadPast) {
  const auto check = RunTool("check --ignored " + kBoard + "/board.neutral");
  EXPECT_NE(check.out.find("not imported\n"), std::string::npos) << check.out;
  EXPECT_NE(check.out.find("  N_VIA: 10 lines\n"), std::string::npos) << check.out;
}

TEST(ToolCheck, WritesDocumentsThatFollowTheirSchema) {
  const rapidjson::Document schema = Parsed(ContentOf(KESTRIN_DOCS "/check.schema.json"));
  const rapidjson::SchemaDocument rules(schema);
  const TemporaryFolder folder;
  const std::string skipped = folder.File(
      "a.traces", "UNITS MM\nwhat \xE9\nSEG 1 2\nST 1 2 3 4\n# NET 'X\xE9'\nWIR 1 0 0 0 0\nSEG 0 0 1 V");
  const std::string stopped = folder.File("b.traces", "UNITS MM\nXRF 1\n");
  for (const std::string& arguments :
       {kBoard, "--strict " + kBoard, "--strict " + skipped, skipped, stopped, "--strict " + stopped}) {
    const std::string json = RunTool("check --format json " + arguments).out;
    const rapidjson::Document document = Parsed(json);
    rapidjson::SchemaValidator validator(rules);
    EXPECT_TRUE(document.Accept(validator)) << json;
  }
  const auto& codes = schema["definitions"]["code"]["enum"];
  ASSERT_EQ(codes.Size(), kFindingKinds.size());
  for (rapidjson::SizeType i = 0; i < codes.Size(); ++i)
    EXPECT_EQ(codes[i].GetString(), kFindingKinds[i].name);
}

TEST(ToolCheck, NamesAFileOfAnotherKindInsteadOfItsLines) {
  const auto check = RunTool("check --tech " + kBoard + "/board.geometry");
  EXPECT_EQ(check.status, 1);
  EXPECT_NE(check.out.find("most lines are records of a Geometry file"), std::string::npos) << check.out;
  EXPECT_EQ(check.out.find("unknown-"), std::string::npos) << check.out;
}

}  // namespace
}  // namespace kestrin
