#include <CLI/CLI.hpp>
#include <exception>
#include <string>

#include "kestrin/version.h"
#include "tool/board.h"
#include "tool/check.h"
#include "tool/dump.h"
#include "tool/exit_status.h"
#include "tool/export_set.h"
#include "tool/output.h"
#include "tool/summary.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

struct Arguments {
  std::string folder;
  ExportSet files;
  std::string format;
  ReadingWords reading;
};

constexpr char kExitStatuses[] =
    "Exit status: 0 on success; 1 if a reader stopped early, the strict reader gave up, or "
    "check found skipped lines or syntax errors; 2 if the command line is wrong or a file cannot be read.";

void AddFileOptions(CLI::App& command, Arguments& arguments) {
  for (const FileKind& kind : kFileKinds) {
    command
        .add_option(kind.option, arguments.files.PathOf(kind.file), std::string("The ") + kind.name + " file")
        ->option_text("FILE");
  }
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

void AddFolder(CLI::App& command, Arguments& arguments) {
  command
      .add_option("DIR", arguments.folder,
                  "A folder with the export set: one file each that ends in .tech, .neutral, .geometry "
                  "and .traces")
      ->option_text(" ");
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

/// Parses the command line and runs the command. Returns the exit status.
int Run(int count, char** words) {
  CLI::App app("Imports a printed-circuit board from its four export files and shows their contents.",
               "kestrin");
  app.set_version_flag("--version", std::string("kestrin ") + kVersion);
  app.require_subcommand(0, 1);
  app.footer(std::string("Example:\n  kestrin summary examples/board\n\n") + kExitStatuses);

  Arguments arguments;
  CLI::App* summary = AddCommand(app, arguments, "summary", "Print the contents of the files at a glance",
                                 "kestrin summary examples/board");
  AddFolder(*summary, arguments);
  CLI::App* dump = AddCommand(app, arguments, "dump", "Print the object model as a JSON document",
                              "kestrin dump --tech examples/board/board.tech");
  CLI::App* check = AddCommand(app, arguments, "check", "List the lines that an import skips",
                               "kestrin check examples/board --format json");
  AddFolder(*check, arguments);
  check->add_option("--format", arguments.format, "The output format (default: text)")
      ->check(CLI::IsMember({"text", "json"}))
      ->option_text("text|json");
  CLI::App* board =
      AddCommand(app, arguments, "board", "Print the board that the files describe together as JSON",
                 "kestrin board examples/board --rotation ccw");
  AddFolder(*board, arguments);
  AddReadingOptions(*board, arguments.reading);

  try {
    app.parse(count, words);
  } catch (const CLI::Success& asked) {
    return app.exit(asked);
  } catch (const CLI::ParseError& error) {
    throw UsageError(std::string(error.what()) + "; try kestrin --help");
  }
  if (app.get_subcommands().empty()) throw UsageError("missing command; try kestrin --help");
  if (!arguments.folder.empty()) arguments.files.FindInFolder(arguments.folder);
  if (board->parsed()) return PrintBoard(arguments.files, arguments.reading);
  if (dump->parsed()) return Dump(arguments.files);
  if (check->parsed()) {
    return Check(arguments.files, arguments.format == "json" ? CheckFormat::kJson : CheckFormat::kText);
  }
  return Summary(arguments.files);
}

}  // namespace
}  // namespace kestrin::tool

int main(int count, char** words) {
  using namespace kestrin::tool;
  try {
    return Run(count, words);
  } catch (const UsageError& error) {
    return ReportError(error.what(), kUnusable);
  } catch (const std::exception& error) {
    return ReportError(error.what(), kIncomplete);
  }
}
