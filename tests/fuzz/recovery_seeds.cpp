// Makes seeds for the recovery file out of skins: recovery_seeds OUT FOLDER...
#include "files/host_files.h"
#include "skinfile/recovery.h"
#include "skinfile/skin_reader.h"

#include <iostream>

int main(int argc, char* argv[]) {
    using namespace tarvel;
    for (int i = 2; i < argc; ++i) {
        WorkState work;
        try {
            readSkin(work.document, argv[i]);
        } catch (const SkinReadError&) {
            continue; // some fixtures are none
        }
        const std::string bytes = recoveryBytes(work);
        const std::filesystem::path out(argv[1]);
        try {
            writeFile(out / ("whole" + std::to_string(i)), bytes);
            writeFile(out / ("content" + std::to_string(i)), unsealed(recoverySeal, bytes));
        } catch (const FileError& error) {
            std::cerr << error.what() << '\n';
            return 1;
        }
    }
    return 0;
}
