#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "support/temporary_folder.h"

namespace kestrin::test {

struct ProcessResult {
  int status;
  std::string out;
  std::string err;
};

/// Runs the tool. The arguments are parsed by the shell.
inline ProcessResult RunTool(const std::string& arguments) {
  const TemporaryFolder folder;
  const auto content = [&](const char* name) {
    std::ostringstream text;
    text << std::ifstream(folder.Path(name), std::ios::binary).rdbuf();
    return text.str();
  };
  const std::string command =
      std::string(KESTRIN_TOOL " ") + arguments + " >" + folder.Path("out") + " 2>" + folder.Path("err");
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, content("out"), content("err")};
}

}  // namespace kestrin::test
