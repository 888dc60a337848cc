// The command line's entry point.
#include "cli/command_line.hpp"

int main(int argc, char** argv) { return dialwright::runCommandLine(argc, argv); }
