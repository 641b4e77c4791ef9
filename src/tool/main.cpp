// tarvel-skin: skins in scripts and batch work, without a window.
#include "files/own_process.h"
#include "tool/skin_commands.h"

#include <iostream>

int main(int argc, char* argv[]) {
    const tarvel::ConsoleInUtf8 console;
    return tarvel::tool::run(tarvel::ownArguments(argc, argv), {std::cout, std::cerr});
}
