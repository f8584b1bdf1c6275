// The subcommands; main.cc registers them in this order.
#ifndef TARVOLA_CLI_COMMANDS_H
#define TARVOLA_CLI_COMMANDS_H

#include <CLI/CLI.hpp>

#include "common/options.h"

namespace tarvola_cli {

Runner register_analyze(CLI::App& parent);
Runner register_check(CLI::App& parent);
Runner register_cg3(CLI::App& parent);
Runner register_multext(CLI::App& parent);
Runner register_generate(CLI::App& parent);
Runner register_valid(CLI::App& parent);
Runner register_suggest(CLI::App& parent);
Runner register_dict(CLI::App& parent);
Runner register_table(CLI::App& parent);

}  // namespace tarvola_cli

#endif
