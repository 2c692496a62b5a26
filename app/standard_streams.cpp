#include "standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <initializer_list>

namespace app {

void ReserveClosedStandardStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(stream, F_GETFD) != -1 || errno != EBADF) continue;
    // open() takes the lowest free number, which is this one; the program netrix starts keeps it.
    const int reserved = open("/dev/null", O_RDONLY);
    if (reserved >= 0 && reserved != stream) close(reserved);
  }
}

}  // namespace app
