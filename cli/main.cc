// tarvola: Basque morphological analysis from the command line.
//
// Each subcommand lives in its own file and registers itself with the
// parser (tool.cc); it returns what to run once the arguments are parsed.
#include "tool.h"

int main(int argc, char** argv) { return tarvola_cli::run_tool(argc, argv); }
