// The whole command-line tool as one call, so that main() and the fuzz
// harness of the tool's input boundary run exactly the same code.
#ifndef TARVOLA_CLI_TOOL_H
#define TARVOLA_CLI_TOOL_H

namespace tarvola_cli {

// Parses the arguments, runs the subcommand and returns the exit status:
// 0 success, 1 a negative answer (an invalid word, a table with problems),
// 2 an error (a missing file, bad arguments). Results go to standard
// output (or --output), messages to standard error; text is read from the
// files named or from standard input.
int run_tool(int argc, char** argv);

}  // namespace tarvola_cli

#endif
