#pragma once

#include <functional>
#include <string>

namespace tool {

// Gives the file at `path` new content as the editors of the suite do: `write` fills the temporary copy beside it,
// the backup copy becomes what the file holds, and the temporary copy takes its place. `write` throws a Problem if
// it can't, and so does this; the file, and its backup copy up to then, stay as they were, and the temporary copy
// goes. Whoever looks sees the old content or the new. A link leads where it led. Gives the path of the backup.
std::string saveProtected(const std::string& path, const std::string& shown,
                          const std::function<void(const std::string& temporary)>& write);

} // namespace tool
