#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace app {

// netrix --figures FILE|FOLDER...: one CSV row of gain and stability figures per point of each
// file, the files evaluated in parallel and written in the order given; a folder gives its .s2p
// and .spm files in name order. With more than one file, or a folder, each row starts with the
// file's path under the column "file". A file that cannot be read is reported on err and the
// others are still written. Returns the process exit status: 0 when every file was written.
int RunFiguresCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace app
