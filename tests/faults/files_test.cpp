#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "kestrin/framework/exceptions.h"
#include "kestrin/traces/strict/mp_traces_parser.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "support/source_of.h"
#include "support/temporary_folder.h"
#include "tests/faults/faults.h"
#include "tests/support/content_of.h"
#include "tests/support/sample_board.h"

namespace kestrin {
namespace {

using ReadFile = void (CPC_KESTRIN_GET::*)(CString);

TEST(FaultyFile, AReadErrorEndsTheImportAfterTheLastCompleteLine) {
  struct Case {
    ImportFile file;
    const char* kind;
    ReadFile read;
  };
  const test::TemporaryFolder folder;
  for (const Case& c : {Case{ImportFile::kTech, "tech", &CPC_KESTRIN_GET::TechFileParse},
                        Case{ImportFile::kNeutral, "neutral", &CPC_KESTRIN_GET::NeutralFileParse},
                        Case{ImportFile::kGeometry, "geometry", &CPC_KESTRIN_GET::GeomFileParse},
                        Case{ImportFile::kTraces, "traces", &CPC_KESTRIN_GET::TraceFileParse}}) {
    const std::string path = test::BoardFile(c.kind);
    const std::string text = test::ContentOf(path);
    const auto modelsOf = [&c](const std::string& file) {
      CPC_KESTRIN_GET session;
      (session.*c.read)(file);
      return test::DescribedModels(session);
    };
    const std::string whole = modelsOf(path);
    for (std::size_t readable = 0; readable < text.size(); readable += 37) {
      CPC_KESTRIN_GET session;
      CWnd dialog;
      CProgressCtrl bar(&dialog);
      if (readable % 2 == 0) session.SetProgressPtr(&bar, &bar, &bar, &bar);
      {
        const test::FailingReads failing(static_cast<long>(readable));
        EXPECT_THROW((session.*c.read)(path), CFileException);
      }
      const FileReport& report = session.GetReport().Of(c.file);
      EXPECT_EQ(report.end, ReadingEnd::kStopped);
      const std::string read = text.substr(0, text.substr(0, readable).rfind('\n') + 1);
      EXPECT_EQ(report.linesRead, std::count(read.begin(), read.end(), '\n'));
      EXPECT_EQ(test::DescribedModels(session), modelsOf(folder.File("cut", read)));
      (session.*c.read)(path);
      EXPECT_EQ(test::DescribedModels(session), whole);
    }
  }
}

TEST(FaultyFile, TheStrictReaderTakesAReadErrorAsTheEndOfTheFile) {
  std::string path = test::BoardFile("traces");
  const std::string text = test::ContentOf(path);
  testing::internal::CaptureStderr();
  for (std::size_t readable = 0; readable < text.size(); readable += 97) {
    const StrictParse expected = ParseStrictly(test::SourceOf(std::string_view(text).substr(0, readable)));
    MPTracesParser parser(path.data());
    const test::FailingReads failing(static_cast<long>(readable));
    EXPECT_EQ(parser.Parse(), static_cast<int>(expected.result)) << readable;
    EXPECT_EQ(parser.GetError(), expected.error);
    EXPECT_EQ(parser.GetCurrentLineNum(), expected.line);
    parser.Close();
    if (expected.traces == nullptr) continue;
    const std::unique_ptr<CMTraces> traces(parser.GetTraces());
    EXPECT_EQ(test::Described(*traces), test::Described(*expected.traces));
  }
  testing::internal::GetCapturedStderr();
}

TEST(FaultyFile, AFileThatOpensButCannotBeReadRaisesAndOneThatDoesNotOpenDoesNot) {
  CPC_KESTRIN_GET session;
  EXPECT_THROW(session.TraceFileParse("/proc/self/mem"), CFileException);
  EXPECT_EQ(session.GetReport().Of(ImportFile::kTraces).end, ReadingEnd::kStopped);
  const test::TemporaryFolder folder;
  for (const std::string& path : {folder.Path(), folder.Path("missing"), folder.File("f", "x") + "/y",
                                  std::string(5000, 'x'), std::string("/proc/self/fd/1000000")}) {
    session.TraceFileParse(path);
    EXPECT_EQ(session.GetReport().Of(ImportFile::kTraces).end, ReadingEnd::kNotOpened) << path;
    EXPECT_TRUE(session.GetTraces()->m_pNetArray->IsEmpty());
  }
  rlimit handles{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &handles), 0);
  const rlimit none{.rlim_cur = 0, .rlim_max = handles.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
  session.TraceFileParse(test::BoardFile("traces"));
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &handles), 0);
  EXPECT_EQ(session.GetReport().Of(ImportFile::kTraces).end, ReadingEnd::kNotOpened);
}

/// A dialog that truncates a file when it is refreshed.
class ShrinkingDialog : public CWnd {
 public:
  ShrinkingDialog(std::string path, long size) : path_(std::move(path)), size_(size) {}
  BOOL UpdateData(BOOL /*saveAndValidate*/) override {
    return truncate(path_.c_str(), size_) == 0 ? TRUE : FALSE;
  }

 private:
  std::string path_;
  long size_;
};

TEST(FaultyFile, AFileThatShrinksWhileItIsReadEndsWhereItEnds) {
  std::string text;
  while (text.size() < 3'000'000) text += "$$create_via(V)\n";
  const test::TemporaryFolder folder;
  for (const long size : {0L, 1'000'003L}) {
    const std::string path = folder.File("geometry", text);
    CPC_KESTRIN_GET session;
    ShrinkingDialog dialog(path, size);
    CProgressCtrl bar(&dialog);
    session.SetProgressPtr(&bar, nullptr, nullptr, nullptr);
    session.GeomFileParse(path);
    const FileReport& report = session.GetReport().Of(ImportFile::kGeometry);
    EXPECT_EQ(report.end, ReadingEnd::kComplete);
    EXPECT_LT(report.linesRead, 100'000);
    EXPECT_GE(report.linesRead, size / 16);
    EXPECT_EQ(session.GetGeom()->m_pVias->GetSize(), report.Imported());
  }
}

}  // namespace
}  // namespace kestrin
