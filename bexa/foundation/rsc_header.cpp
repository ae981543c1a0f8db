#include "bexa/foundation/rsc_header.h"

#include "bexa/foundation/os.h"

#include <string>

namespace {

constexpr char resourceVersion[] = "2.1x";

} // namespace

YString BexYioRsc::getHeaderString() {
    const bool euc = bexa::detail::processCoding() == YioRscEuc;
    YString header;
    header << "# TALVO HK8800 systems - resource declaration.\n"
           << "# Resource version:" << resourceVersion << "\n"
           << "# japanese_coding:" << (euc ? "euc" : "sjis") << "\n";
    return header;
}

void BexYioRsc::getRscJCoding(const char* path, YioRscJCoding& fileCoding, YioRscJCoding& localCoding,
                              YString* version) {
    fileCoding = localCoding = bexa::detail::processCoding();
    if (version) *version = resourceVersion;
    std::string bytes;
    if (!bexa::detail::os::readWholeFile(path, bytes)) return;
    const bexa::detail::RscHeader header = bexa::detail::scanHeader(bytes);
    fileCoding = header.coding.value_or(localCoding);
    if (version && header.version) version->assign(*header.version);
}
