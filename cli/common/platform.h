// The few operating-system calls the tool needs, POSIX and Windows alike:
// file descriptors of the standard streams, binary mode, terminals, and the
// path of the running program.
#ifndef TARVOLA_CLI_COMMON_PLATFORM_H
#define TARVOLA_CLI_COMMON_PLATFORM_H

#include <cstdio>
#include <string>

namespace tarvola_cli::platform {

int fd_of(std::FILE* file);
int dup_fd(int fd);
bool dup2_fd(int from, int to);
void close_fd(int fd);
std::FILE* open_fd(int fd, const char* mode);
void set_binary(std::FILE* file);
bool is_terminal(std::FILE* file);
bool truncate_file(std::FILE* file);
// The running program's path, or empty when the system does not tell.
std::string executable_path();

}  // namespace tarvola_cli::platform

#endif
