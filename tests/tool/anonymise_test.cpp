#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <filesystem>
#include <map>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "support/generators/generators.h"
#include "support/temporary_folder.h"
#include "tests/support/content_of.h"
#include "tests/support/process.h"
#include "tool/anonymise/set_copy.h"

namespace kestrin {
namespace {

using test::ContentOf;
using test::RunTool;
using test::TemporaryFolder;
using tool::SetBytes;

const std::string kBoard = KESTRIN_EXAMPLES "/board";
constexpr std::array<const char*, 4> kFiles{"board.tech", "board.neutral", "board.geometry", "board.traces"};

SetBytes SetIn(const std::string& folder) {
  SetBytes set;
  for (std::size_t i = 0; i < kFiles.size(); ++i) set[i] = ContentOf(folder + "/" + kFiles[i]);
  return set;
}

/// A folder with a set, and a copy of it with other names.
class Anonymised {
 public:
  explicit Anonymised(const SetBytes& set) {
    std::filesystem::create_directory(folder_.Path("original"));
    for (std::size_t i = 0; i < kFiles.size(); ++i)
      static_cast<void>(folder_.File(std::string("original/") + kFiles[i], set[i]));
    const auto run = RunTool("anonymise " + Original() + " " + Copy() + " --key secret");
    EXPECT_EQ(run.status, 0) << run.err;
  }
  [[nodiscard]] std::string Original() const { return folder_.Path("original"); }
  [[nodiscard]] std::string Copy() const { return folder_.Path("copy"); }

 private:
  TemporaryFolder folder_;
};

/// Compares two documents whose texts may differ, but only one to one.
class OneToOne {
 public:
  void Compare(const rapidjson::Value& a, const rapidjson::Value& b, const std::string& at) {
    if (a.IsString() && b.IsString()) return CompareTexts(a.GetString(), b.GetString(), at);
    if (a.IsArray() && b.IsArray() && a.Size() == b.Size()) {
      for (rapidjson::SizeType i = 0; i < a.Size(); ++i) Compare(a[i], b[i], at + "/" + std::to_string(i));
    } else if (a.IsObject() && b.IsObject() && a.MemberCount() == b.MemberCount()) {
      for (auto ofA = a.MemberBegin(), ofB = b.MemberBegin(); !(ofA == a.MemberEnd()); ++ofA, ++ofB) {
        ASSERT_EQ(ofA->name, ofB->name) << at;
        Compare(ofA->value, ofB->value, at + "/" + ofA->name.GetString());
      }
    } else {
      ASSERT_EQ(a, b) << at;
    }
  }

 private:
  void CompareTexts(const std::string& a, const std::string& b, const std::string& at) {
    ASSERT_EQ(a.size(), b.size()) << at;
    ASSERT_EQ(images_.emplace(a, b).first->second, b) << at << ": " << a;
    ASSERT_EQ(originals_.emplace(b, a).first->second, a) << at << ": " << b;
  }

  std::map<std::string, std::string> images_;
  std::map<std::string, std::string> originals_;
};

rapidjson::Document Output(const std::string& arguments) {
  rapidjson::Document document;
  const auto run = RunTool(arguments);
  EXPECT_FALSE(document.Parse(run.out.c_str(), run.out.size()).HasParseError()) << arguments << run.err;
  return document;
}

/// Removes the texts that contain names or lines of the files.
void RemoveTexts(rapidjson::Value& value) {
  if (value.IsArray()) {
    for (auto& element : value.GetArray()) RemoveTexts(element);
  } else if (value.IsObject()) {
    for (const char* member : {"file", "text", "reason", "message", "error"}) value.RemoveMember(member);
    // clang 14 finds the comparison of these iterators ambiguous.
    auto member = value.MemberBegin();
    for (auto left = value.MemberCount(); left > 0; --left) RemoveTexts((member++)->value);
  }
}

/// The definition of a copy, for one set.
void ExpectGoodCopy(const SetBytes& set) {
  const Anonymised sets(set);
  OneToOne dumps;
  for (const std::string words : {"dump ", "dump --strict "}) {
    dumps.Compare(Output(words + sets.Original()), Output(words + sets.Copy()), words);
  }
  OneToOne boards;
  const std::string board = "board --encoding latin-1 ";
  boards.Compare(Output(board + sets.Original()), Output(board + sets.Copy()), board);
  const std::string check = "check --strict --format json ";
  rapidjson::Document original = Output(check + sets.Original());
  rapidjson::Document copy = Output(check + sets.Copy());
  RemoveTexts(original);
  RemoveTexts(copy);
  EXPECT_EQ(original, copy);
}

/// The words of a set that no reader knows, in capitals.
std::set<std::string> NamesIn(const SetBytes& set) {
  static const tool::FormatWords format;
  std::set<std::string> names;
  for (const std::string& bytes : set) {
    tool::ForEachRun(bytes, tool::IsLetter, [&](tool::Span run) {
      std::string name(run.In(bytes));
      for (char& c : name) c = ToUpper(c);
      if (name.size() > 1 && !format.Has(name)) names.insert(name);
    });
  }
  return names;
}

void ExpectNoNameIsLeft(const SetBytes& set) {
  const tool::SetCopy copy(set, tool::KeyedHash::WithKeyOf("secret"));
  const std::set<std::string> names = NamesIn(copy.Bytes());
  for (const std::string& name : NamesIn(set)) EXPECT_FALSE(names.contains(name)) << name;
}

SetBytes GeneratedSet() {
  const TemporaryFolder folder;
  EXPECT_TRUE(test::GenerateBoard(folder.Path(), 2000));
  return SetIn(folder.Path());
}

SetBytes GeneratedFiles() {
  const TemporaryFolder folder;
  for (const test::GeneratedFile& file : test::kGeneratedFiles)
    EXPECT_TRUE(test::WriteGenerated(file, folder.Path("board." + std::string(file.kind)), 30000));
  return SetIn(folder.Path());
}

/// The sample board with other line ends.
SetBytes WithReturns(SetBytes set) {
  for (std::string& bytes : set) {
    std::string copy;
    for (const char c : bytes) copy += c == '\n' ? std::string("\r\n") : std::string(1, c);
    bytes = copy;
  }
  return set;
}

constexpr std::string_view kNeutralHead = "###Board Information\nBOARD B R X:1 Y:2 3 4\n###Nets\n";

struct HostileSet {
  const char* name;
  std::string tech;
  std::string neutral;
  std::string geometry;
  std::string traces;

  [[nodiscard]] SetBytes Bytes() const { return {tech, neutral, geometry, traces}; }
};

/// The text with the name for every "%".
std::string WithName(std::string text, const std::string& name) {
  for (auto at = text.find('%'); at != std::string::npos; at = text.find('%', at + name.size()))
    text.replace(at, 1, name);
  return text;
}

constexpr char kTechLine[] = "$$define_physical_layer(1, \"%\", \"%_1\");\n";
constexpr char kNetLines[] = "NET '%'\nN_PIN '%_1-%' 1 2 PAD_1 %\n";
constexpr char kComponentLines[] = R"(COMP %_1 % S % 1 2 1 90
C_PROP (%,"% 12.5") (REFLOC,"%,1,2,3")
# %
% 1 2
)";
constexpr char kGeometryLines[] = R"($$create_component("%");
$$attribute("%", [1, 2]);
$$page(0, @%);
$$attribute("COMPONENT_OUTLINE_OVERHANG", "%");
$$text(%, %, 1%, 2, 3, @%);
)";
constexpr char kTracesLines[] = R"(# NET '%'
WIR 1 1.0 2.0 3.0 4.0
SEG 1 2 3 % %
# % VER 1 2
)";

/// Every name is used as a net, a geometry, a layer and a track's value.
HostileSet WithNames(const char* title, const std::vector<std::string>& names) {
  HostileSet set{title, {}, std::string(kNeutralHead), {}, "UNITS MM\nST 1.0 1.0 1 1\nXRF 1 A_1\n"};
  for (const std::string& name : names) {
    set.tech += WithName(kTechLine, name);
    set.neutral += WithName(kNetLines, name);
    set.geometry += WithName(kGeometryLines, name);
    set.traces += WithName(kTracesLines, name);
  }
  set.neutral += "###Component\n";
  for (const std::string& name : names) set.neutral += WithName(kComponentLines, name);
  return set;
}

std::vector<HostileSet> HostileSets() {
  std::string allBytes;
  for (int c = 128; c < 256; ++c) allBytes += static_cast<char>(c);
  const std::string longName(300'000, 'q');
  std::vector<HostileSet> sets{
      WithNames("words of the formats in names", {"NET",
                                                  "xANTy",
                                                  "VERx",
                                                  "aVER",
                                                  "PRPX",
                                                  "aPRPb",
                                                  "dateline",
                                                  "BOARDING",
                                                  "STIFF",
                                                  "EYESORE",
                                                  "inch",
                                                  "millimetre",
                                                  "cmx",
                                                  "Applications",
                                                  "MIDLAYER_DEFINITIONS",
                                                  "viaduct",
                                                  "$$define_rule_viax",
                                                  "$$define_physical_layers",
                                                  "##Netsy",
                                                  "##Components",
                                                  "radiuses",
                                                  "NOMirrored",
                                                  "REFLOCX",
                                                  "POWERPAD_1",
                                                  "SIGNAL_2x",
                                                  "layers",
                                                  "Net",
                                                  "YESYES",
                                                  "$$create_foo",
                                                  "ISSue",
                                                  "éANTé"}),
      WithNames("names that differ by case alone", {"Vcc", "VCC", "vcc", "vCC", "a", "A", "Pin", "pIN"}),
      WithNames("names that are numbers", {"5", "5", "007", "1E5", "1e5", "2E", "E5", "5K2", "10K", "1.5",
                                           "-3", "+4", "0x10", "inf", "nan", "1e", "1E+5"}),
      WithNames("bytes beyond ASCII",
                {"Gr\xc3\xb6\xc3\x9f\x65", "\xb5\x46", allBytes, "\xe0\xa0\x80", "\xed\x9f\xbf",
                 "\xf0\x90\x80\x80", "\xef\xbb\xbfNET", "\xef\xbb\xbf"}),
      WithNames("very long names", {longName, longName + "r"}),
      WithNames("quotes left open", {"it's", "a\"b", "'", "\"", "x)y", "(z", "[1", "2]", "a,b", "c;", "d e"}),
  };
  sets.push_back({"quotes over lines", "$$define_rule_via(\"A, B\n", "###Nets\nNET 'OPEN\nNET 'B'\n",
                  "$$text(L, \"a,b, 1, 2);\n$$create_via(\"x);\n",
                  "UNITS MM\n# NET 'A\nWIR 'x 1\nVER y' 2\nFIL 'p q\n# date 2024 'r\n# NET '\n# date 5'\n"});
  sets.push_back({"a missing value", "", "", "", "UNITS MM\n# NET 'A'\nVER x\n# NET 'B'\n"});
  return sets;
}

TEST(Anonymise, CopiesOfUsualSetsAreAsGoodAsTheOriginals) {
  for (const SetBytes& set : {SetIn(kBoard), WithReturns(SetIn(kBoard)), GeneratedSet(), GeneratedFiles()}) {
    ExpectGoodCopy(set);
    ExpectNoNameIsLeft(set);
  }
}

TEST(Anonymise, CopiesOfHostileSetsAreAsGoodAsTheOriginals) {
  for (const HostileSet& set : HostileSets()) {
    SCOPED_TRACE(set.name);
    ExpectGoodCopy(set.Bytes());
    ExpectGoodCopy(WithReturns(set.Bytes()));
  }
}

/// Lines made of pieces of lines.
SetBytes RandomSet(unsigned seed) {
  static const std::vector<std::string> kPieces{"NET",
                                                "N_PIN",
                                                "COMP",
                                                "C_PROP",
                                                "'",
                                                "\"",
                                                "(",
                                                ")",
                                                ",",
                                                "[",
                                                "]",
                                                " ",
                                                " ",
                                                " ",
                                                "\n",
                                                "\n",
                                                "#",
                                                "###",
                                                "Nets",
                                                "$$",
                                                "@",
                                                "create_",
                                                "via",
                                                "page",
                                                "text",
                                                "attribute",
                                                "(\"",
                                                "\");",
                                                "_",
                                                "-",
                                                ".",
                                                "1",
                                                "25",
                                                "E3",
                                                "e",
                                                "Yes",
                                                "ye",
                                                "S",
                                                "in",
                                                "mm",
                                                "LAYER",
                                                "_DEFINITION",
                                                "foo",
                                                "Foo",
                                                "ba",
                                                "x",
                                                "ANT",
                                                "VER",
                                                "SEG",
                                                "WIR",
                                                "FIL",
                                                "ARE",
                                                "ISL",
                                                "UNITS",
                                                "MM",
                                                "ST",
                                                "XRF",
                                                "# NET '",
                                                "# date",
                                                "PRP",
                                                "\xc3\xa4",
                                                "\xff",
                                                "\r",
                                                "\t",
                                                "REFLOC",
                                                "PAD_1",
                                                "SIGNAL_2",
                                                "BOARD",
                                                "a",
                                                "Qw",
                                                "define_rule_via",
                                                " 1.0 2.0 3 4 5\n",
                                                "SEG 1 2 3 ",
                                                "\nCOMP ",
                                                "\n# NET 'n'\n",
                                                "\nVER 1 2\n",
                                                "\nWIR 1 2 3 4 5\n",
                                                "\n$$create_component(",
                                                "\n$$attribute(\"",
                                                "\n$$page(@"};
  std::mt19937 random(seed);
  SetBytes set{"", std::string(kNeutralHead), "", "UNITS MM\nST 1 1 1 1\nXRF 1 A_1\n"};
  for (std::string& bytes : set) {
    for (int i = 0; i < 3000; ++i) bytes += kPieces[random() % kPieces.size()];
  }
  return set;
}

TEST(Anonymise, CopiesOfRandomSetsAreAsGoodAsTheOriginals) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    SCOPED_TRACE(seed);
    ExpectGoodCopy(RandomSet(seed));
  }
}

TEST(Anonymise, ManyShortWordsStayDifferentAndNoneStaysItself) {
  SetBytes set;
  for (char a = 'A'; a <= 'Z'; ++a) {
    set[0] += std::string("# ") + a + '\n';
    for (char b = 'A'; b <= 'Z'; ++b) set[0] += std::string("# ") + a + b + " x" + a + b + '\n';
  }
  const tool::SetCopy copy(set, tool::KeyedHash::WithKeyOf("secret"));
  std::set<std::string> images;
  copy.Words().ForEach([&](const std::string& word, const std::string& image) {
    EXPECT_NE(word, image);
    EXPECT_TRUE(images.insert(image).second) << image;
  });
}

TEST(Anonymise, ReplacesDigitsOfTextsButNoOthers) {
  struct Case {
    std::size_t file;
    const char* line;
    const char* pattern;  // d: a digit that has been replaced
  };
  const std::vector<Case> cases{
      {0, "# 98765-43", "# ddddd-dd"},
      {0, "$$define_physical_layer(98765, L43);", "$$define_physical_layer(98765, q43);"},
      {1, "# 98765", "# ddddd"},
      {1, "COMP U_9 98765 SYM9 Q9 10.5 2 1 0", "COMP q_9 ddddd qqq9 q9 10.5 2 1 0"},
      {1, "C_PROP (P,\"98765\") (REFLOC,\"98764,1\")", "C_PROP (P,\"ddddd\") (REFLOC,\"98764,1\")"},
      {2, "$$text(\"PAD_1\", \"98765, 43\", 10, 20);", "$$text(\"PAD_1\", \"ddddd, dd\", 10, 20);"},
      {2, "# 98765", "# ddddd"},
      {3, "# date 98765", "# date ddddd"},
      {3, "(98765)", "(ddddd)"},
      {3, "# 98765", "# 98765"},
      {3, "VER 98765 1", "VER 98765 1"},
      {3, "TTI 1 2 R98765", "TTI 1 2 q98765"},
  };
  for (const Case& test : cases) {
    SetBytes set;
    set[test.file] = test.line;
    const tool::SetCopy copied(set, tool::KeyedHash::WithKeyOf("secret"));
    const std::string& copy = copied.Bytes()[test.file];
    const std::string pattern = test.pattern;
    ASSERT_EQ(copy.size(), pattern.size());
    std::string replaced;
    for (std::size_t i = 0; i < copy.size(); ++i) {
      if (pattern[i] == 'd' && IsDigit(copy[i]) && IsDigit(test.line[i])) {
        replaced += copy[i];
      } else if (pattern[i] != 'q') {
        EXPECT_EQ(copy[i], pattern[i]) << copy;
      }
    }
    EXPECT_TRUE(replaced.empty() || std::string_view(test.line).find(replaced) == std::string_view::npos)
        << copy;
  }
}

TEST(Anonymise, TheSameKeyGivesTheSameCopyAndAnotherOneAnother) {
  const TemporaryFolder folder;
  const auto copyWith = [&](const std::string& name, const std::string& key) {
    EXPECT_EQ(RunTool("anonymise " + kBoard + " " + folder.Path(name) + key).status, 0);
    return SetIn(folder.Path(name));
  };
  const SetBytes first = copyWith("1", " --key a");
  EXPECT_EQ(first, copyWith("2", " --key a"));
  EXPECT_NE(first, copyWith("3", " --key b"));
  const SetBytes random = copyWith("4", "");
  EXPECT_NE(random, copyWith("5", ""));
}

TEST(Anonymise, AnEqualSizeAndEqualUtf8OfEveryFile) {
  SetBytes set;
  set[0] =
      "# Gr\xc3\xb6\xc3\x9f"
      "e \xe2\x82\xac \xf0\x9f\x98\x80 \xed\x9f\xbf\n";
  const tool::SetCopy copy(set, tool::KeyedHash::WithKeyOf("secret"));
  const std::string json = '"' + copy.Bytes()[0].substr(0, copy.Bytes()[0].size() - 1) + '"';
  rapidjson::Document document;
  EXPECT_EQ(copy.Bytes()[0].size(), set[0].size());
  EXPECT_FALSE(document.Parse<rapidjson::kParseValidateEncodingFlag>(json.c_str()).HasParseError()) << json;
}

}  // namespace
}  // namespace kestrin
