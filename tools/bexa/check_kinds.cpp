#include "tools/bexa/check_rules.h"

#include "bexa/design/comp_kind.h"
#include "bexa/store/file.h"
#include "bexa/store/install_roots.h"

#include <string>

namespace tool {

// All circuits have those of the project or the installation, if there are any.
void checkKinds(const ReachedCircuit&, Findings& findings) {
    const YString path = BexSysFile::fileName("CompKind", BexSysFile::EtcFile);
    if (!BexFile::isExist(path)) return;
    BexCompKind* kinds = BexCompKind::open(path, BexOpenRead);
    if (kinds == nullptr) findings.add(Fault::KindsUnreadable, std::string(path));
    BexCompKind::close(kinds, BexCloseDiscard);
}

} // namespace tool
