#include "kestrin/session/reader_loop.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

#include "kestrin/windowing/messages.h"
#include "support/temporary_folder.h"
#include "tests/support/recording_dialog.h"

namespace kestrin {
namespace {

using test::Events;
using test::RecordingDialog;

/// A reader that calls the test's function for every line.
struct ScriptedReader {
  LineOutcome ReadLine(std::string_view line) { return script(line); }
  std::function<LineOutcome(std::string_view)> script = [](std::string_view) {
    return LineOutcome::Imported();
  };
};

std::string Lines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += "line\n";
  return text;
}

TEST(ReaderLoop, MovesTheBarByWholePercentages) {
  const test::TemporaryFolder folder;
  const std::string path = folder.File("text", Lines(200));
  RecordingDialog host;
  ScriptedReader reader;
  FileReport report;
  ReadLines({.path = path, .bar = &host.neutralBar}, reader, report);
  Events expected;
  for (int percent = 1; percent <= 99; ++percent) {
    expected.push_back("neutral bar: position " + std::to_string(percent));
    expected.emplace_back("dialog: refresh");
  }
  EXPECT_EQ(host.events, expected);
}

TEST(ReaderLoop, PositionsAreTruncatedPercentagesOfTheLineFeedsPlusOne) {
  const test::TemporaryFolder folder;
  struct Case {
    std::string text;
    Events positions;
  };
  const Case cases[] = {
      {"", {}},
      {"a", {"traces bar: position 100"}},
      {"a\n", {"traces bar: position 50"}},
      {"a\nb\nc", {"traces bar: position 33", "traces bar: position 66", "traces bar: position 100"}},
      {Lines(1000).substr(0, 20),
       {"traces bar: position 20", "traces bar: position 40", "traces bar: position 60",
        "traces bar: position 80"}},
  };
  for (const Case& c : cases) {
    RecordingDialog host;
    ScriptedReader reader;
    FileReport report;
    ReadLines({.path = folder.File("text", c.text), .bar = &host.tracesBar}, reader, report);
    std::erase(host.events, "dialog: refresh");
    EXPECT_EQ(host.events, c.positions) << c.text;
  }
}

TEST(ReaderLoop, ABarStopsAtTheGreatestPositionWhenAFileGrows) {
  RecordingDialog host;
  ProgressDisplay progress(&host.neutralBar, false);
  progress.SetLineCount(1);
  progress.LineRead(30'000'000'000);
  EXPECT_EQ(host.events, (Events{"neutral bar: position 2147483647", "dialog: refresh"}));
}

TEST(ReaderLoop, DisablesTheBarAndPumpsMessagesIfAsked) {
  const test::TemporaryFolder folder;
  const std::string path = folder.File("text", "a\nb");
  RecordingDialog host;
  ScriptedReader reader{[&](std::string_view line) {
    host.events.push_back("read " + std::string(line));
    PostMessageA(host.dialog.GetSafeHwnd(), WM_USER, 7, 0);
    test::WaitUntilPumped();
    return LineOutcome::Imported();
  }};
  FileReport report;
  ReadLines({.path = path, .bar = &host.techBar, .pumpsMessages = true, .disablesBar = true}, reader, report);
  EXPECT_EQ(host.events, (Events{"tech bar: position 50", "tech bar: disable", "dialog: refresh", "read a",
                                 "dialog: message 1024 7", "tech bar: position 100", "tech bar: disable",
                                 "dialog: refresh", "read b"}));
  host.events.clear();
  ReadLines({.path = path, .pumpsMessages = true}, reader, report);
  EXPECT_EQ(host.events, (Events{"dialog: message 1024 7", "read a", "dialog: message 1024 7", "read b"}));
  PumpMessages();
}

TEST(ReaderLoop, WithoutADialogThereIsNoProgress) {
  const test::TemporaryFolder folder;
  Events events;
  test::Recording<CProgressCtrl> orphan(events, "bar");
  ScriptedReader reader;
  FileReport report;
  ReadLines({.path = folder.File("text", "a\nb"), .bar = &orphan}, reader, report);
  EXPECT_EQ(events, Events{});
  EXPECT_EQ(report.linesRead, 2);
}

TEST(ReaderLoop, ReportsTheOutcomeOfEveryLine) {
  const test::TemporaryFolder folder;
  const std::string path = folder.File("text", "i\n\n" + std::string(300, 'x') + "\n" + Lines(150) + "i");
  ScriptedReader reader{[](std::string_view line) {
    if (line.empty()) return LineOutcome::Ignored();
    return line == "i" ? LineOutcome::Imported() : LineOutcome::Skipped(SkipCode::kUnknownRecord);
  }};
  FileReport report;
  EXPECT_EQ(report.end, ReadingEnd::kNotRead);
  for (int repeat = 0; repeat < 2; ++repeat) ReadLines({.path = path}, reader, report);
  EXPECT_EQ(report.end, ReadingEnd::kComplete);
  EXPECT_EQ(report.path, path);
  EXPECT_EQ(report.linesRead, 154);
  EXPECT_EQ(report.Imported(), 2);
  EXPECT_EQ(report.Ignored(), 1);
  EXPECT_EQ(report.Skipped(), 151);
  const SkippedLines& skipped = report.Skipped(SkipCode::kUnknownRecord);
  EXPECT_EQ(skipped.count, 151);
  ASSERT_EQ(skipped.first.size(), FileReport::kKeptLines);
  EXPECT_EQ(skipped.first[0].number, 3);
  EXPECT_EQ(skipped.first[0].text, std::string(FileReport::kKeptBytes, 'x'));
  EXPECT_EQ(skipped.first[99].number, 102);
}

TEST(ReaderLoop, PassesExceptionsOnAndReportsWhereItStopped) {
  const test::TemporaryFolder folder;
  ScriptedReader reader{[](std::string_view line) {
    if (line == "bad") AfxThrowInvalidArgException();
    return LineOutcome::Imported();
  }};
  FileReport report;
  EXPECT_THROW(ReadLines({.path = folder.File("text", "a\nb\nbad\nc")}, reader, report),
               CInvalidArgException);
  EXPECT_EQ(report.end, ReadingEnd::kStopped);
  EXPECT_EQ(report.linesRead, 3);
  EXPECT_EQ(report.Imported(), 2);
  ReadLines({.path = folder.Path("missing")}, reader, report);
  EXPECT_EQ(report.end, ReadingEnd::kNotOpened);
  EXPECT_EQ(report.linesRead, 0);
}

}  // namespace
}  // namespace kestrin
