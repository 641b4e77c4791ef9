// Makes seeds for copied elements out of skins: clipboard_seeds OUT FOLDER...
#include "files/host_files.h"
#include "skinfile/clipboard.h"
#include "skinfile/skin_reader.h"

#include <iostream>
#include <numeric>

int main(int argc, char* argv[]) {
    using namespace tarvel;
    for (int i = 2; i < argc; ++i) {
        SkinDocument document;
        try {
            readSkin(document, argv[i]);
        } catch (const SkinReadError&) {
            continue; // some fixtures are none
        }
        std::vector<int> all(static_cast<std::size_t>(document.lastElementId()));
        std::iota(all.begin(), all.end(), 1);
        const ClipboardContent content = copyElements(document, all);
        const std::string bytes = clipboardBytes(content);
        const std::filesystem::path out(argv[1]);
        try {
            writeFile(out / ("whole" + std::to_string(i)), bytes);
            writeFile(out / ("content" + std::to_string(i)), unsealed(clipboardSeal, bytes));
            writeFile(out / ("text" + std::to_string(i)), clipboardText(content));
        } catch (const FileError& error) {
            std::cerr << error.what() << '\n';
            return 1;
        }
    }
    return 0;
}
