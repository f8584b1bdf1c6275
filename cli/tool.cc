#include "tool.h"

#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "commands.h"
#include "common/io.h"

namespace tarvola_cli {

int run_tool(int argc, char** argv) {
  CLI::App app{"tarvola: Basque morphological analysis, correction and generation"};
  app.set_version_flag("--version", std::string("tarvola ") + TARVOLA_VERSION_TEXT);
  app.require_subcommand(1);

  std::vector<std::pair<CLI::App*, Runner>> commands;
  for (auto reg : {register_analyze, register_check, register_cg3, register_multext,
                   register_generate, register_valid, register_suggest, register_dict,
                   register_table}) {
    Runner run = reg(app);
    commands.emplace_back(app.get_subcommands([](CLI::App*) { return true; }).back(),
                          std::move(run));
  }

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    int code = app.exit(e);
    return code == 0 ? 0 : 2;
  }
  // From here on the library's messages cannot reach the results.
  route_stdout();
  for (auto& [sub, run] : commands)
    if (sub->parsed()) return run();
  return 2;
}

}  // namespace tarvola_cli
