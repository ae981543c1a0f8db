#include <CLI/CLI.hpp>

#include "bexa/bexa.h"

int main(int argc, char** argv) {
    CLI::App app{"Looks into the designs of a schematic-capture suite"};
    app.set_version_flag("--version", BexVersion());
    CLI11_PARSE(app, argc, argv);
    return 0;
}
