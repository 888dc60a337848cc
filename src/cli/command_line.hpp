// The command line: sub-commands, options and their errors.
#pragma once

namespace dialwright {

// Exit statuses: 0 success, 1 a dial, file or other input that can't be worked with, 2 a usage
// error.
int runCommandLine(int argc, char** argv);

}  // namespace dialwright
