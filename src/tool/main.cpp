// tarvel-skin: skins in scripts and batch work, without a window.
#include "tool/skin_commands.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char* argv[]) {
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    return tarvel::tool::run(arguments, {std::cout, std::cerr});
}
