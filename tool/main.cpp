#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "kestrin/version.h"
#include "tool/anonymise/anonymise.h"
#include "tool/board.h"
#include "tool/check/check.h"
#include "tool/diff/diff.h"
#include "tool/draw/draw.h"
#include "tool/dump.h"
#include "tool/exit_status.h"
#include "tool/export_set.h"
#include "tool/output.h"
#include "tool/summary.h"
#include "tool/system/console.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

/// The arguments of diff, which compares two sets.
struct DiffWords {
  std::string before;
  std::string after;
  std::string format = "text";
  bool all = false;
};

struct Arguments {
  std::vector<std::string> paths;
  ExportSet files;
  AnonymiseWords anonymise;
  CheckWords check;
  std::string summaryFormat = "text";
  ReadingWords reading;
  DiffWords diff;
  draw::DrawWords draw;
};

constexpr char kExitStatuses[] =
    "Exit status: 0 on success; 1 if a reader stopped early, the strict reader gave up, or check found "
    "problems; 2 if the command line is wrong, a file cannot be read, or the output cannot be written.";

void AddFileOptions(CLI::App& command, Arguments& arguments) {
  command
      .add_option("PATH", arguments.paths,
                  "A folder with the export set: files that end in .tech (may be missing), .neutral, "
                  ".geometry and .traces. Or files with these endings")
      ->option_text(" ");
  for (const FileKind& kind : kFileKinds) {
    command
        .add_option(kind.option, arguments.files.PathOf(kind.file),
                    std::string("The ") + kind.name + " file; - is standard input")
        ->option_text("FILE");
  }
}

void AddStrict(CLI::App& command, Arguments& arguments) {
  command.add_flag("--strict", arguments.files.Strict(),
                   "Parse the Traces file by its grammar, which fixes the order and form of its records");
}

CLI::App* AddCommand(CLI::App& app, Arguments& arguments, const char* name, const char* description,
                     const char* example) {
  CLI::App* command = app.add_subcommand(name, description);
  AddFileOptions(*command, arguments);
  command->footer(std::string("Example:\n  ") + example + "\n\n" + kExitStatuses);
  return command;
}

void AddReadingOptions(CLI::App& command, ReadingWords& words) {
  const CLI::IsMember senses({kCounterClockwise, kClockwise});
  command
      .add_option("--rotation", words.rotation,
                  "The direction in which components on the top rotate (default: fitted to the data)")
      ->check(senses)
      ->option_text("ccw|cw");
  command
      .add_option("--bottom", words.bottom,
                  "The direction in which components on the bottom rotate (default: fitted to the data)")
      ->check(senses)
      ->option_text("ccw|cw");
  command
      .add_option("--bottom-turn", words.bottomTurn,
                  "Degrees to add to the angle of components on the bottom (default: fitted to the data)")
      ->check(CLI::IsMember({"0", "180"}))
      ->option_text("0|180");
  command
      .add_option("--width-step", words.widthStep,
                  "The unit of track widths that are written with digits only, in units of the Traces file "
                  "(default: fitted to the data)")
      ->option_text("NUMBER");
}

void AddFormat(CLI::App& command, std::string& word) {
  command.add_option("--format", word, "The output format (default: text)")
      ->check(CLI::IsMember({"text", "json"}))
      ->option_text("text|json");
}

void AddCheckOptions(CLI::App& command, CheckWords& words) {
  AddFormat(command, words.format);
  command
      .add_option("--fail-on", words.failOn,
                  "End with status 1 if there is a problem that is at least this bad (default: warning)")
      ->check(CLI::IsMember({"error", "warning", "note", "never"}))
      ->option_text("error|warning|note|never");
  command.add_option("--allow", words.allowed, "Do not report problems with this code; may be repeated")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->option_text("CODE");
  command.add_flag("--ignored", words.ignored, "List how many lines of each keyword are not imported");
  command.add_flag("--quiet", words.quiet, "Print no text; the exit status tells");
}

void AddDrawOptions(CLI::App& command, draw::DrawWords& words) {
  command.add_option("-o,--output", words.output, "The picture; its name ends in .svg, .png, .pdf or .html")
      ->required()
      ->option_text("FILE");
  command
      .add_option("--view", words.view, "All layers, or the finished board from one side (default: layers)")
      ->check(CLI::IsMember({"layers", "top", "bottom"}))
      ->option_text("layers|top|bottom");
  command.add_option("--layers", words.layers, "Draw only these layers (default: all)")
      ->delimiter(',')
      ->option_text("NAME,NAME");
  command.add_option("--net", words.nets, "Dim everything that is not on this net; may be repeated")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->option_text("NAME");
  command.add_option("--box", words.box, "What to show, in millimetres (default: everything)")
      ->option_text("X0,Y0,X1,Y1");
  command
      .add_option("--width", words.width, "The width in pixels (default of a .png: 2000 for the longer side)")
      ->option_text("NUMBER");
  command
      .add_option(
          "--against", words.against,
          "Another export: what it removes is red, what it adds is green, the rest dims; not with --net")
      ->option_text("PATH");
  command.add_option("--theme", words.theme, "The colours (default: dark)")
      ->check(CLI::IsMember({"dark", "print"}))
      ->option_text("dark|print");
  command.add_flag("--tags", words.hasTags, "In an .svg, say the nets of tracks, vias, areas and pads");
}

void AddDiffOptions(CLI::App& command, DiffWords& words) {
  const char* const meaning = "A folder with an export set, or one of its files";
  command.add_option("BEFORE", words.before, meaning)->required()->option_text(" ");
  command.add_option("AFTER", words.after, meaning)->required()->option_text(" ");
  AddFormat(command, words.format);
  command.add_flag("--all", words.all, "Print all differences, not only the first of each kind");
  command.footer(
      "Example:\n  kestrin diff boards/a boards/b\n\nExit status: 0 if there is no difference; 1 if there "
      "is one; 2 if something is wrong.");
}

void AddAnonymiseOptions(CLI::App& command, AnonymiseWords& words) {
  command
      .add_option("--key", words.key,
                  "A secret text; the same key gives the same copy (default: random, and not kept)")
      ->option_text("TEXT");
  command
      .add_option("--map", words.map, "Write what each word became to a file; keep it as secret as the board")
      ->option_text("FILE");
  command.add_flag("--force", words.force, "Replace the folder and the file of --map if they exist");
}

/// Takes the folder to write from the end of the paths.
std::string TakeFolder(std::vector<std::string>& paths) {
  if (paths.empty()) throw UsageError("missing the folder for the copy; try kestrin anonymise --help");
  std::string folder = paths.back();
  paths.pop_back();
  return folder;
}

void AddEncoding(CLI::App& command, Arguments& arguments) {
  command
      .add_option("--encoding", arguments.files.EncodingWord(),
                  "The encoding of the files (default: auto, UTF-8 if all are valid UTF-8, else Latin-1)")
      ->check(CLI::IsMember({"auto", "utf-8", "latin-1"}))
      ->option_text("auto|utf-8|latin-1");
}

/// The command line of the tool.
class CommandLine {
 public:
  CommandLine() {
    app_.set_version_flag("-V,--version", std::string("kestrin ") + kVersion);
    app_.require_subcommand(0, 1);
    app_.footer(std::string("Example:\n  kestrin summary examples/board\n\n") + kExitStatuses);
    AddFormat(*summary_, arguments_.summaryFormat);
    AddReadingOptions(*board_, arguments_.reading);
    AddReadingOptions(*draw_, arguments_.reading);
    AddDrawOptions(*draw_, arguments_.draw);
    AddCheckOptions(*check_, arguments_.check);
    AddDiffOptions(*diff_, arguments_.diff);
    for (CLI::App* command : {summary_, board_, check_, diff_, draw_}) AddEncoding(*command, arguments_);
    for (CLI::App* command : {summary_, board_, check_, draw_, dump_}) AddStrict(*command, arguments_);
    AddAnonymiseOptions(*anonymise_, arguments_.anonymise);
    anonymise_->get_option("PATH")->description(
        "A folder with the export set, or files, and last the folder to write, OUT");
    for (CLI::App* command : app_.get_subcommands([](const CLI::App*) { return true; })) {
      command->allow_windows_style_options(false);  // a path may begin with a slash
    }
    help_->add_option("COMMAND", topic_, "The command to explain")->option_text(" ");
  }

  /// Parses the words and runs the command. Returns the exit status.
  int Run(int count, char** words) {
    try {
      app_.parse(count, words);
    } catch (const CLI::Success& asked) {
      return FinishText(app_.exit(asked));
    } catch (const CLI::ParseError& error) {
      throw UsageError(std::string(error.what()) + "; try kestrin --help");
    }
    if (app_.get_subcommands().empty()) throw UsageError("missing command; try kestrin --help");
    if (help_->parsed()) return Explain();
    if (diff_->parsed()) return CompareSets();
    ExportSet& files = arguments_.files;
    if (anonymise_->parsed()) return RunAnonymise();
    files.Add(arguments_.paths);
    if (board_->parsed()) return PrintBoard(files, arguments_.reading);
    if (draw_->parsed()) return draw::Draw(files, arguments_.reading, arguments_.draw);
    if (check_->parsed()) return Check(files, arguments_.check);
    if (summary_->parsed()) return Summary(files, arguments_.summaryFormat);
    files.EncodingWord() = "latin-1";  // a dump has one character for each byte
    return Dump(files);
  }

 private:
  CLI::App* Add(const char* name, const char* description, const char* example) {
    return AddCommand(app_, arguments_, name, description, example);
  }

  [[nodiscard]] int CompareSets() {
    const DiffWords& words = arguments_.diff;
    ExportSet before = arguments_.files;
    ExportSet after = arguments_.files;
    before.Add({words.before});
    after.Add({words.after});
    return Diff(before, after, words.format, words.all);
  }

  [[nodiscard]] int RunAnonymise() {
    const std::string folder = TakeFolder(arguments_.paths);
    arguments_.files.Add(arguments_.paths);
    return Anonymise(arguments_.files, folder, arguments_.anonymise);
  }

  [[nodiscard]] int Explain() {
    const auto found =
        app_.get_subcommands([&](const CLI::App* command) { return command->get_name() == topic_; });
    if (!topic_.empty() && found.empty())
      throw UsageError("there is no command " + topic_ + "; try kestrin --help");
    app_.clear();  // or else the application explains its command "help"
    std::cout << (found.empty() ? app_.help() : found.front()->help(app_.get_name()));
    return FinishText(kSuccess);
  }

  /// Like FinishOutput, for text that is printed by way of std::cout.
  [[nodiscard]] static int FinishText(int exitStatus) {
    std::cout.flush();
    return FinishOutput(exitStatus);
  }

  Arguments arguments_;
  std::string topic_;
  CLI::App app_{"Imports a printed-circuit board from its four export files and shows their contents.",
                "kestrin"};
  CLI::App* summary_ =
      Add("summary", "Print the contents of the files at a glance", "kestrin summary examples/board");
  CLI::App* check_ = Add("check", "Find what is wrong with the files", "kestrin check examples/board");
  CLI::App* board_ = Add("board", "Print the board that the files describe together as JSON",
                         "kestrin board examples/board --rotation ccw");
  CLI::App* draw_ = Add("draw", "Draw the board as SVG, PNG, PDF or HTML",
                        "kestrin draw examples/board --net GND -o gnd.svg");
  CLI::App* dump_ = Add("dump", "Print the object model as JSON", "kestrin dump examples/board/board.tech");
  CLI::App* diff_ = app_.add_subcommand("diff", "Print what changed between two export sets");
  CLI::App* anonymise_ = Add("anonymise", "Write a copy with other names, for bug reports",
                             "kestrin anonymise examples/board copy");
  CLI::App* help_ = app_.add_subcommand("help", "Explain the tool or a command");
};

}  // namespace
}  // namespace kestrin::tool

int main(int count, char** words) {
  using namespace kestrin::tool;
  const StandardStreams streams;
  try {
    return CommandLine().Run(count, words);
  } catch (const UsageError& error) {
    return ReportError(error.what(), kUnusable);
  } catch (const std::exception& error) {
    return ReportError(error.what(), kIncomplete);
  }
}
