#pragma once

namespace app {

// A standard stream the program was started without (">&-") gets /dev/null, opened for reading
// only, in its place: writing to it still fails as it would, but no file the program opens can
// take its number, so no message or table lands in a data file or an output file.
void ReserveClosedStandardStreams();

}  // namespace app
