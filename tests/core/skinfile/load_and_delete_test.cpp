// Loading a skin and deleting everything, again and again: nothing stays but the slots of ids that
// were handed out.
#include "document/skin_document.h"
#include "editing/stacking.h"
#include "skinfile/skin_reader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <malloc.h>
#include <sys/resource.h>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

std::size_t openDescriptors() {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator{}));
}

// Bytes that the program has from the heap.
std::size_t heapBytes() {
    const auto info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

void deleteEverything(SkinDocument& document) {
    for (int screen = 0; screen < screenCount; ++screen) {
        document.setCurrentLayout(screen);
        while (document.rowCount(screen) > 0) {
            deleteRow(document, document.rowCount(screen) - 1);
        }
    }
    document.editSettings([](SkinSettings& settings) { settings = {}; });
}

TEST(LoadAndDelete, LeavesNothingButTheSlotsOfIds) {
    const fs::path skin = fs::path(TARVEL_EXAMPLES_DIR) / "aurora";
    SkinDocument document;
    readSkin(document, skin);
    deleteEverything(document);
    const int idsOfOne = document.lastElementId();
    const std::size_t descriptors = openDescriptors();
    const std::size_t before = heapBytes();
    constexpr int times = 500;
    for (int i = 0; i < times; ++i) {
        readSkin(document, skin);
        deleteEverything(document);
    }
    EXPECT_EQ(openDescriptors(), descriptors);
    ASSERT_EQ(document.lastElementId(), (times + 1) * idsOfOne);
    const auto grown = static_cast<double>(heapBytes()) - static_cast<double>(before);
    const double perId = grown / (times * idsOfOne);
    std::cout << times << " times " << idsOfOne << " elements: " << perId << " bytes for each id\n";
    RecordProperty("bytes_per_id", static_cast<int>(perId));

    // Where it is: the records of the ids, which undo and equality need, and nothing else.
    document = {};
    const auto left = static_cast<double>(heapBytes()) - static_cast<double>(before);
    EXPECT_LT(left, 16 * 1024);
    constexpr double limit = 1536; // of an element in memory
    EXPECT_LT(perId, limit);
}

} // namespace
} // namespace tarvel
