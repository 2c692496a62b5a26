#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "numerics/file_writer.h"

// The one rule every command-line mode applies before it writes a file the user named: an output
// never replaces one of the mode's input files, nor a file that looks like measured data (a
// missing value of --out lets the shell put the first data file there), nor a write-protected
// file; and a folder is no output.
namespace app {

// Why path may not be written, in a sentence that ends in what to do; empty when it may.
std::string RefuseOutput(const std::string& path, const std::vector<std::string>& inputs);

// Why the output path could not be written, with the system's reason and what to do.
std::string CannotWriteOutput(const std::string& path, const numerics::FileWriteOutcome& written);

// Flushes out. When that or an earlier write failed (a full disk, a closed stream), says on err
// what could not be written and why ("No space left on device"), and returns false.
bool StandardOutputWritten(std::ostream& out, std::ostream& err, std::string_view mode, const std::string& what);

}  // namespace app
