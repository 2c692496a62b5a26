#pragma once

namespace app {

// Qt looks into the per-user runtime directory when it starts. Where the session names none
// (XDG_RUNTIME_DIR unset, as in batch jobs and containers), Qt falls back to runtime-USER in
// the temporary folder and warns on stderr about it; naming that same folder beforehand gives
// the same behaviour without the warning. Where the folder is not usable, nothing is named
// and Qt's own message says what is wrong.
void NameRuntimeDirectory();

}  // namespace app
